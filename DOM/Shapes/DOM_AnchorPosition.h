#pragma once

#include <boost/variant/variant.hpp>

#include <cstdint>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

// Of the enumerations below, any other number passes through unchanged.

enum class AnchorHorizontalAlignment : std::int32_t {
    Left = 0,
    Right = 1,
    Center = 2,
    Inside = 3,
    Outside = 4
};

enum class AnchorVerticalAlignment : std::int32_t {
    Top = 0,
    Bottom = 1,
    Center = 2,
    Inside = 3,
    Outside = 4
};

enum class AnchorHorizontalRelativeTo : std::int32_t {
    Margin = 0,
    Page = 1,
    Column = 2,
    Character = 3,
    LeftMargin = 4,
    RightMargin = 5,
    InsideMargin = 6,
    OutsideMargin = 7,
};

enum class AnchorVerticalRelativeTo : std::int32_t {
    Margin = 0,
    Page = 1,
    Paragraph = 2,
    Line = 3,
    TopMargin = 4,
    BottomMargin = 5,
    InsideMargin = 6,
    OutsideMargin = 7,
};

/// Where an object stands along one axis: at an offset or in a named alignment, and what that counts from.
template <class Alignment, class RelativeTo>
class DOM_API AnchorPosition {
public:
    using Value = boost::variant<float, Alignment>;

    AnchorPosition() = default;
    explicit AnchorPosition(Value value) : _value(std::move(value)) {}

    const Value& getValue() const { return _value; }
    void setValue(Value value) { _value = std::move(value); }

    RelativeTo getRelativeTo() const { return _relativeTo; }
    void setRelativeTo(RelativeTo relativeTo) { _relativeTo = relativeTo; }

    QN_ORDERED_VALUE(AnchorPosition)

private:
    Value _value{0.0F};
    RelativeTo _relativeTo{};

    BOOST_DESCRIBE_CLASS(AnchorPosition, (), (), (), (_value, _relativeTo))
};

using AnchorHorizontalPosition = AnchorPosition<AnchorHorizontalAlignment, AnchorHorizontalRelativeTo>;
using AnchorVerticalPosition = AnchorPosition<AnchorVerticalAlignment, AnchorVerticalRelativeTo>;

extern template class DOM_API AnchorPosition<AnchorHorizontalAlignment, AnchorHorizontalRelativeTo>;
extern template class DOM_API AnchorPosition<AnchorVerticalAlignment, AnchorVerticalRelativeTo>;

} // namespace QN::DOM
