#include <algorithm>

#include "DOM/Tables/DOM_PivotTable.h"
#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/Opt/OptUtils.h"
#include "Utils/Public/VectorUtils.h"

/// Rows and columns that come and go.

namespace QN::DOM {

namespace {

/// Moves the style of an identifier out of a map.
template <class Styles, class ID>
typename Styles::mapped_type takeStyle(Styles& styles, ID id)
{
    typename Styles::mapped_type style;
    const auto entry = styles.find(id);
    if (entry != styles.end()) {
        style = std::move(entry->second);
        styles.erase(entry);
    }
    return style;
}

/// What the removal of a tombstone answers.
template <class Data>
Data makeForgotten(TombstonesWithIDsStorage& tombstones,
                   TombstonesWithIDsStorage::IndexIncludingTombstones position)
{
    Data data;
    data.id = typename Data::ID(tombstones.getIDByIndex(position).value_or(0));
    tombstones.removeElement(position);
    return data;
}

} // namespace

// Rows

void Table::checkRowID(const RowData& rowData) const
{
    if (_rowIDContainer.containsInsertedID(rowData.id.get())) {
        throw BadRowColIDException(
            "Trying to insert row, but row with same ID is already present in a table.");
    }
}

void Table::insertRow(RowData rowData, RowIndex position)
{
    QN_ASSERT(position.get() <= _rowsCount);
    checkRowID(rowData);

    _rowIDContainer.insert(position.get(), rowData.id.get());
    _mergedCellsCache.insertRow(position);
    _pivotTablesCache.insertRow(position);
    ++_rowsCount;

    const std::size_t chunkIndex = findChunk(position);
    TableChunk& chunk = _chunks[chunkIndex];
    const std::size_t relativeRow = chunk.getRelativeRow(position);
    if (relativeRow < chunk.rowDataOffsets.size()) {
        const std::uint64_t offset = chunk.rowDataOffsets[relativeRow];
        chunk.rowDataOffsets.insert(iteratorAt(chunk.rowDataOffsets, relativeRow), offset);
    } else {
        chunk.extendTo(relativeRow);
    }
    for (std::size_t later = chunkIndex + 1; later < _chunks.size(); ++later) {
        ++_chunks[later].startRowIndex;
    }

    if (!rowData.cells.empty()) {
        insertRowCells(rowData, position, chunk, relativeRow);
    }
    // Also without new cells: a chunk of one large row can be divided now that it has two.
    splitChunkIfNeeded(chunkIndex);
    if (rowData.style) {
        _rowStyles[getID(position)] = std::move(rowData.style);
    }
}

void Table::insertRowCells(RowData& rowData, RowIndex position, TableChunk& chunk, std::size_t relativeRow)
{
    ensureSize(RowIndex(0), rowData.cells.back().first + 1);
    std::vector<CellDataByCol> cells;
    cells.reserve(rowData.cells.size());
    for (auto& [column, cell] : rowData.cells) {
        const CellMergeProps& mergeProps = getCellMergeProps(cell.get());
        if (mergeProps != CellMergeProps()) {
            _mergedCellsCache.mergeCells({position, position + 1 + mergeProps.getCapturedRowsCount(), column,
                                          column + 1 + mergeProps.getCapturedColsCount()});
        }
        if (cell && cell->getPivotTable() != nullptr) {
            _pivotTablesCache.addPivot(position, column, cell->getPivotTable()->getSize());
        }
        cells.emplace_back(std::move(cell), getID(column));
    }
    chunk.data.insert(iteratorAt(chunk.data, chunk.getRelativeRowBoundaries(relativeRow).begin),
                      std::make_move_iterator(cells.begin()), std::make_move_iterator(cells.end()));
    chunk.shiftRows(relativeRow, static_cast<std::int64_t>(cells.size()));
}

void Table::insertRow(RowData rowData, IndexIncludingTombstones position)
{
    checkRowID(rowData);
    const auto live = _rowsTombstones.insertElement(position);
    insertRow(std::move(rowData), RowIndex(live.get()));
}

void Table::restoreRow(RowData rowData, IndexIncludingTombstones position)
{
    checkRowID(rowData);
    const auto live = _rowsTombstones.restoreElement(position);
    insertRow(std::move(rowData), RowIndex(live.get()));
}

RowData Table::removeRow(RowIndex index)
{
    RowData removed;
    removed.id = getID(index);
    if (index.get() >= _rowsCount) {
        return removed;
    }
    const std::size_t chunkIndex = findChunk(index);
    const std::size_t relativeRow = _chunks[chunkIndex].getRelativeRow(index);
    if (relativeRow < _chunks[chunkIndex].rowDataOffsets.size()) {
        removeRowCells(chunkIndex, relativeRow, removed);
    }
    removed.style = takeStyle(_rowStyles, removed.id);
    _rowIDContainer.remove(index.get());
    _mergedCellsCache.removeRow(index);
    _pivotTablesCache.removeRow(index);
    --_rowsCount;
    return removed;
}

void Table::removeRowCells(std::size_t chunkIndex, std::size_t relativeRow, RowData& removed)
{
    TableChunk& chunk = _chunks[chunkIndex];
    const TableChunk::Boundaries boundaries = chunk.getRelativeRowBoundaries(relativeRow);
    const auto begin = iteratorAt(chunk.data, boundaries.begin);
    const auto end = iteratorAt(chunk.data, boundaries.end);
    removed.cells.reserve(boundaries.end - boundaries.begin);
    for (auto cell = begin; cell != end; ++cell) {
        removed.cells.emplace_back(ColumnIndex(_colIDContainer.getIndex(cell->colID.get())),
                                   std::move(cell->cell));
    }
    chunk.data.erase(begin, end);
    chunk.shiftRows(relativeRow, -static_cast<std::int64_t>(removed.cells.size()));
    chunk.rowDataOffsets.erase(iteratorAt(chunk.rowDataOffsets, relativeRow));
    for (std::size_t later = chunkIndex + 1; later < _chunks.size(); ++later) {
        --_chunks[later].startRowIndex;
    }
    if (chunk.rowDataOffsets.empty() && _chunks.size() > 1) {
        _chunks.erase(iteratorAt(_chunks, chunkIndex));
    }
}

RowData Table::removeRow(IndexIncludingTombstones position)
{
    const auto live = convertRowIndex(position);
    if (!live) {
        return makeForgotten<RowData>(_rowsTombstones, position);
    }
    if (live->get() < _rowsCount) {
        _rowsTombstones.removeElement(position);
    }
    return removeRow(*live);
}

RowData Table::replaceRowWithTombstone(IndexIncludingTombstones position)
{
    const RowIndex live = getRequired(convertRowIndex(position));
    if (live.get() < _rowsCount) {
        _rowsTombstones.replaceWithTombstone(position, getID(live).get());
    }
    return removeRow(live);
}

// Columns

void Table::checkColumnID(const ColumnData& columnData) const
{
    if (_colIDContainer.containsInsertedID(columnData.id.get())) {
        throw BadRowColIDException(
            "Trying to insert column, but column with same ID is already present in a table.");
    }
}

void Table::insertColumn(ColumnData columnData, ColumnIndex position)
{
    QN_ASSERT(position.get() <= _colsCount);
    checkColumnID(columnData);

    _colIDContainer.insert(position.get(), columnData.id.get());
    _mergedCellsCache.insertColumn(position);
    _pivotTablesCache.insertColumn(position);
    ++_colsCount;
    if (columnData.style) {
        _columnStyles[getID(position)] = std::move(columnData.style);
    }
    for (auto& [row, cell] : columnData.cells) {
        setCell(row, position, std::move(cell));
    }
}

void Table::insertColumn(ColumnData columnData, IndexIncludingTombstones position)
{
    checkColumnID(columnData);
    const auto live = _colsTombstones.insertElement(position);
    insertColumn(std::move(columnData), ColumnIndex(live.get()));
}

void Table::restoreColumn(ColumnData columnData, IndexIncludingTombstones position)
{
    checkColumnID(columnData);
    const auto live = _colsTombstones.restoreElement(position);
    insertColumn(std::move(columnData), ColumnIndex(live.get()));
}

ColumnData Table::removeColumn(ColumnIndex index)
{
    ColumnData removed;
    removed.id = getID(index);
    if (index.get() >= _colsCount) {
        return removed;
    }
    for (TableChunk& chunk : _chunks) {
        removeColumnCells(chunk, index, removed);
    }
    removed.style = takeStyle(_columnStyles, removed.id);
    _colIDContainer.remove(index.get());
    _mergedCellsCache.removeColumn(index);
    _pivotTablesCache.removeColumn(index);
    --_colsCount;
    return removed;
}

/// Takes the cells out first and closes the gaps afterwards, so that each remaining cell of the chunk moves once.
void Table::removeColumnCells(TableChunk& chunk, ColumnIndex index, ColumnData& removed)
{
    std::vector<std::size_t> places;
    std::vector<std::uint64_t> offsets;
    offsets.reserve(chunk.rowDataOffsets.size());
    for (std::size_t row = 0; row < chunk.rowDataOffsets.size(); ++row) {
        const std::uint64_t offset = chunk.rowDataOffsets[row];
        offsets.push_back(offset - std::min<std::uint64_t>(offset, places.size()));
        const TableChunk::Boundaries boundaries = chunk.getRelativeRowBoundaries(row);
        if (boundaries.begin == boundaries.end) {
            continue;
        }
        const std::size_t place = chunk.getPlace(getLBCellIterator(chunk, boundaries, index));
        const bool isFurther = places.empty() || place > places.back();
        if (place != boundaries.end && chunk.data[place].colID == removed.id && isFurther) {
            places.push_back(place);
            removed.cells.emplace_back(chunk.startRowIndex + row, std::move(chunk.data[place].cell));
        }
    }
    if (places.empty()) {
        return;
    }
    auto target = iteratorAt(chunk.data, places.front());
    for (std::size_t gap = 0; gap < places.size(); ++gap) {
        const auto next =
            gap + 1 < places.size() ? iteratorAt(chunk.data, places[gap + 1]) : chunk.data.end();
        target = std::move(iteratorAt(chunk.data, places[gap] + 1), next, target);
    }
    chunk.data.erase(target, chunk.data.end());
    chunk.rowDataOffsets = std::move(offsets);
}

ColumnData Table::removeColumn(IndexIncludingTombstones position)
{
    const auto live = convertColIndex(position);
    if (!live) {
        return makeForgotten<ColumnData>(_colsTombstones, position);
    }
    if (live->get() < _colsCount) {
        _colsTombstones.removeElement(position);
    }
    return removeColumn(*live);
}

ColumnData Table::replaceColWithTombstone(IndexIncludingTombstones position)
{
    const ColumnIndex live = getRequired(convertColIndex(position));
    if (live.get() < _colsCount) {
        _colsTombstones.replaceWithTombstone(position, getID(live).get());
    }
    return removeColumn(live);
}

// Positions among tombstones

RowIndex Table::getRowIndexToInsertTo(IndexIncludingTombstones position) const
{
    return RowIndex(_rowsTombstones.getIndexToInsertTo(position).get());
}

ColumnIndex Table::getColIndexToInsertTo(IndexIncludingTombstones position) const
{
    return ColumnIndex(_colsTombstones.getIndexToInsertTo(position).get());
}

Table::IndexIncludingTombstones Table::convertRowIndex(RowIndex index) const
{
    return _rowsTombstones.convertIndex(CollaborationUtils::IndexExcludingTombstones(index.get()));
}

Table::IndexIncludingTombstones Table::convertColIndex(ColumnIndex index) const
{
    return _colsTombstones.convertIndex(CollaborationUtils::IndexExcludingTombstones(index.get()));
}

boost::optional<RowIndex> Table::convertRowIndex(IndexIncludingTombstones position) const
{
    const auto live = _rowsTombstones.convertIndex(position);
    return live ? boost::make_optional(RowIndex(live->get())) : boost::none;
}

boost::optional<ColumnIndex> Table::convertColIndex(IndexIncludingTombstones position) const
{
    const auto live = _colsTombstones.convertIndex(position);
    return live ? boost::make_optional(ColumnIndex(live->get())) : boost::none;
}

} // namespace QN::DOM
