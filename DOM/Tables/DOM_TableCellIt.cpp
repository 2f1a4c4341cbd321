#include "DOM/Tables/DOM_TableCellIt.h"

#include <algorithm>

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

template <class TableType>
TableCellIt<TableType>::TableCellIt(TableType& table, bool atEnd)
    : TableCellIt(table, atEnd ? table.getLiveRowsCount() : RowIndex(0), ColumnIndex(0))
{
}

template <class TableType>
TableCellIt<TableType>::TableCellIt(TableType& table, RowIndex row, ColumnIndex column)
    : _table(&table), _row(row), _chunkIndex(table.findChunk(row))
{
    setDataIteratorsForRow();
    const TableChunk& chunk = table._chunks[_chunkIndex];
    _dataIndex = chunk.getPlace(table.getLBCellIterator(chunk, {_rowBegin, _rowEnd}, column));
    updateForNextValidCell();
}

template <class TableType>
typename TableCellIt<TableType>::CellType* TableCellIt<TableType>::operator*() const
{
    return isAtEnd() ? nullptr : _table->_chunks[_chunkIndex].data[_dataIndex].cell.get();
}

template <class TableType>
TableCellIt<TableType>& TableCellIt<TableType>::operator++()
{
    goToDataIndex(_dataIndex + 1);
    return *this;
}

template <class TableType>
TableCellIt<TableType>& TableCellIt<TableType>::operator--()
{
    if (_dataIndex > _rowBegin) {
        --_dataIndex;
        return *this;
    }
    TableCellIt earlier = *this;
    earlier._row = std::min(_row, _table->getMaxRowIndex());
    while (_table->goToPreviousStoredRow(earlier._chunkIndex, earlier._row)) {
        earlier.setDataIteratorsForRow();
        if (earlier._rowBegin != earlier._rowEnd) {
            *this = earlier;
            _dataIndex = _rowEnd - 1;
            break;
        }
    }
    return *this;
}

template <class TableType>
void TableCellIt<TableType>::goToDataIndex(std::size_t dataIndex)
{
    if (isAtEnd()) {
        return;
    }
    _dataIndex = std::max(_dataIndex, dataIndex);
    if (isAtEnd()) {
        updateForNextValidCell();
    }
}

template <class TableType>
bool TableCellIt<TableType>::operator<(const TableCellIt& other) const
{
    return _row < other._row || (_row == other._row && _dataIndex < other._dataIndex);
}

template <class TableType>
ColumnIndex TableCellIt<TableType>::getColIndex() const
{
    return isAtEnd() ? ColumnIndex(0) : ColumnIndex(_table->_colIDContainer.getIndex(getColID().get()));
}

template <class TableType>
RowID TableCellIt<TableType>::getRowID() const
{
    return _table->getID(_row);
}

template <class TableType>
ColumnID TableCellIt<TableType>::getColID() const
{
    return isAtEnd() ? _table->getID(ColumnIndex(0)) : _table->_chunks[_chunkIndex].data[_dataIndex].colID;
}

template <class TableType>
CellInfo TableCellIt<TableType>::getCellInfo() const
{
    return {_table, **this, _row, getColIndex(), getRowID(), getColID()};
}

template <class TableType>
const std::vector<TableChunk>& TableCellIt<TableType>::getChunks() const
{
    return _table->_chunks;
}

/// To the beginning of a row, with cells or without.
template <class TableType>
void TableCellIt<TableType>::goToRow(std::size_t chunkIndex, RowIndex row)
{
    _chunkIndex = chunkIndex;
    _row = row;
    setDataIteratorsForRow();
}

template <class TableType>
void TableCellIt<TableType>::setDataIteratorsForRow()
{
    const auto boundaries = _table->getRowBoundaries(_chunkIndex, _row);
    _rowBegin = boundaries.begin;
    _rowEnd = boundaries.end;
    _dataIndex = _rowBegin;
}

/// Stops at a stored cell or at the end, which is behind all cells of the last chunk.
template <class TableType>
void TableCellIt<TableType>::updateForNextValidCell()
{
    while (_row < _table->getMaxRowIndex()) {
        if (_dataIndex < _rowEnd) {
            return;
        }
        if (_table->goToNextStoredRow(_chunkIndex, _row)) {
            setDataIteratorsForRow();
        }
    }
    _row = _table->getLiveRowsCount();
    _chunkIndex = _table->_chunks.size() - 1;
    _dataIndex = _table->_chunks.back().data.size();
    _rowBegin = _dataIndex;
    _rowEnd = _dataIndex;
}

template class TableCellIt<Table>;
template class TableCellIt<const Table>;

} // namespace QN::DOM
