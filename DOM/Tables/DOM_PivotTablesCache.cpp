#include "DOM/Tables/DOM_PivotTablesCache.h"

#include <algorithm>

#include "DOM/Tables/DOM_TableRangeMoves.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

CellIndex getAreaRoot(const TableRange& range)
{
    return {range.getBeginRow(), range.getBeginColumn()};
}

} // namespace

QN_DEFINE_VALUE(PivotTablesCache)

void PivotTablesCache::addPivot(RowIndex row, ColumnIndex column, const Size2D<unsigned int>& size)
{
    const TableRange range(row, row + size.getHeight(), column, column + size.getWidth());
    removePivot(row, column);
    _pivotRanges.push_back(range);
}

void PivotTablesCache::removePivot(RowIndex row, ColumnIndex column)
{
    const auto range =
        std::find_if(_pivotRanges.begin(), _pivotRanges.end(), [&](const TableRange& candidate) {
            return getAreaRoot(candidate) == CellIndex(row, column);
        });
    if (range != _pivotRanges.end()) {
        _pivotRanges.erase(range);
    }
}

boost::optional<CellIndex> PivotTablesCache::getPivotRoot(RowIndex row, ColumnIndex column) const
{
    for (const TableRange& range : _pivotRanges) {
        if (range.contains(CellIndex(row, column))) {
            return getAreaRoot(range);
        }
    }
    return boost::none;
}

bool PivotTablesCache::isPivotTablesInRange(const TableRange& range) const
{
    return std::any_of(_pivotRanges.begin(), _pivotRanges.end(),
                       [&](const TableRange& pivotRange) { return pivotRange.intersects(range); });
}

std::vector<CellIndex> PivotTablesCache::getPivotTablesInRange(const TableRange& range) const
{
    std::vector<CellIndex> roots;
    for (const TableRange& pivotRange : _pivotRanges) {
        if (pivotRange.intersects(range)) {
            roots.push_back(getAreaRoot(pivotRange));
        }
    }
    return roots;
}

bool PivotTablesCache::canInsertRow(RowIndex row) const
{
    return std::any_of(_pivotRanges.begin(), _pivotRanges.end(), [&](const TableRange& range) {
        return range.getBeginRow() < row && row <= range.getLastRow();
    });
}

bool PivotTablesCache::canInsertColumn(ColumnIndex column) const
{
    return std::any_of(_pivotRanges.begin(), _pivotRanges.end(), [&](const TableRange& range) {
        return range.getBeginColumn() < column && column <= range.getLastColumn();
    });
}

void PivotTablesCache::insertRow(RowIndex row)
{
    for (TableRange& range : _pivotRanges) {
        if (range.getBeginRow() >= row) {
            moveDown(range);
        }
    }
}

void PivotTablesCache::insertColumn(ColumnIndex column)
{
    for (TableRange& range : _pivotRanges) {
        if (range.getBeginColumn() >= column) {
            moveRight(range);
        }
    }
}

void PivotTablesCache::removeRow(RowIndex row)
{
    for (TableRange& range : _pivotRanges) {
        if (range.getBeginRow() > row) {
            moveUp(range);
        }
    }
}

void PivotTablesCache::removeColumn(ColumnIndex column)
{
    for (TableRange& range : _pivotRanges) {
        if (range.getBeginColumn() > column) {
            moveLeft(range);
        }
    }
}

CellIndex PivotTablesCache::getBottomRightCellIndex() const
{
    CellIndex bottomRight;
    for (const TableRange& range : _pivotRanges) {
        bottomRight.setRow(std::max(bottomRight.getRow(), range.getLastRow()));
        bottomRight.setColumn(std::max(bottomRight.getColumn(), range.getLastColumn()));
    }
    return bottomRight;
}

} // namespace QN::DOM
