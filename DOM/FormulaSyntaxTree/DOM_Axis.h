#pragma once

#include <boost/describe/class.hpp>
#include <boost/variant/variant.hpp>

#include <cstdint>
#include <utility>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM::FormulaSyntaxTree {

/// One coordinate of a reference: a position (alternative 0), or an identifier (alternative 1), which names the row
/// or column itself and stays right when others are inserted or removed. A fixed coordinate is an absolute one.
/// Two are equal when alternative, value and fixing are: a position never equals an identifier.
template <class Value, std::uint64_t MaxValue>
class Axis {
public:
    using ValueType = Value;
    /// The last position of the largest table.
    static constexpr std::uint64_t Max = MaxValue;

    /// Position 0, not fixed.
    Axis() = default;
    Axis(Value id, bool isFixed) : _id(std::move(id)), _isFixed(isFixed) {}

    const Value& getID() const { return _id; }
    void setID(Value id) { _id = std::move(id); }

    bool isFixed() const { return _isFixed; }
    void setFixed(bool isFixed) { _isFixed = isFixed; }

    friend bool operator==(const Axis& left, const Axis& right)
    {
        return left._id == right._id && left._isFixed == right._isFixed;
    }

private:
    Value _id;
    bool _isFixed = false;

    BOOST_DESCRIBE_CLASS(Axis, (), (), (), (_id, _isFixed))
};

using ColumnAxis = Axis<boost::variant<ColumnIndex, ColumnID>, MaxColumns - 1>;
using RowAxis = Axis<boost::variant<RowIndex, RowID>, MaxRows - 1>;

} // namespace QN::DOM::FormulaSyntaxTree
