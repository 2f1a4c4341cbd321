#pragma once

#include <boost/container/set.hpp>

#include <string>

#include "DOM/Tables/Filters/DOM_ByColumnTableFilter.h"

namespace QN::DOM {

/// Shows the rows whose value in a column is one of a set, which holds each text once, sorted.
class DOM_API ValuesTableFilter final : public Reflectable<ByColumnTableFilter> {
public:
    using Values = boost::container::set<std::string>;

    ValuesTableFilter() = default;
    explicit ValuesTableFilter(ColumnIndex column) : Reflectable(column) {}

    const Values& getValuesToShow() const { return _valuesToShow; }
    Values& getValuesToShow() { return _valuesToShow; }

    QN_VALUE(ValuesTableFilter)
    QN_CONCRETE(TableFilter)

private:
    Values _valuesToShow;

    BOOST_DESCRIBE_CLASS(ValuesTableFilter, (ByColumnTableFilter), (), (), (_valuesToShow))
};

} // namespace QN::DOM
