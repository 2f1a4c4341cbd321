#pragma once

#include <boost/optional/optional.hpp>

#include <vector>

#include "DOM/Tables/DOM_TableRangeByID.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/TableRange.h"

/// Between rectangles by position and rectangles by identifier.

namespace QN::DOM {

class Table;

/// By the identifiers of the first and the last row and column.
DOM_API TableRangeByID convertToTableRangeByID(const Table& table, const TableRange& range);
DOM_API std::vector<TableRangeByID> convertToTableRangesByID(const Table& table,
                                                             const std::vector<TableRange>& ranges);

/// Where the rows and columns stand now. A range that lost rows or columns at its edges shrinks to the live ones inside
/// it; nothing when none is left or an identifier is unknown.
DOM_API boost::optional<TableRange> convertToTableRange(const Table& table, const TableRangeByID& range);
DOM_API std::vector<boost::optional<TableRange>>
convertToTableRanges(const Table& table, const std::vector<TableRangeByID>& ranges);

} // namespace QN::DOM
