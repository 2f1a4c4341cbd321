#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "DOM/Tables/Filters/DOM_ByColumnTableFilter.h"

namespace QN::DOM {

/// A condition with one parameter. Any other number passes through unchanged.
enum class UnaryConditionTableFilterOperator : std::int32_t {
    Equal = 0,
    NotEqual = 1,
    LessThan = 2,
    LessThanOrEqual = 3,
    GreaterThan = 4,
    GreaterThanOrEqual = 5,
    BeginsWith = 6,
    NotBeginsWith = 7,
    EndsWith = 8,
    NotEndsWith = 9,
    Contains = 10,
    NotContains = 11,
};

/// Shows the rows whose value in a column meets a condition with one parameter.
class DOM_API UnaryConditionTableFilter final : public Reflectable<ByColumnTableFilter> {
public:
    UnaryConditionTableFilter() = default;
    explicit UnaryConditionTableFilter(ColumnIndex column) : Reflectable(column) {}
    UnaryConditionTableFilter(ColumnIndex column, UnaryConditionTableFilterOperator condition,
                              std::string parameter)
        : Reflectable(column), _operator(condition), _parameter(std::move(parameter))
    {
    }

    UnaryConditionTableFilterOperator getOperator() const { return _operator; }
    void setOperator(UnaryConditionTableFilterOperator condition) { _operator = condition; }

    const std::string& getParameter() const { return _parameter; }
    void setParameter(std::string parameter) { _parameter = std::move(parameter); }

    QN_VALUE(UnaryConditionTableFilter)
    QN_CONCRETE(TableFilter)

private:
    UnaryConditionTableFilterOperator _operator{};
    std::string _parameter;

    BOOST_DESCRIBE_CLASS(UnaryConditionTableFilter, (ByColumnTableFilter), (), (), (_operator, _parameter))
};

} // namespace QN::DOM
