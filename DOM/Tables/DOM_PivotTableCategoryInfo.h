#pragma once

#include <cstdint>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How the values of a field are sorted. Any other number passes through unchanged.
enum class PivotTableSortOrder : std::int32_t { Manual = 0, Ascending = 1, Descending = 2 };

/// A field that is shown as rows or as columns of a pivot table.
class DOM_API PivotTableCategoryInfo {
public:
    PivotTableCategoryInfo() = default;
    PivotTableCategoryInfo(ColumnID fieldID, PivotTableSortOrder sortOrder, bool showTotals)
        : _fieldID(fieldID), _sortOrder(sortOrder), _showTotals(showTotals)
    {
    }

    ColumnID getFieldID() const { return _fieldID; }
    void setFieldID(ColumnID id) { _fieldID = id; }

    PivotTableSortOrder getSortOrder() const { return _sortOrder; }
    void setSortOrder(PivotTableSortOrder sortOrder) { _sortOrder = sortOrder; }

    bool getShowTotals() const { return _showTotals; }
    void setShowTotals(bool showTotals) { _showTotals = showTotals; }

    QN_VALUE(PivotTableCategoryInfo)

private:
    ColumnID _fieldID{0};
    PivotTableSortOrder _sortOrder{};
    bool _showTotals = true;

    BOOST_DESCRIBE_CLASS(PivotTableCategoryInfo, (), (), (), (_fieldID, _sortOrder, _showTotals))
};

} // namespace QN::DOM
