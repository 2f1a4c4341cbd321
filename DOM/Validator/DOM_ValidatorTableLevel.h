#pragma once

#include <boost/unordered/unordered_set.hpp>

#include <cstddef>

#include "DOM/Tables/DOM_StoredCellWalk.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/Validator/DOM_RangeSweep.h"
#include "DOM/Validator/DOM_ValidatorWalk.h"

namespace QN::DOM {

struct ValidatorWalk::TableLevel {
    TableLevel(const Table& walkedTable, std::size_t size)
        : table(walkedTable), addressSize(size), cells(walkedTable),
          mergedRanges(walkedTable.getMergedCellsCache().getMergedRanges()),
          pivotRanges(walkedTable.getPivotTablesCache().getPivotRanges())
    {
    }

    const Table& table;
    std::size_t addressSize;
    StoredCellWalk<const Table> cells;
    MergedRangeSweep mergedRanges;
    PivotRangeSweep pivotRanges;
    /// Each area is checked at its first stored cell.
    boost::unordered_set<const TableRange*> checkedPivotRanges;
};

} // namespace QN::DOM
