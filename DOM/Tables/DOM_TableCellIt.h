#pragma once

#include <cstddef>
#include <type_traits>
#include <vector>

#include "DOM/Tables/DOM_CellInfo.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM {

struct TableChunk;
template <class TableType>
class StoredCellWalk;

/// Walks the stored cells of a whole table, row by row, and passes over runs of empty rows at once: a walk costs in
/// proportion to the stored cells. Any structural change of the table invalidates it.
///
/// A stored cell of a loaded table may be null. Where rows of a loaded table share cells, or begin before an earlier one, as
/// only a damaged file has it, the walk can come to a cell several times, and it can pass over a row with cells;
/// `StoredCellWalk` does neither.
template <class TableType>
class TableCellIt {
public:
    using CellType = std::conditional_t<std::is_const_v<TableType>, const Cell, Cell>;

    /// At the first stored cell, or behind the last one of a live row: at the first cell that a file stored behind the live
    /// rows, or else at the end.
    explicit TableCellIt(TableType& table, bool atEnd = false);
    /// At the first stored cell at or behind a position.
    TableCellIt(TableType& table, RowIndex row, ColumnIndex column);

    /// Null at the end.
    CellType* operator*() const;
    CellType* operator->() const { return **this; }

    TableCellIt& operator++();
    /// Stays where it is when there is no earlier stored cell.
    TableCellIt& operator--();
    /// To a later cell of this row by its place in the chunk, or to the next row with cells where the row has none there.
    /// Not backwards. Constant within the row.
    void goToDataIndex(std::size_t dataIndex);

    /// Two iterators over one table are equal when they stand at the same stored cell, or both at the end.
    bool operator==(const TableCellIt& other) const
    {
        return _row == other._row && _dataIndex == other._dataIndex;
    }
    bool operator<(const TableCellIt& other) const;

    TableType& getTable() const { return *_table; }
    RowIndex getRowIndex() const { return _row; }
    /// 0 at the end.
    ColumnIndex getColIndex() const;
    RowID getRowID() const;
    /// That of column 0 where there is no cell.
    ColumnID getColID() const;
    CellInfo getCellInfo() const;

    std::size_t getChunkIndex() const { return _chunkIndex; }
    /// The place of the cell among all cells of its chunk.
    std::size_t getDataIndex() const { return _dataIndex; }

    /// Whether no stored cell is left, in rows behind the live ones neither.
    bool isAtEnd() const { return _dataIndex >= _rowEnd; }

private:
    friend class StoredCellWalk<TableType>;

    const std::vector<TableChunk>& getChunks() const;
    void goToRow(std::size_t chunkIndex, RowIndex row);
    void setDataIteratorsForRow();
    void updateForNextValidCell();

    TableType* _table;
    RowIndex _row;
    std::size_t _chunkIndex = 0;
    std::size_t _dataIndex = 0;
    std::size_t _rowBegin = 0;
    std::size_t _rowEnd = 0;
};

extern template class DOM_API TableCellIt<Table>;
extern template class DOM_API TableCellIt<const Table>;

} // namespace QN::DOM
