#pragma once

#include <boost/unordered/unordered_set.hpp>

#include <cstddef>

#include "DOM/Tables/DOM_Table.h"
#include "DOM/Validator/DOM_RangeSweep.h"
#include "DOM/Validator/DOM_ValidatorWalk.h"

namespace QN::DOM {

struct ValidatorWalk::TableLevel {
    TableLevel(const Table& walkedTable, std::size_t size)
        : table(walkedTable), addressSize(size), position(walkedTable),
          mergedRanges(walkedTable.getMergedCellsCache().getMergedRanges()),
          pivotRanges(walkedTable.getPivotTablesCache().getPivotRanges())
    {
    }

    /// To the next cell that no earlier row holds as well. In a table that a file damaged, rows can share cells: each cell
    /// is walked to once, so that the walk stays linear.
    void goToNextCell();

    const Table& table;
    std::size_t addressSize;
    TableCellIt<const Table> position;
    MergedRangeSweep mergedRanges;
    PivotRangeSweep pivotRanges;
    /// Each area is checked at its first stored cell.
    boost::unordered_set<const TableRange*> checkedPivotRanges;
};

} // namespace QN::DOM
