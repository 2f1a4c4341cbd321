#include "DOM/Tables/DOM_TableRangeUtils.h"

#include <algorithm>
#include <iterator>

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

TableRangeByID convertToTableRangeByID(const Table& table, const TableRange& range)
{
    return {{table.getID(range.getBeginRow()), table.getID(range.getLastRow())},
            {table.getID(range.getBeginColumn()), table.getID(range.getLastColumn())}};
}

std::vector<TableRangeByID> convertToTableRangesByID(const Table& table,
                                                     const std::vector<TableRange>& ranges)
{
    std::vector<TableRangeByID> converted;
    converted.reserve(ranges.size());
    std::transform(ranges.begin(), ranges.end(), std::back_inserter(converted),
                   [&](const TableRange& range) { return convertToTableRangeByID(table, range); });
    return converted;
}

boost::optional<TableRange> convertToTableRange(const Table& table, const TableRangeByID& range)
{
    const auto columns = table.resolveRange(Table::ColumnReference(range.getBeginColID()),
                                            Table::ColumnReference(range.getLastColID()));
    if (!columns) {
        return boost::none;
    }
    const auto rows = table.resolveRange(Table::RowReference(range.getBeginRowID()),
                                         Table::RowReference(range.getLastRowID()));
    if (!rows) {
        return boost::none;
    }
    return TableRange(rows->first, rows->second + 1, columns->first, columns->second + 1);
}

std::vector<boost::optional<TableRange>> convertToTableRanges(const Table& table,
                                                              const std::vector<TableRangeByID>& ranges)
{
    std::vector<boost::optional<TableRange>> converted;
    converted.reserve(ranges.size());
    std::transform(ranges.begin(), ranges.end(), std::back_inserter(converted),
                   [&](const TableRangeByID& range) { return convertToTableRange(table, range); });
    return converted;
}

} // namespace QN::DOM
