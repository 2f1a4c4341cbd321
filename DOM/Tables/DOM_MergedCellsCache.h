#pragma once

#include <boost/optional/optional.hpp>

#include <vector>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TableIndices/TableRange.h"

namespace QN::DOM {

/// The merged ranges of a table, as the merge properties of their root cells (the upper left ones) say. The table keeps
/// it in step.
/// Invariant: sorted by begin row and then by begin column, no two ranges with one root.
class DOM_API MergedCellsCache {
public:
    /// A range with the same root takes the new end.
    void mergeCells(const TableRange& range);

    /// Forgets the range that is rooted at a cell, if there is one. A cell outside the limits of a table fails the
    /// contract "_beginRow < _endRow" or "_beginColumn < _endColumn".
    void unmergeCells(RowIndex row, ColumnIndex column);

    /// The range that holds a cell. Of the ranges with this column, only the one rooted last at or before the cell is
    /// looked at. Linear in the number of ranges in the worst case.
    boost::optional<TableRange> getMergedRange(RowIndex row, ColumnIndex column) const;

    /// The root of the range that holds a cell; nothing for the root itself and for a cell outside all ranges.
    boost::optional<CellIndex> getMergedCellRoot(RowIndex row, ColumnIndex column) const;

    // A range moves as a whole with its root, and its size stays: an insertion or removal strictly inside neither widens
    // nor narrows it. When the row or column of the root goes, so does the range. A range that ends at the largest
    // index of 64 bits does not move on.

    void insertRow(RowIndex row);
    void insertColumn(ColumnIndex column);
    void removeRow(RowIndex row);
    void removeColumn(ColumnIndex column);

    /// The last row and the last column of all ranges; (0, 0) when there is none.
    CellIndex getBottomRightCellIndex() const;

    const std::vector<TableRange>& getMergedRanges() const { return _mergedRanges; }

    QN_VALUE(MergedCellsCache)

private:
    std::vector<TableRange> _mergedRanges;

    BOOST_DESCRIBE_CLASS(MergedCellsCache, (), (), (), (_mergedRanges))
};

} // namespace QN::DOM
