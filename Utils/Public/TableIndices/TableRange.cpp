#include "Utils/Public/TableIndices/TableRange.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/NumCast.h"

namespace QN {

namespace {

template <class Index>
Index shifted(Index index, int offset)
{
    if (offset >= 0) {
        numCast<long>(index.get());
        index += static_cast<unsigned long>(offset);
        numCast<long>(index.get());
        return index;
    }
    return Index(numCast<unsigned long>(numCast<long>(index.get()) + offset));
}

} // namespace

TableRange::TableRange(RowIndex beginRow, RowIndex endRow, ColumnIndex beginColumn, ColumnIndex endColumn)
    : _beginRow(beginRow), _endRow(endRow), _beginColumn(beginColumn), _endColumn(endColumn)
{
    QN_CONTRACT(_beginRow < _endRow, "Utils/Public/TableIndices/TableRange", 229, "_beginRow < _endRow");
    QN_CONTRACT(_beginColumn < _endColumn, "Utils/Public/TableIndices/TableRange", 230,
                "_beginColumn < _endColumn");
}

TableRange::TableRange(const CellIndex& begin, const CellIndex& end)
    : TableRange(begin.getRow(), end.getRow(), begin.getColumn(), end.getColumn())
{
}

bool TableRange::contains(const TableRange& other) const
{
    return _beginRow <= other._beginRow && other._endRow <= _endRow && _beginColumn <= other._beginColumn &&
           other._endColumn <= _endColumn;
}

bool TableRange::contains(const CellIndex& cell) const
{
    return _beginRow <= cell.getRow() && cell.getRow() < _endRow && _beginColumn <= cell.getColumn() &&
           cell.getColumn() < _endColumn;
}

bool TableRange::intersects(const TableRange& other) const
{
    return _beginRow < other._endRow && other._beginRow < _endRow && _beginColumn < other._endColumn &&
           other._beginColumn < _endColumn;
}

void TableRange::addOffset(int rows, int columns)
{
    *this = TableRange(shifted(_beginRow, rows), shifted(_endRow, rows), shifted(_beginColumn, columns),
                       shifted(_endColumn, columns));
}

} // namespace QN
