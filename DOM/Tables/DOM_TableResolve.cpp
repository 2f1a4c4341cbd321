#include <boost/variant/get.hpp>

#include <algorithm>

#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/Assert.h"

/// References by position or identifier.

namespace QN::DOM {

namespace {

template <class Index, class ID>
boost::optional<Index> resolve(const Table& table, const TombstonesWithIDsStorage& tombstones,
                               const boost::variant<Index, ID>& reference, bool asEnd)
{
    if (const auto* const index = boost::get<Index>(&reference)) {
        return *index;
    }
    const ID id = boost::get<ID>(reference);
    if (const auto live = table.getIndex(id)) {
        return live;
    }
    const auto place = tombstones.getIndexByID(id.get());
    if (!place) {
        return boost::none;
    }
    if (!asEnd) {
        return Index(place->get());
    }
    return boost::make_optional(place->get() != 0, Index(place->get() - 1));
}

template <class Index>
boost::optional<std::pair<Index, Index>> makePair(const boost::optional<Index>& begin,
                                                  const boost::optional<Index>& last)
{
    if (!begin || !last || *last < *begin) {
        return boost::none;
    }
    return std::pair(*begin, *last);
}

template <class Index>
std::uint64_t getSize(const std::pair<Index, Index>& range)
{
    const Index begin = range.first;
    const Index last = range.second;
    QN_ASSERT(begin.get() <= last.get());
    return last.get() + 1 - begin.get();
}

} // namespace

boost::optional<RowIndex> Table::resolveRowIndex(const RowReference& reference, bool asEnd) const
{
    return resolve(*this, _rowsTombstones, reference, asEnd);
}

boost::optional<ColumnIndex> Table::resolveColIndex(const ColumnReference& reference, bool asEnd) const
{
    return resolve(*this, _colsTombstones, reference, asEnd);
}

boost::optional<Table::IndexPair<RowIndex>> Table::resolveRange(const RowReference& begin,
                                                                const RowReference& last) const
{
    return makePair(resolveRowIndex(begin, false), resolveRowIndex(last, true));
}

boost::optional<Table::IndexPair<ColumnIndex>> Table::resolveRange(const ColumnReference& begin,
                                                                   const ColumnReference& last) const
{
    return makePair(resolveColIndex(begin, false), resolveColIndex(last, true));
}

bool Table::isInRange(const TableRangeByID& range, const CellIndex& cell) const
{
    const auto beginColumn = resolveColIndex(range.getBeginColID(), false);
    if (!beginColumn || cell.getColumn() < *beginColumn) {
        return false;
    }
    const auto lastColumn = resolveColIndex(range.getLastColID(), true);
    if (!lastColumn || *lastColumn < cell.getColumn()) {
        return false;
    }
    const auto beginRow = resolveRowIndex(range.getBeginRowID(), false);
    if (!beginRow || cell.getRow() < *beginRow) {
        return false;
    }
    const auto lastRow = resolveRowIndex(range.getLastRowID(), true);
    return lastRow && cell.getRow() <= *lastRow;
}

bool Table::isInRanges(const std::vector<TableRangeByID>& ranges, const CellIndex& cell) const
{
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const TableRangeByID& range) { return isInRange(range, cell); });
}

boost::optional<Table::FrozenRange> Table::getFrozenRange() const
{
    if (!_headerRowsCols) {
        return boost::none;
    }
    FrozenRange frozen;
    if (const auto rowIDs = _headerRowsCols->getRowRange()) {
        if (const auto rows = resolveRange(RowReference(*rowIDs->begin), RowReference(*rowIDs->last))) {
            frozen.begin.setRow(rows->first);
            frozen.size.setHeight(getSize(*rows));
        }
    }
    if (const auto columnIDs = _headerRowsCols->getColRange()) {
        if (const auto columns =
                resolveRange(ColumnReference(*columnIDs->begin), ColumnReference(*columnIDs->last))) {
            frozen.begin.setColumn(columns->first);
            frozen.size.setWidth(getSize(*columns));
        }
    }
    return frozen;
}

} // namespace QN::DOM
