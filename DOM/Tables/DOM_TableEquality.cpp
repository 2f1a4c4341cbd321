#include <algorithm>
#include <vector>

#include "DOM/Tables/DOM_PivotTable.h"
#include "DOM/Tables/DOM_StoredCellWalk.h"
#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

using CollaborationUtils::WithTombstones;

using CellWalk = StoredCellWalk<const Table>;

/// Steps on to a cell that takes part in equality.
void skipEmptyCells(const Table& table, CellWalk& cells)
{
    while (!cells.isAtEnd() && (cells.getRowIndex() >= table.getLiveRowsCount() || *cells == nullptr ||
                                (*cells)->isEmpty(WithTombstones::Yes))) {
        ++cells;
    }
}

bool areRowsEqual(const std::vector<TableChunk>& left, const std::vector<TableChunk>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const TableChunk& chunk, const TableChunk& other) {
                          return chunk.rowDataOffsets == other.rowDataOffsets;
                      });
}

/// The styles by position.
template <class Styles>
auto getSortedStyles(const Table& table, const Styles& styles)
{
    using Style = typename Styles::mapped_type;
    std::vector<std::pair<std::uint64_t, const Style*>> sorted;
    sorted.reserve(styles.size());
    for (const auto& [id, style] : styles) {
        const auto index = table.getIndex(id);
        if (index && style) {
            sorted.emplace_back(index->get(), &style);
        }
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    return sorted;
}

template <class Styles>
bool areStylesEqualByPosition(const Table& table, const Styles& styles, const Table& otherTable,
                              const Styles& otherStyles)
{
    const auto sorted = getSortedStyles(table, styles);
    const auto otherSorted = getSortedStyles(otherTable, otherStyles);
    return std::equal(sorted.begin(), sorted.end(), otherSorted.begin(), otherSorted.end(),
                      [](const auto& left, const auto& right) {
                          return left.first == right.first &&
                                 areMembersDeeplyEqual(*left.second, *right.second);
                      });
}

bool areIDsEqual(const RowColIDContainer& left, const RowColIDContainer& right, std::uint64_t count)
{
    if (left.getPredefinedIDs() == right.getPredefinedIDs() &&
        left.getInsertedItems() == right.getInsertedItems()) {
        return true;
    }
    for (std::uint64_t index = 0; index < count; ++index) {
        if (left.getID(index) != right.getID(index)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool Table::areCellsEqual(const Table& other) const
{
    CellWalk left(*this, StoredCells::OfTableIt);
    CellWalk right(other, StoredCells::OfTableIt);
    while (true) {
        skipEmptyCells(*this, left);
        skipEmptyCells(other, right);
        if (left.isAtEnd() || right.isAtEnd()) {
            break;
        }
        if (left.getRowIndex() != right.getRowIndex() || left.getColIndex() != right.getColIndex() ||
            !(**left == **right)) {
            return false;
        }
        ++left;
        ++right;
    }
    // A cell that rows share was compared in one of them alone.
    return left.isAtEnd() && right.isAtEnd() &&
           ((left.isInOrder() && right.isInOrder()) || areRowsEqual(_chunks, other._chunks));
}

bool Table::areStylesEqual(const Table& other) const
{
    return areStylesEqualByPosition(*this, _rowStyles, other, other._rowStyles) &&
           areStylesEqualByPosition(*this, _columnStyles, other, other._columnStyles);
}

bool Table::areRowColIDsEqual(const Table& other) const
{
    return _rowsCount == other._rowsCount && _colsCount == other._colsCount &&
           areIDsEqual(_rowIDContainer, other._rowIDContainer, _rowsCount) &&
           areIDsEqual(_colIDContainer, other._colIDContainer, _colsCount);
}

bool Table::areEqualWithoutIDs(const Table& other) const
{
    return getUUID() == other.getUUID() && _name == other._name && _rowsCount == other._rowsCount &&
           _colsCount == other._colsCount && _rowsTombstones == other._rowsTombstones &&
           _colsTombstones == other._colsTombstones &&
           areMembersDeeplyEqual(_definedNames, other._definedNames) &&
           areMembersDeeplyEqual(_style, other._style) && _frames == other._frames && areStylesEqual(other) &&
           areCellsEqual(other) && _pivotTablesCache == other._pivotTablesCache;
}

bool Table::operator==(const Table& other) const
{
    return areEqualWithoutIDs(other) && areRowColIDsEqual(other);
}

} // namespace QN::DOM
