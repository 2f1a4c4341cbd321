#pragma once

#include <cstdint>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

/// How the values of a field are brought together. Any other number passes through unchanged.
enum class PivotTableFunction : std::int32_t {
    Average = 0,
    Count = 1,
    CountNumbers = 2,
    Max = 3,
    Min = 4,
    Product = 5,
    StdDev = 6,
    StdDevP = 7,
    Sum = 8,
    Var = 9,
    VarP = 10,
};

/// A field whose values a pivot table brings together. One field may do so several times, by several functions: each time
/// has an identity of its own.
class DOM_API ValueField : public Reflectable<UUIDable> {
public:
    ValueField() = default;
    ValueField(ColumnID fieldID, PivotTableFunction function) : _fieldID(fieldID), _function(function) {}

    ColumnID getFieldID() const { return _fieldID; }
    void setFieldID(ColumnID id) { _fieldID = id; }

    PivotTableFunction getFunction() const { return _function; }
    void setFunction(PivotTableFunction function) { _function = function; }

    /// The identity takes part.
    QN_VALUE(ValueField)

private:
    ColumnID _fieldID{0};
    PivotTableFunction _function{};

    BOOST_DESCRIBE_CLASS(ValueField, (UUIDable), (), (), (_fieldID, _function))
};

} // namespace QN::DOM
