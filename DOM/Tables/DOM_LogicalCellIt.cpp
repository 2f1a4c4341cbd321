#include "DOM/Tables/DOM_LogicalCellIt.h"

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

namespace {

struct Area {
    RowIndex beginRow;
    RowIndex endRow;
    ColumnIndex beginColumn;
    std::uint64_t width;
};

template <class TableType>
Area getArea(const TableCellIt<TableType>& it)
{
    const Table& table = it.getTable();
    return {RowIndex(0), table.getLiveRowsCount(), ColumnIndex(0), table.getLiveColsCount().get()};
}

template <bool IsConst>
Area getArea(const CellRangeIt<IsConst>& it)
{
    const TableRange& range = it.getRange();
    return {range.getBeginRow(), range.getEndRow(), range.getBeginColumn(), range.getColumnCount()};
}

} // namespace

template <class Inner>
LogicalCellIt<Inner>::LogicalCellIt(Inner inner, bool atEnd)
    : LogicalCellIt(inner, getArea(inner).beginRow, getArea(inner).beginColumn)
{
    if (atEnd) {
        setToEnd();
    }
}

template <class Inner>
LogicalCellIt<Inner>::LogicalCellIt(Inner inner, RowIndex row, ColumnIndex column)
    : _row(row), _column(column), _inner(std::move(inner))
{
    cacheInnerColumn();
    if (getArea(_inner).width == 0 || isAtEnd()) {
        setToEnd();
    }
}

template <class Inner>
typename LogicalCellIt<Inner>::CellType* LogicalCellIt<Inner>::operator*() const
{
    const bool isStored = _inner.getRowIndex() == _row && _innerColumn == _column && !isAtEnd();
    return isStored ? *_inner : nullptr;
}

template <class Inner>
LogicalCellIt<Inner>& LogicalCellIt<Inner>::operator--()
{
    const Area area = getArea(_inner);
    if (area.width == 0) {
        return *this;
    }
    if (_column > area.beginColumn) {
        --_column;
    } else if (_row > area.beginRow) {
        --_row;
        _column = area.beginColumn + (area.width - 1);
    } else {
        return *this;
    }
    if (isInnerBehind() && !_innerIsFirst) {
        const Inner before = _inner;
        --_inner;
        _innerIsFirst = _inner == before;
        cacheInnerColumn();
    }
    return *this;
}

template <class Inner>
LogicalCellIt<Inner>& LogicalCellIt<Inner>::advance(std::uint64_t count)
{
    const Area area = getArea(_inner);
    if (area.width == 0 || isAtEnd()) {
        return *this;
    }
    // Rows and columns are added up apart, since a sum of positions could pass 64 bits.
    const std::uint64_t offset = (_column - area.beginColumn).get();
    const std::uint64_t leftInRow = area.width - offset % area.width;
    const std::uint64_t columns = count % area.width;
    const bool passesRowEnd = columns >= leftInRow;
    const std::uint64_t rows = count / area.width + offset / area.width + (passesRowEnd ? 1 : 0);
    _column = area.beginColumn + (passesRowEnd ? columns - leftInRow : area.width - leftInRow + columns);
    if (rows >= (area.endRow - _row).get()) {
        setToEnd();
    } else {
        _row += rows;
    }
    catchUp();
    return *this;
}

template <class Inner>
RowID LogicalCellIt<Inner>::getRowID() const
{
    return _inner.getTable().getID(_row);
}

template <class Inner>
ColumnID LogicalCellIt<Inner>::getColID() const
{
    return _inner.getTable().getID(_column);
}

template <class Inner>
CellInfo LogicalCellIt<Inner>::getCellInfo() const
{
    return {&_inner.getTable(), **this, _row, _column, getRowID(), getColID()};
}

template <class Inner>
bool LogicalCellIt<Inner>::isAtEnd() const
{
    return _row >= getArea(_inner).endRow;
}

template <class Inner>
void LogicalCellIt<Inner>::setToEnd()
{
    const Area area = getArea(_inner);
    _row = area.endRow;
    _column = area.beginColumn;
}

/// Takes the inner iterator to the first stored cell at or behind the position.
template <class Inner>
void LogicalCellIt<Inner>::catchUp()
{
    while (isInnerBefore() && !_inner.isAtEnd()) {
        ++_inner;
        _innerIsFirst = false;
        cacheInnerColumn();
    }
}

template <class Inner>
bool LogicalCellIt<Inner>::isInnerBefore() const
{
    return _inner.getRowIndex() < _row || (_inner.getRowIndex() == _row && _innerColumn < _column);
}

template <class Inner>
bool LogicalCellIt<Inner>::isInnerBehind() const
{
    return _row < _inner.getRowIndex() || (_row == _inner.getRowIndex() && _column < _innerColumn);
}

template class LogicalCellIt<TableCellIt<Table>>;
template class LogicalCellIt<TableCellIt<const Table>>;
template class LogicalCellIt<CellRangeIt<false>>;
template class LogicalCellIt<CellRangeIt<true>>;

} // namespace QN::DOM
