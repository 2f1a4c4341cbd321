#include "DOM/Utils/DOM_RowColumnStyleUtils.h"

#include "CollaborationUtils/Public/CU_WithTombstones.h"
#include "DOM/Tables/DOM_CellRangeIt.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/Tables/Properties/DOM_ColumnProps.h"
#include "DOM/Tables/Properties/DOM_RowProps.h"

namespace QN::DOM::Utils {

namespace {

template <class Style>
bool isHiddenByStyle(const Style& style)
{
    return style.getProps() && style.getProps()->isHidden().value_or(false);
}

/// `Style` is that of the row or column at `index`, and `range` covers that alone.
template <class Style, class Index>
SparseData<Style> copySparseData(const Table& table, Index index, const TableRange& range)
{
    SparseData<Style> copy;
    copy.id = table.getID(index);
    if (!isHiddenByStyle(table.getStyle(index))) {
        copy.style = table.getSharedStyle(index);
    }
    for (CellRangeIt<true> position(table, range); !position.isAtEnd(); ++position) {
        const Cell* const cell = *position;
        if (cell == nullptr || cell->isEmpty(CollaborationUtils::WithTombstones::Yes)) {
            continue;
        }
        if constexpr (SparseData<Style>::IsRow) {
            copy.cells.emplace_back(position.getColIndex(), std::make_unique<Cell>(*cell));
        } else {
            copy.cells.emplace_back(position.getRowIndex(), std::make_unique<Cell>(*cell));
        }
    }
    return copy;
}

} // namespace

RowData getSparseDataWithProps(const Table& table, RowIndex index)
{
    return copySparseData<RowStyle>(table, index,
                                    TableRange(index, index + 1, ColumnIndex(0), table.getLiveColsCount()));
}

ColumnData getSparseDataWithProps(const Table& table, ColumnIndex index)
{
    return copySparseData<ColumnStyle>(table, index,
                                       TableRange(RowIndex(0), table.getLiveRowsCount(), index, index + 1));
}

} // namespace QN::DOM::Utils
