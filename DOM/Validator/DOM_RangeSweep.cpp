#include "DOM/Validator/DOM_RangeSweep.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace QN::DOM {

namespace {

CellIndex getUpperLeft(const TableRange& range)
{
    return {range.getBeginRow(), range.getBeginColumn()};
}

} // namespace

// Merged ranges

MergedRangeSweep::MergedRangeSweep(const std::vector<TableRange>& ranges)
    : _columns{{ColumnIndex(0), nullptr}}
{
    _ranges.reserve(ranges.size());
    std::transform(ranges.begin(), ranges.end(), std::back_inserter(_ranges),
                   [](const TableRange& range) { return &range; });
    std::stable_sort(_ranges.begin(), _ranges.end(), [](const TableRange* left, const TableRange* right) {
        return getUpperLeft(*left) < getUpperLeft(*right);
    });
}

const TableRange* MergedRangeSweep::find(RowIndex row, ColumnIndex column)
{
    for (; _entered < _ranges.size() && _ranges[_entered]->getBeginRow() <= row; ++_entered) {
        enter(*_ranges[_entered]);
    }
    const TableRange* const range = std::prev(_columns.upper_bound(column))->second;
    return range != nullptr && range->getEndRow() > row ? range : nullptr;
}

/// Takes over its columns. All ranges together leave at most two keys each.
void MergedRangeSweep::enter(const TableRange& range)
{
    const auto end = _columns.upper_bound(range.getEndColumn());
    const TableRange* const behind = std::prev(end)->second;
    _columns.erase(_columns.lower_bound(range.getBeginColumn()), end);
    _columns[range.getBeginColumn()] = &range;
    _columns[range.getEndColumn()] = behind;
}

// Pivot tables

PivotRangeSweep::PivotRangeSweep(const std::vector<TableRange>& ranges) : _ranges(ranges)
{
    _order.resize(ranges.size());
    std::iota(_order.begin(), _order.end(), std::size_t{0});
    std::stable_sort(_order.begin(), _order.end(), [&](std::size_t left, std::size_t right) {
        return ranges[left].getBeginRow() < ranges[right].getBeginRow();
    });
    _bounds.push_back(ColumnIndex(0));
    for (const TableRange& range : ranges) {
        _bounds.push_back(range.getBeginColumn());
        _bounds.push_back(range.getEndColumn());
    }
    std::sort(_bounds.begin(), _bounds.end());
    _bounds.erase(std::unique(_bounds.begin(), _bounds.end()), _bounds.end());
    _nodes.resize(2 * _bounds.size());
}

const TableRange* PivotRangeSweep::find(RowIndex row, ColumnIndex column)
{
    for (; _entered < _order.size() && _ranges[_order[_entered]].getBeginRow() <= row; ++_entered) {
        enter(_order[_entered]);
    }
    std::size_t first = _ranges.size();
    for (std::size_t node = getPosition(column) + _bounds.size(); node > 0; node /= 2) {
        Queue& queue = _nodes[node];
        while (!queue.empty() && _ranges[queue.top()].getEndRow() <= row) {
            queue.pop();
        }
        if (!queue.empty()) {
            first = std::min(first, queue.top());
        }
    }
    return first == _ranges.size() ? nullptr : &_ranges[first];
}

/// The last bound that is not behind a column.
std::size_t PivotRangeSweep::getPosition(ColumnIndex column) const
{
    const auto behind = std::upper_bound(_bounds.begin(), _bounds.end(), column);
    return static_cast<std::size_t>(behind - _bounds.begin()) - 1;
}

void PivotRangeSweep::enter(std::size_t range)
{
    std::size_t begin = getPosition(_ranges[range].getBeginColumn()) + _bounds.size();
    std::size_t end = getPosition(_ranges[range].getEndColumn()) + _bounds.size();
    for (; begin < end; begin /= 2, end /= 2) {
        if (begin % 2 == 1) {
            _nodes[begin++].push(range);
        }
        if (end % 2 == 1) {
            _nodes[--end].push(range);
        }
    }
}

} // namespace QN::DOM
