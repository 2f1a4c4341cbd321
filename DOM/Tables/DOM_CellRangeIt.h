#pragma once

#include <cstddef>
#include <type_traits>

#include "DOM/Tables/DOM_CellInfo.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/TableIndices/TableRange.h"

namespace QN::DOM {

/// Walks the stored cells of a rectangle, row by row. Any structural change of the table invalidates it.
///
/// A stored cell of a loaded table may be null.
template <bool IsConst>
class CellRangeIt {
public:
    using TableType = std::conditional_t<IsConst, const Table, Table>;
    using CellType = std::conditional_t<IsConst, const Cell, Cell>;

    /// At the first stored cell of the rectangle, or behind the last one: at the end row and the begin column.
    CellRangeIt(TableType& table, const TableRange& range, bool atEnd = false);

    /// Null at the end.
    CellType* operator*() const;
    CellType* operator->() const { return **this; }

    CellRangeIt& operator++();
    /// Stays where it is when there is no earlier stored cell.
    CellRangeIt& operator--();

    /// Two iterators over one rectangle are equal when they stand at the same stored cell, or both at the end.
    bool operator==(const CellRangeIt& other) const
    {
        return _row == other._row && _dataIndex == other._dataIndex;
    }
    /// By row, then by column.
    bool operator<(const CellRangeIt& other) const
    {
        return _row < other._row || (_row == other._row && _column < other._column);
    }

    TableType& getTable() const { return *_table; }
    const TableRange& getRange() const { return _range; }
    RowIndex getRowIndex() const { return _row; }
    ColumnIndex getColIndex() const { return _column; }
    RowID getRowID() const;
    ColumnID getColID() const;
    CellInfo getCellInfo() const;

    /// Whether no stored cell is left.
    bool isAtEnd() const { return _row >= _range.getEndRow(); }

private:
    void setDataIteratorsForRow();
    void updateForNextValidCell();
    void setToEnd();

    TableType* _table;
    RowIndex _row;
    ColumnIndex _column;
    TableRange _range;
    std::size_t _chunkIndex = 0;
    std::size_t _dataIndex = 0;
    std::size_t _rowBegin = 0;
    std::size_t _rowEnd = 0;
};

extern template class DOM_API CellRangeIt<true>;
extern template class DOM_API CellRangeIt<false>;

} // namespace QN::DOM
