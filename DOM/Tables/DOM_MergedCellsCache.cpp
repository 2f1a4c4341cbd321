#include "DOM/Tables/DOM_MergedCellsCache.h"

#include <algorithm>
#include <iterator>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "DOM/Tables/DOM_TableRangeMoves.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

CellIndex getRoot(const TableRange& range)
{
    return {range.getBeginRow(), range.getBeginColumn()};
}

constexpr auto IsRootedBefore = [](const TableRange& range, const CellIndex& cell) {
    return getRoot(range) < cell;
};
constexpr auto IsBeforeRoot = [](const CellIndex& cell, const TableRange& range) {
    return cell < getRoot(range);
};

} // namespace

QN_DEFINE_VALUE(MergedCellsCache)

void MergedCellsCache::mergeCells(const TableRange& range)
{
    const auto place =
        std::lower_bound(_mergedRanges.begin(), _mergedRanges.end(), getRoot(range), IsRootedBefore);
    if (place != _mergedRanges.end() && getRoot(*place) == getRoot(range)) {
        *place = range;
    } else {
        _mergedRanges.insert(place, range);
    }
}

void MergedCellsCache::unmergeCells(RowIndex row, ColumnIndex column)
{
    const TableRange key(row, RowIndex(MaxRows), column, ColumnIndex(MaxColumns));
    const auto place =
        std::lower_bound(_mergedRanges.begin(), _mergedRanges.end(), getRoot(key), IsRootedBefore);
    if (place != _mergedRanges.end() && getRoot(*place) == getRoot(key)) {
        _mergedRanges.erase(place);
    }
}

boost::optional<TableRange> MergedCellsCache::getMergedRange(RowIndex row, ColumnIndex column) const
{
    auto behind =
        std::upper_bound(_mergedRanges.begin(), _mergedRanges.end(), CellIndex(row, column), IsBeforeRoot);
    while (behind != _mergedRanges.begin()) {
        --behind;
        if (behind->getBeginColumn() <= column && column < behind->getEndColumn()) {
            return boost::make_optional(behind->getEndRow() > row, *behind);
        }
    }
    return boost::none;
}

boost::optional<CellIndex> MergedCellsCache::getMergedCellRoot(RowIndex row, ColumnIndex column) const
{
    const auto range = getMergedRange(row, column);
    if (!range || getRoot(*range) == CellIndex(row, column)) {
        return boost::none;
    }
    return getRoot(*range);
}

void MergedCellsCache::insertRow(RowIndex row)
{
    for (TableRange& range : _mergedRanges) {
        if (range.getBeginRow() >= row) {
            moveDown(range);
        }
    }
}

void MergedCellsCache::insertColumn(ColumnIndex column)
{
    for (TableRange& range : _mergedRanges) {
        if (range.getBeginColumn() >= column) {
            moveRight(range);
        }
    }
}

void MergedCellsCache::removeRow(RowIndex row)
{
    std::erase_if(_mergedRanges, [&](const TableRange& range) { return range.getBeginRow() == row; });
    for (TableRange& range : _mergedRanges) {
        if (range.getBeginRow() > row) {
            moveUp(range);
        }
    }
}

void MergedCellsCache::removeColumn(ColumnIndex column)
{
    std::erase_if(_mergedRanges, [&](const TableRange& range) { return range.getBeginColumn() == column; });
    for (TableRange& range : _mergedRanges) {
        if (range.getBeginColumn() > column) {
            moveLeft(range);
        }
    }
}

CellIndex MergedCellsCache::getBottomRightCellIndex() const
{
    CellIndex bottomRight;
    for (const TableRange& range : _mergedRanges) {
        bottomRight.setRow(std::max(bottomRight.getRow(), range.getLastRow()));
        bottomRight.setColumn(std::max(bottomRight.getColumn(), range.getLastColumn()));
    }
    return bottomRight;
}

} // namespace QN::DOM
