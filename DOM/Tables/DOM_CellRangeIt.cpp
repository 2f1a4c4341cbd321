#include "DOM/Tables/DOM_CellRangeIt.h"

#include <algorithm>

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

template <bool IsConst>
CellRangeIt<IsConst>::CellRangeIt(TableType& table, const TableRange& range, bool atEnd)
    : _table(&table), _row(range.getBeginRow()), _column(range.getBeginColumn()), _range(range)
{
    if (atEnd) {
        setToEnd();
        return;
    }
    _chunkIndex = table.findChunk(_row);
    setDataIteratorsForRow();
    updateForNextValidCell();
}

template <bool IsConst>
typename CellRangeIt<IsConst>::CellType* CellRangeIt<IsConst>::operator*() const
{
    return _dataIndex < _rowEnd ? _table->_chunks[_chunkIndex].data[_dataIndex].cell.get() : nullptr;
}

template <bool IsConst>
CellRangeIt<IsConst>& CellRangeIt<IsConst>::operator++()
{
    if (!isAtEnd()) {
        ++_dataIndex;
        updateForNextValidCell();
    }
    return *this;
}

template <bool IsConst>
CellRangeIt<IsConst>& CellRangeIt<IsConst>::operator--()
{
    CellRangeIt earlier = *this;
    if (_dataIndex > _rowBegin) {
        --earlier._dataIndex;
    } else {
        earlier._row = std::min(_row, _table->getMaxRowIndex());
        do {
            if (!_table->goToPreviousStoredRow(earlier._chunkIndex, earlier._row) ||
                earlier._row < _range.getBeginRow()) {
                return *this;
            }
            earlier.setDataIteratorsForRow();
        } while (earlier._rowBegin == earlier._rowEnd);
        earlier._dataIndex = earlier._rowEnd - 1;
    }
    *this = earlier;
    const ColumnID id = _table->_chunks[_chunkIndex].data[_dataIndex].colID;
    _column = ColumnIndex(_table->_colIDContainer.getIndex(id.get()));
    return *this;
}

template <bool IsConst>
RowID CellRangeIt<IsConst>::getRowID() const
{
    return _table->getID(_row);
}

template <bool IsConst>
ColumnID CellRangeIt<IsConst>::getColID() const
{
    return _dataIndex < _rowEnd ? _table->_chunks[_chunkIndex].data[_dataIndex].colID
                                : _table->getID(_column);
}

template <bool IsConst>
CellInfo CellRangeIt<IsConst>::getCellInfo() const
{
    return {_table, **this, _row, _column, getRowID(), getColID()};
}

/// The part of the row that lies in the columns of the rectangle.
template <bool IsConst>
void CellRangeIt<IsConst>::setDataIteratorsForRow()
{
    const auto boundaries = _table->getRowBoundaries(_chunkIndex, _row);
    const TableChunk& chunk = _table->_chunks[_chunkIndex];
    _rowBegin = chunk.getPlace(_table->getLBCellIterator(chunk, boundaries, _range.getBeginColumn()));
    _rowEnd =
        chunk.getPlace(_table->getUBCellIterator(chunk, {_rowBegin, boundaries.end}, _range.getLastColumn()));
    _dataIndex = _rowBegin;
}

template <bool IsConst>
void CellRangeIt<IsConst>::updateForNextValidCell()
{
    while (_row < _table->getMaxRowIndex() && !isAtEnd()) {
        if (_dataIndex < _rowEnd) {
            const ColumnID id = _table->_chunks[_chunkIndex].data[_dataIndex].colID;
            _column = ColumnIndex(_table->_colIDContainer.getIndex(id.get()));
            return;
        }
        if (_table->goToNextStoredRow(_chunkIndex, _row)) {
            setDataIteratorsForRow();
        }
    }
    setToEnd();
}

template <bool IsConst>
void CellRangeIt<IsConst>::setToEnd()
{
    _row = _range.getEndRow();
    _column = _range.getBeginColumn();
    _chunkIndex = 0;
    _dataIndex = 0;
    _rowBegin = 0;
    _rowEnd = 0;
}

template class CellRangeIt<true>;
template class CellRangeIt<false>;

} // namespace QN::DOM
