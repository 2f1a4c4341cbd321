#include <algorithm>

#include "DOM/Tables/DOM_Table.h"

/// How far a table reaches.

namespace QN::DOM {

namespace {

/// One past the last position from `needed` up to `count` whose identifier has a style; `needed` if there is none.
template <class Index, class Styles>
std::uint64_t getEndOfStyled(const Table& table, const Styles& styles, std::uint64_t needed,
                             std::uint64_t count)
{
    if (styles.empty()) {
        return needed;
    }
    for (std::uint64_t end = count; end > needed; --end) {
        if (styles.contains(table.getID(Index(end - 1)))) {
            return end;
        }
    }
    return needed;
}

} // namespace

RowIndex Table::getMaxRowIndex() const
{
    return _chunks.back().getEndRow();
}

void Table::ensureSize(RowIndex rows, ColumnIndex columns)
{
    _rowsCount = std::max(_rowsCount, std::min(rows.get(), MaxRows));
    _colsCount = std::max(_colsCount, std::min(columns.get(), MaxColumns));
}

std::uint64_t Table::getNeededRows() const
{
    auto last = getTableIterators().second;
    --last;
    return last.isAtEnd() ? 0 : last.getRowIndex().get() + 1;
}

std::uint64_t Table::getNeededColumns() const
{
    std::uint64_t needed = 0;
    for (const TableChunk& chunk : _chunks) {
        for (std::size_t row = 0; row < chunk.rowDataOffsets.size(); ++row) {
            const TableChunk::Boundaries boundaries = chunk.getRelativeRowBoundaries(row);
            if (boundaries.begin != boundaries.end) {
                const ColumnID id = chunk.data[boundaries.end - 1].colID;
                needed = std::max(needed, _colIDContainer.getIndex(id.get()) + 1);
            }
        }
    }
    return needed;
}

CellIndex Table::changeSize(RowIndex rows, ColumnIndex columns)
{
    std::uint64_t rowsCount = rows.get();
    std::uint64_t colsCount = columns.get();
    if (rowsCount < _rowsCount) {
        rowsCount = std::max({rowsCount, std::uint64_t{1}, getNeededRows()});
        rowsCount = getEndOfStyled<RowIndex>(*this, _rowStyles, rowsCount, _rowsCount);
    }
    if (colsCount < _colsCount) {
        colsCount = std::max(colsCount, getNeededColumns());
        colsCount = getEndOfStyled<ColumnIndex>(*this, _columnStyles, colsCount, _colsCount);
    }
    // Without merged ranges and pivot tables their last cell is (0, 0), so that one row and one column always stay.
    for (const CellIndex& last :
         {_mergedCellsCache.getBottomRightCellIndex(), _pivotTablesCache.getBottomRightCellIndex()}) {
        rowsCount = std::max(rowsCount, last.getRow().get() + 1);
        colsCount = std::max(colsCount, last.getColumn().get() + 1);
    }
    if (_filterInfo) {
        rowsCount = std::max(rowsCount, _filterInfo->getFilterRange().getEndRow().get());
        colsCount = std::max(colsCount, _filterInfo->getFilterRange().getEndColumn().get());
    }
    _rowsCount = std::min(rowsCount, MaxRows);
    _colsCount = std::min(colsCount, MaxColumns);
    return {RowIndex(_rowsCount), ColumnIndex(_colsCount)};
}

} // namespace QN::DOM
