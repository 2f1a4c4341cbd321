#include <algorithm>

#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/VectorUtils.h"

/// The walks over a table, and the rows that they pass over.

namespace QN::DOM {

namespace {

/// One past the rows that begin where row `first` does. It is mostly near, so that the search reaches out from there in
/// growing steps: a bisection of all the rest would cost a walk over a long sparse chunk twenty looks a cell.
std::size_t findBehindEqualOffsets(const std::vector<std::uint64_t>& offsets, std::size_t first)
{
    std::size_t reach = 1;
    while (reach < offsets.size() - first && offsets[first + reach] <= offsets[first]) {
        reach *= 2;
    }
    const auto from = iteratorAt(offsets, first + reach / 2);
    const auto to = iteratorAt(offsets, std::min(first + reach, offsets.size()));
    return static_cast<std::size_t>(std::upper_bound(from, to, offsets[first]) - offsets.begin());
}

} // namespace

/// To the next row that may hold cells, over all empty ones at once. False, and one past the last row with an offset,
/// when there is none. The row always rises, and it never passes over the first one behind the live rows: the end of a
/// walk may stand at a cell there, and offsets of a file that fall could hide it.
bool Table::goToNextStoredRow(std::size_t& chunkIndex, RowIndex& row) const
{
    const TableChunk& chunk = _chunks[chunkIndex];
    const std::vector<std::uint64_t>& offsets = chunk.rowDataOffsets;
    const std::size_t next = chunk.getRelativeRow(row) + 1;
    if (next < offsets.size()) {
        // Rows without cells begin where the next one begins: the last of them may have some.
        const RowIndex found = chunk.startRowIndex + (findBehindEqualOffsets(offsets, next) - 1);
        row = row < getLiveRowsCount() ? std::min(found, getLiveRowsCount()) : found;
        return true;
    }
    if (chunkIndex + 1 < _chunks.size()) {
        ++chunkIndex;
        row = _chunks[chunkIndex].startRowIndex;
        return true;
    }
    row = getMaxRowIndex();
    return false;
}

/// To the next earlier row that may hold cells, over all empty ones at once. False when there is none.
bool Table::goToPreviousStoredRow(std::size_t& chunkIndex, RowIndex& row) const
{
    chunkIndex = findChunk(row);
    while (true) {
        const TableChunk& chunk = _chunks[chunkIndex];
        const std::vector<std::uint64_t>& offsets = chunk.rowDataOffsets;
        const std::size_t before = std::min(chunk.getRelativeRow(row), offsets.size());
        const std::size_t cellsBefore = chunk.getRelativeRowBoundaries(before).begin;
        const auto to = offsets.begin() + static_cast<std::ptrdiff_t>(before);
        const auto behind = std::lower_bound(offsets.begin(), to, cellsBefore);
        if (behind != offsets.begin()) {
            row = chunk.startRowIndex + static_cast<std::uint64_t>(behind - offsets.begin() - 1);
            return true;
        }
        if (chunkIndex == 0) {
            return false;
        }
        row = chunk.startRowIndex;
        --chunkIndex;
    }
}

CellIterators<TableCellIt<const Table>> Table::getTableIterators() const
{
    return {TableCellIt<const Table>(*this), TableCellIt<const Table>(*this, true)};
}

CellIterators<TableCellIt<Table>> Table::getTableIterators()
{
    return {TableCellIt<Table>(*this), TableCellIt<Table>(*this, true)};
}

TableCellIt<const Table> Table::getTableIt(RowIndex row, ColumnIndex column) const
{
    return {*this, row, column};
}

TableCellIt<Table> Table::getTableIt(RowIndex row, ColumnIndex column)
{
    return {*this, row, column};
}

CellIterators<LogicalCellIt<TableCellIt<const Table>>> Table::getTableLogicalIterators() const
{
    return {getTableLogicalBeginIt(), getTableLogicalEndIt()};
}

CellIterators<LogicalCellIt<TableCellIt<Table>>> Table::getTableLogicalIterators()
{
    return {getTableLogicalBeginIt(), getTableLogicalEndIt()};
}

LogicalCellIt<TableCellIt<const Table>> Table::getTableLogicalIt(RowIndex row, ColumnIndex column) const
{
    return {getTableIt(row, column), row, column};
}

LogicalCellIt<TableCellIt<Table>> Table::getTableLogicalIt(RowIndex row, ColumnIndex column)
{
    return {getTableIt(row, column), row, column};
}

LogicalCellIt<TableCellIt<const Table>> Table::getTableLogicalBeginIt() const
{
    return LogicalCellIt(TableCellIt<const Table>(*this));
}

LogicalCellIt<TableCellIt<Table>> Table::getTableLogicalBeginIt()
{
    return LogicalCellIt(TableCellIt<Table>(*this));
}

LogicalCellIt<TableCellIt<const Table>> Table::getTableLogicalEndIt() const
{
    return LogicalCellIt(TableCellIt<const Table>(*this, true), true);
}

LogicalCellIt<TableCellIt<Table>> Table::getTableLogicalEndIt()
{
    return LogicalCellIt(TableCellIt<Table>(*this, true), true);
}

CellIterators<CellRangeIt<true>> Table::getRangeIterators(const TableRange& range) const
{
    return {CellRangeIt<true>(*this, range), CellRangeIt<true>(*this, range, true)};
}

CellIterators<CellRangeIt<false>> Table::getRangeIterators(const TableRange& range)
{
    return {CellRangeIt<false>(*this, range), CellRangeIt<false>(*this, range, true)};
}

CellIterators<LogicalCellIt<CellRangeIt<true>>> Table::getRangeLogicalIterators(const TableRange& range) const
{
    return {LogicalCellIt(CellRangeIt<true>(*this, range)), getRangeLogicalEndIt(range)};
}

CellIterators<LogicalCellIt<CellRangeIt<false>>> Table::getRangeLogicalIterators(const TableRange& range)
{
    return {LogicalCellIt(CellRangeIt<false>(*this, range)), getRangeLogicalEndIt(range)};
}

LogicalCellIt<CellRangeIt<true>> Table::getRangeLogicalEndIt(const TableRange& range) const
{
    return LogicalCellIt(CellRangeIt<true>(*this, range, true), true);
}

LogicalCellIt<CellRangeIt<false>> Table::getRangeLogicalEndIt(const TableRange& range)
{
    return LogicalCellIt(CellRangeIt<false>(*this, range, true), true);
}

} // namespace QN::DOM
