#pragma once

#include <boost/optional/optional.hpp>

#include <vector>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/TableIndices/TableRange.h"

namespace QN::DOM {

/// The areas of the pivot tables of a sheet, in the order of adding. The upper left cell of each, its root, carries the
/// pivot table. The sheet keeps the cache in step.
class DOM_API PivotTablesCache {
public:
    /// Takes the place, at the end of the order, of an area with the same root. An empty size fails the contract
    /// "_beginRow < _endRow" or "_beginColumn < _endColumn".
    void addPivot(RowIndex row, ColumnIndex column, const Size2D<unsigned int>& size);

    /// Forgets the first area with that root, if there is one.
    void removePivot(RowIndex row, ColumnIndex column);

    /// The root of the first area that holds a cell.
    boost::optional<CellIndex> getPivotRoot(RowIndex row, ColumnIndex column) const;

    bool isPivotTablesInRange(const TableRange& range) const;

    /// The roots of all areas that share a cell with the range.
    std::vector<CellIndex> getPivotTablesInRange(const TableRange& range) const;

    /// True when the position cuts an area, that is when an insertion there is NOT possible without tearing a pivot
    /// table. The names promise the opposite; their sense is fixed.
    bool canInsertRow(RowIndex row) const;
    bool canInsertColumn(ColumnIndex column) const;

    // An area moves as a whole with its root. One that is rooted exactly on a removed row or column stays where it is.
    // An area that ends at the largest index of 64 bits does not move on.

    void insertRow(RowIndex row);
    void insertColumn(ColumnIndex column);
    void removeRow(RowIndex row);
    void removeColumn(ColumnIndex column);

    /// The last row and the last column of all areas; (0, 0) when there is none.
    CellIndex getBottomRightCellIndex() const;

    const std::vector<TableRange>& getPivotRanges() const { return _pivotRanges; }

    QN_VALUE(PivotTablesCache)

private:
    std::vector<TableRange> _pivotRanges;

    BOOST_DESCRIBE_CLASS(PivotTablesCache, (), (), (), (_pivotRanges))
};

} // namespace QN::DOM
