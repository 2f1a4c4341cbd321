#include "DOM/Validator/DOM_BusinessLogicChecks.h"

#include <boost/optional/optional.hpp>

#include <algorithm>

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM::BusinessLogicChecks {

namespace {

/// The smallest part of a range outside of which it has no merged cells.
boost::optional<TableRange> getPartWithMergedCells(const Table& table, const TableRange& range)
{
    boost::optional<TableRange> part;
    for (const TableRange& merged : table.getMergedCellsCache().getMergedRanges()) {
        if (!merged.intersects(range)) {
            continue;
        }
        const TableRange common(std::max(merged.getBeginRow(), range.getBeginRow()),
                                std::min(merged.getEndRow(), range.getEndRow()),
                                std::max(merged.getBeginColumn(), range.getBeginColumn()),
                                std::min(merged.getEndColumn(), range.getEndColumn()));
        part = !part ? common
                     : TableRange(std::min(part->getBeginRow(), common.getBeginRow()),
                                  std::max(part->getEndRow(), common.getEndRow()),
                                  std::min(part->getBeginColumn(), common.getBeginColumn()),
                                  std::max(part->getEndColumn(), common.getEndColumn()));
    }
    return part;
}

} // namespace

bool isIntersectedAndNotContained(const TableRange& first, const TableRange& second)
{
    return first.intersects(second) && !first.contains(second);
}

bool isMergedRangeIntersectedAndOutOfRangeExists(const Table& table, const TableRange& range)
{
    const auto part = getPartWithMergedCells(table, range);
    if (!part) {
        return false;
    }
    for (RowIndex row = part->getBeginRow(); row < part->getEndRow(); ++row) {
        for (ColumnIndex column = part->getBeginColumn(); column < part->getEndColumn(); ++column) {
            if (const auto merged = table.getMergedRange(row, column)) {
                return isIntersectedAndNotContained(range, *merged);
            }
        }
    }
    return false;
}

} // namespace QN::DOM::BusinessLogicChecks
