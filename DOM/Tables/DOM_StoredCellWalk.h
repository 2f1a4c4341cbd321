#pragma once

#include <cstddef>
#include <vector>

#include "DOM/Tables/DOM_TableCellIt.h"

namespace QN::DOM {

/// Which cells of a table that a file damaged a `StoredCellWalk` comes to. In a sound one they are the same.
enum class StoredCells {
    /// All that `getCell` could give.
    InAnyRow,
    /// Those that `TableCellIt` comes to. Where rows do not begin one behind the other, it can pass over some.
    OfTableIt
};

/// Walks the stored cells as `TableCellIt` does, but comes to each only once. In a table that a file damaged, rows can share
/// cells; a cell is given in the first row that holds it, of those that are walked over. So a walk costs in proportion to
/// the cells and rows, whatever the file says. The rows never fall.
///
/// Allocates nothing where the rows of each chunk hold its cells one after the other, as those of a sound table do, and
/// costs no more there than `TableCellIt` but one look at each row for `InAnyRow`. Any structural change of the table
/// invalidates it.
///
/// A stored cell of a loaded table may be null.
template <class TableType>
class StoredCellWalk {
public:
    using CellType = typename TableCellIt<TableType>::CellType;

    /// At the first stored cell.
    explicit StoredCellWalk(TableType& table, StoredCells which = StoredCells::InAnyRow);

    /// Whether no stored cell is left.
    bool isAtEnd() const { return _position.isAtEnd(); }

    /// Null at the end.
    CellType* operator*() const { return *_position; }

    StoredCellWalk& operator++();

    RowIndex getRowIndex() const { return _position.getRowIndex(); }
    /// 0 at the end.
    ColumnIndex getColIndex() const { return _position.getColIndex(); }

    /// Whether the rows so far hold the cells of each chunk one after the other. If so, no cell was left out that
    /// `TableCellIt` would have come to once more.
    bool isInOrder() const { return _wasInOrder && _isInOrder; }

private:
    void settle();
    bool goToUnvisited();
    bool goToUnvisitedInRows();
    void startChunk(std::size_t chunk);
    void stopKeepingOrder();
    void markVisited(std::size_t place);
    std::size_t findUnvisited(std::size_t place);

    TableCellIt<TableType> _position;
    StoredCells _which;
    std::size_t _chunk = 0;
    /// So many cells of the chunk, its first ones, are all that was visited, as long as they come in order.
    std::size_t _visitedInOrder = 0;
    bool _isInOrder = true;
    /// Of the chunks before.
    bool _wasInOrder = true;
    /// Whether each row of the chunk is looked at.
    bool _isInRows = false;
    /// Otherwise: for a visited cell of the chunk, a place up to which all cells from there on are visited; for another its
    /// own. Cells behind the last entry are not visited.
    std::vector<std::size_t> _next;
};

extern template class DOM_API StoredCellWalk<Table>;
extern template class DOM_API StoredCellWalk<const Table>;

} // namespace QN::DOM
