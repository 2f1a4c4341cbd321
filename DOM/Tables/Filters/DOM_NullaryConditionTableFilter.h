#pragma once

#include <cstdint>

#include "DOM/Tables/Filters/DOM_ByColumnTableFilter.h"

namespace QN::DOM {

/// A condition without parameter. Any other number passes through unchanged.
enum class NullaryConditionTableFilterOperator : std::int32_t {
    Empty = 0,
    NotEmpty = 1,
    AboveAverage = 2,
    BelowAverage = 3
};

/// Shows the rows whose value in a column meets a condition without parameter.
class DOM_API NullaryConditionTableFilter final : public Reflectable<ByColumnTableFilter> {
public:
    NullaryConditionTableFilter() = default;
    explicit NullaryConditionTableFilter(ColumnIndex column) : Reflectable(column) {}
    NullaryConditionTableFilter(ColumnIndex column, NullaryConditionTableFilterOperator condition)
        : Reflectable(column), _operator(condition)
    {
    }

    NullaryConditionTableFilterOperator getOperator() const { return _operator; }
    void setOperator(NullaryConditionTableFilterOperator condition) { _operator = condition; }

    QN_VALUE(NullaryConditionTableFilter)
    QN_CONCRETE(TableFilter)

private:
    NullaryConditionTableFilterOperator _operator{};

    BOOST_DESCRIBE_CLASS(NullaryConditionTableFilter, (ByColumnTableFilter), (), (), (_operator))
};

} // namespace QN::DOM
