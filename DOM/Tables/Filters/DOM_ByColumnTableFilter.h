#pragma once

#include "DOM/Tables/Filters/DOM_TableFilter.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM {

/// A filter on the values of one column.
class DOM_API ByColumnTableFilter : public Reflectable<TableFilter> {
public:
    ByColumnTableFilter() = default;
    explicit ByColumnTableFilter(ColumnIndex column) : _columnIndex(column) {}

    ColumnIndex getColumnIndex() const { return _columnIndex; }
    void setColumnIndex(ColumnIndex column) { _columnIndex = column; }

    QN_VALUE(ByColumnTableFilter)

private:
    ColumnIndex _columnIndex;

    BOOST_DESCRIBE_CLASS(ByColumnTableFilter, (TableFilter), (), (), (_columnIndex))
};

} // namespace QN::DOM
