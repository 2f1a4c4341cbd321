#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "DOM/Tables/DOM_CellInfo.h"
#include "DOM/Tables/DOM_CellRangeIt.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "DOM/Tables/DOM_TableCellIt.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM {

/// Walks every position of an area row by row, stored or not, with the help of an iterator over its stored cells. The
/// area is the rectangle of a `CellRangeIt`, or the live rows and columns of the table of a `TableCellIt`. Positions
/// compare; an area without columns is at its end at once. Any structural change of the table invalidates it.
template <class Inner>
class LogicalCellIt {
public:
    using CellType = typename Inner::CellType;
    using TableType = std::remove_reference_t<decltype(std::declval<const Inner&>().getTable())>;

    /// At the first position of the area, or behind the last one. `inner` is an iterator over the area.
    explicit LogicalCellIt(Inner inner, bool atEnd = false);
    /// At a position of the area, with `inner` at the first stored cell at or behind it; at the end for a row behind the
    /// area. A column behind it counts on into the next rows with the first step.
    LogicalCellIt(Inner inner, RowIndex row, ColumnIndex column);

    /// The stored cell, or null where none is stored and at the end.
    CellType* operator*() const;
    CellType* operator->() const { return **this; }

    LogicalCellIt& operator++() { return advance(1); }
    /// Stays at the first position.
    LogicalCellIt& operator--();
    /// Stops at the end. Constant but for the stored cells that are passed.
    LogicalCellIt& advance(std::uint64_t count);

    bool operator==(const LogicalCellIt& other) const
    {
        return _row == other._row && _column == other._column;
    }
    bool operator<(const LogicalCellIt& other) const
    {
        return _row < other._row || (_row == other._row && _column < other._column);
    }

    TableType& getTable() const { return _inner.getTable(); }
    RowIndex getRowIndex() const { return _row; }
    ColumnIndex getColIndex() const { return _column; }
    RowID getRowID() const;
    ColumnID getColID() const;
    CellInfo getCellInfo() const;

    bool isAtEnd() const;

private:
    void setToEnd();
    void catchUp();
    void cacheInnerColumn() { _innerColumn = _inner.getColIndex(); }
    bool isInnerBefore() const;
    bool isInnerBehind() const;

    RowIndex _row;
    ColumnIndex _column;
    Inner _inner;
    ColumnIndex _innerColumn;
    /// Whether no stored cell is known to stand before it: it would look for one with each step backwards.
    bool _innerIsFirst = false;
};

extern template class DOM_API LogicalCellIt<TableCellIt<Table>>;
extern template class DOM_API LogicalCellIt<TableCellIt<const Table>>;
extern template class DOM_API LogicalCellIt<CellRangeIt<false>>;
extern template class DOM_API LogicalCellIt<CellRangeIt<true>>;

/// The first position of a walk and the one behind its last.
template <class It>
struct CellIterators {
    It first;
    It second;

    It begin() const { return first; }
    It end() const { return second; }
};

} // namespace QN::DOM
