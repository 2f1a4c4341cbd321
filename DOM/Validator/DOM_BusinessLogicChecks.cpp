#include "DOM/Validator/DOM_BusinessLogicChecks.h"

#include <algorithm>
#include <vector>

#include "DOM/Tables/DOM_Table.h"
#include "DOM/Validator/DOM_RangeSweep.h"

namespace QN::DOM::BusinessLogicChecks {

namespace {

/// The columns of a range at which merged ranges begin and end, behind its own first one.
std::vector<ColumnIndex> getColumnsOfChange(const std::vector<TableRange>& mergedRanges,
                                            const TableRange& range)
{
    std::vector<ColumnIndex> columns{range.getBeginColumn()};
    for (const TableRange& merged : mergedRanges) {
        for (const ColumnIndex column : {merged.getBeginColumn(), merged.getEndColumn()}) {
            if (range.getBeginColumn() < column && column < range.getEndColumn()) {
                columns.push_back(column);
            }
        }
    }
    std::sort(columns.begin(), columns.end());
    return columns;
}

/// The first one whose first row stands in the range behind that of the range.
const TableRange* findFirstThatBeginsBelow(const std::vector<TableRange>& mergedRanges,
                                           const TableRange& range)
{
    const auto getRoot = [](const TableRange& merged) {
        return CellIndex(merged.getBeginRow(), merged.getBeginColumn());
    };
    const TableRange* first = nullptr;
    for (const TableRange& merged : mergedRanges) {
        if (merged.getBeginRow() > range.getBeginRow() && merged.intersects(range) &&
            (first == nullptr || getRoot(merged) < getRoot(*first))) {
            first = &merged;
        }
    }
    return first;
}

/// The range of the first merged cell. From a row to the next one, cells can only come to belong to a merged range where one
/// begins; within a row, only where one begins or another ends.
const TableRange* findFirstMergedRange(const std::vector<TableRange>& mergedRanges, const TableRange& range)
{
    MergedRangeSweep sweep(mergedRanges);
    for (const ColumnIndex column : getColumnsOfChange(mergedRanges, range)) {
        if (const TableRange* const merged = sweep.find(range.getBeginRow(), column)) {
            return merged;
        }
    }
    const TableRange* const below = findFirstThatBeginsBelow(mergedRanges, range);
    return below == nullptr
               ? nullptr
               : sweep.find(below->getBeginRow(), std::max(below->getBeginColumn(), range.getBeginColumn()));
}

} // namespace

bool isIntersectedAndNotContained(const TableRange& first, const TableRange& second)
{
    return first.intersects(second) && !first.contains(second);
}

bool isMergedRangeIntersectedAndOutOfRangeExists(const Table& table, const TableRange& range)
{
    const TableRange* const merged =
        findFirstMergedRange(table.getMergedCellsCache().getMergedRanges(), range);
    return merged != nullptr && isIntersectedAndNotContained(range, *merged);
}

} // namespace QN::DOM::BusinessLogicChecks
