#pragma once

#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/TableRange.h"

namespace QN::DOM {

class Table;

/// Questions on ranges that an editor asks before it filters, sorts or moves one.
namespace BusinessLogicChecks {

/// Whether `second` sticks out of `first`: the two share cells, and `first` does not hold all of `second`.
DOM_API bool isIntersectedAndNotContained(const TableRange& first, const TableRange& second);

/// Whether the first merged range that is met in the range, row by row, sticks out of it. Later ones are not looked at,
/// even if they would give another answer. False without merged cells in the range. Takes n log n steps for the n merged
/// ranges of the table, however large the range is. Merged ranges that a file left unsorted are taken as if they were sorted.
DOM_API bool isMergedRangeIntersectedAndOutOfRangeExists(const Table& table, const TableRange& range);

} // namespace BusinessLogicChecks
} // namespace QN::DOM
