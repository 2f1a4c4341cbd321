#include <algorithm>

#include "DOM/Tables/DOM_PivotTable.h"
#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/VectorUtils.h"

/// Finding, storing and dropping single cells.

namespace QN::DOM {

namespace {

TableRange getCapturedRange(RowIndex row, ColumnIndex column, std::uint64_t capturedRows,
                            std::uint64_t capturedColumns)
{
    return {row, row + 1 + capturedRows, column, column + 1 + capturedColumns};
}

void checkLimits(RowIndex rowIndex, ColumnIndex colIndex)
{
    QN_ASSERT(rowIndex.get() < DOM::MaxRows);
    QN_ASSERT(colIndex.get() < DOM::MaxColumns);
}

} // namespace

/// The last chunk that starts at or before the row. A bisection without branches, since none could be foretold.
std::size_t Table::findChunk(RowIndex row) const
{
    std::size_t first = 0;
    for (std::size_t count = _chunks.size(); count > 1;) {
        const std::size_t half = count / 2;
        first += _chunks[first + half].startRowIndex <= row ? half : 0;
        count -= half;
    }
    return first;
}

TableChunk::Boundaries Table::getRowBoundaries(std::size_t chunk, RowIndex row) const
{
    return _chunks[chunk].getRelativeRowBoundaries(_chunks[chunk].getRelativeRow(row));
}

TableChunk::CellIterator Table::getLBCellIterator(const TableChunk& chunk,
                                                  const TableChunk::Boundaries& boundaries,
                                                  ColumnIndex column) const
{
    const auto getColumn = [&](TableChunk::CellIterator cell) {
        return _colIDContainer.getIndex(cell->colID.get());
    };
    const auto bisect = [&](TableChunk::CellIterator from, TableChunk::CellIterator to) {
        return std::lower_bound(from, to, column.get(), [&](const CellDataByCol& cell, std::uint64_t value) {
            return _colIDContainer.getIndex(cell.colID.get()) < value;
        });
    };
    const auto begin = iteratorAt(chunk.data, boundaries.begin);
    const auto end = iteratorAt(chunk.data, boundaries.end);
    if (begin == end) {
        return end;
    }
    // Cells mostly stand side by side, at the beginning of the row or elsewhere: then one look or two find the place,
    // where each step of a bisection of distant memory costs more than all else.
    const auto size = static_cast<std::uint64_t>(end - begin);
    auto guess = begin + static_cast<std::ptrdiff_t>(std::min(column.get(), size - 1));
    std::uint64_t guessed = getColumn(guess);
    if (guessed > column.get() && guess != begin) {
        guess -= static_cast<std::ptrdiff_t>(
            std::min(guessed - column.get(), static_cast<std::uint64_t>(guess - begin)));
        guessed = getColumn(guess);
    }
    if (guessed < column.get()) {
        return bisect(guess + 1, end);
    }
    return guess == begin || getColumn(guess - 1) < column.get() ? guess : bisect(begin, guess);
}

TableChunk::CellIterator Table::getUBCellIterator(const TableChunk& chunk,
                                                  const TableChunk::Boundaries& boundaries,
                                                  ColumnIndex column) const
{
    return std::upper_bound(iteratorAt(chunk.data, boundaries.begin), iteratorAt(chunk.data, boundaries.end),
                            column.get(), [&](std::uint64_t value, const CellDataByCol& cell) {
                                return value < _colIDContainer.getIndex(cell.colID.get());
                            });
}

const Cell* Table::getCell(RowIndex row, ColumnIndex column) const
{
    const std::size_t chunkIndex = findChunk(row);
    const TableChunk& chunk = _chunks[chunkIndex];
    const TableChunk::Boundaries boundaries = getRowBoundaries(chunkIndex, row);
    const auto place = getLBCellIterator(chunk, boundaries, column);
    if (chunk.getPlace(place) == boundaries.end ||
        _colIDContainer.getIndex(place->colID.get()) != column.get()) {
        return nullptr;
    }
    return place->cell.get();
}

Cell* Table::getCell(RowIndex row, ColumnIndex column)
{
    return const_cast<Cell*>(std::as_const(*this).getCell(row, column));
}

const Cell* Table::getCellById(RowID rowID, ColumnID columnID) const
{
    const auto row = getIndex(rowID);
    const auto column = getIndex(columnID);
    return row && column ? getCell(*row, *column) : nullptr;
}

Cell* Table::getCellById(RowID rowID, ColumnID columnID)
{
    return const_cast<Cell*>(std::as_const(*this).getCellById(rowID, columnID));
}

CellInfo Table::getCellInfo(RowIndex row, ColumnIndex column) const
{
    return {this, getCell(row, column), row, column, getID(row), getID(column)};
}

Table::Place Table::findPlace(RowIndex row, ColumnIndex column)
{
    Place place;
    place.chunk = findChunk(row);
    TableChunk& chunk = _chunks[place.chunk];
    place.relativeRow = chunk.getRelativeRow(row);
    chunk.extendTo(place.relativeRow);
    const TableChunk::Boundaries boundaries = chunk.getRelativeRowBoundaries(place.relativeRow);
    place.data = chunk.getPlace(getLBCellIterator(chunk, boundaries, column));
    place.isOccupied = place.data != boundaries.end && chunk.data[place.data].colID == getID(column);
    return place;
}

void Table::insertAt(const Place& place, std::unique_ptr<Cell> cell, ColumnID id)
{
    TableChunk& chunk = _chunks[place.chunk];
    chunk.data.emplace(iteratorAt(chunk.data, place.data), std::move(cell), id);
}

void Table::splitChunkIfNeeded(std::size_t chunkIndex)
{
    if (_chunks[chunkIndex].data.size() > _maxChunkSize) {
        splitChunk(chunkIndex);
    }
}

void Table::splitChunk(std::size_t chunkIndex)
{
    const std::size_t median = _chunks[chunkIndex].getChunkMedian();
    if (median == 0) {
        return;
    }
    // Nothing may throw once the cells have left their chunk.
    if (_chunks.size() == _chunks.capacity()) {
        _chunks.reserve(2 * _chunks.size());
    }
    _chunks.insert(iteratorAt(_chunks, chunkIndex + 1), _chunks[chunkIndex].split(median));
}

Cell& Table::getOrCreateCell(RowIndex row, ColumnIndex column)
{
    checkLimits(row, column);
    const Place place = findPlace(row, column);
    if (place.isOccupied) {
        std::unique_ptr<Cell>& stored = _chunks[place.chunk].data[place.data].cell;
        if (!stored) {
            stored = std::make_unique<Cell>();
        }
        return *stored;
    }
    ensureSize(row + 1, column + 1);
    auto created = std::make_unique<Cell>();
    Cell& cell = *created;
    insertAt(place, std::move(created), getID(column));
    _chunks[place.chunk].shiftRows(place.relativeRow, 1);
    splitChunkIfNeeded(place.chunk);
    return cell;
}

void Table::setCell(RowIndex row, ColumnIndex column, std::unique_ptr<Cell> cell)
{
    checkLimits(row, column);
    const CellMergeProps& mergeProps = getCellMergeProps(cell.get());
    const std::uint64_t capturedRows = mergeProps.getCapturedRowsCount();
    const std::uint64_t capturedColumns = mergeProps.getCapturedColsCount();
    ensureSize(row + 1 + capturedRows, column + 1 + capturedColumns);
    const Place place = findPlace(row, column);
    if (capturedRows == 0 && capturedColumns == 0) {
        _mergedCellsCache.unmergeCells(row, column);
    } else {
        _mergedCellsCache.mergeCells(getCapturedRange(row, column, capturedRows, capturedColumns));
    }
    if (cell && cell->getPivotTable() != nullptr) {
        _pivotTablesCache.addPivot(row, column, cell->getPivotTable()->getSize());
    } else {
        _pivotTablesCache.removePivot(row, column);
    }
    if (place.isOccupied) {
        _chunks[place.chunk].data[place.data].cell.swap(cell);
    } else {
        insertAt(place, std::move(cell), getID(column));
    }
    // Also where a cell was replaced: fixed behaviour, see the declaration.
    _chunks[place.chunk].shiftRows(place.relativeRow, 1);
    splitChunkIfNeeded(place.chunk);
}

void Table::setCell(RowIndex row, ColumnIndex column, std::unique_ptr<Cell> cell,
                    const CellMergeProps& mergeProps)
{
    derefRequired(cell).setMergeProps(mergeProps);
    setCell(row, column, std::move(cell));
}

void Table::removeCell(RowIndex row, ColumnIndex column)
{
    const std::size_t chunkIndex = findChunk(row);
    TableChunk& chunk = _chunks[chunkIndex];
    const std::size_t relativeRow = chunk.getRelativeRow(row);
    const TableChunk::Boundaries boundaries = chunk.getRelativeRowBoundaries(relativeRow);
    const auto place = getLBCellIterator(chunk, boundaries, column);
    if (chunk.getPlace(place) == boundaries.end || place->colID != getID(column)) {
        return;
    }
    _mergedCellsCache.unmergeCells(row, column);
    _pivotTablesCache.removePivot(row, column);
    chunk.data.erase(place);
    chunk.shiftRows(relativeRow, -1);
}

void Table::setMergeProps(RowIndex row, ColumnIndex column, std::uint64_t capturedRows,
                          std::uint64_t capturedColumns)
{
    if (capturedRows != 0 || capturedColumns != 0) {
        const TableRange range = getCapturedRange(row, column, capturedRows, capturedColumns);
        getOrCreateCell(row, column).setMergeProps(CellMergeProps(capturedRows, capturedColumns));
        _mergedCellsCache.mergeCells(range);
        ensureSize(range.getEndRow(), range.getEndColumn());
        return;
    }
    if (Cell* const cell = getCell(row, column)) {
        cell->setMergeProps(CellMergeProps());
    }
    _mergedCellsCache.unmergeCells(row, column);
}

boost::optional<CellIndex> Table::getMergedCellRoot(RowIndex row, ColumnIndex column) const
{
    return _mergedCellsCache.getMergedCellRoot(row, column);
}

boost::optional<TableRange> Table::getMergedRange(RowIndex row, ColumnIndex column) const
{
    return _mergedCellsCache.getMergedRange(row, column);
}

void Table::setPivotTable(RowIndex row, ColumnIndex column, std::unique_ptr<PivotTable> pivotTable)
{
    checkLimits(row, column);
    _pivotTablesCache.addPivot(row, column, derefRequired(pivotTable).getSize());
    getOrCreateCell(row, column).setPivotTable(std::move(pivotTable));
}

void Table::removePivotTable(RowIndex row, ColumnIndex column)
{
    _pivotTablesCache.removePivot(row, column);
    if (Cell* const cell = getCell(row, column)) {
        cell->setPivotTable(nullptr);
    }
}

boost::optional<CellIndex> Table::getPivotRoot(RowIndex row, ColumnIndex column) const
{
    return _pivotTablesCache.getPivotRoot(row, column);
}

bool Table::isPivotTablesInRange(const TableRange& range) const
{
    return _pivotTablesCache.isPivotTablesInRange(range);
}

std::vector<CellIndex> Table::getPivotTablesInRange(const TableRange& range) const
{
    return _pivotTablesCache.getPivotTablesInRange(range);
}

bool Table::canInsertRow(RowIndex row) const
{
    return _pivotTablesCache.canInsertRow(row);
}

bool Table::canInsertColumn(ColumnIndex column) const
{
    return _pivotTablesCache.canInsertColumn(column);
}

} // namespace QN::DOM
