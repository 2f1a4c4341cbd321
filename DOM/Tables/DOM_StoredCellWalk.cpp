#include "DOM/Tables/DOM_StoredCellWalk.h"

#include <algorithm>
#include <utility>

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

template <class TableType>
StoredCellWalk<TableType>::StoredCellWalk(TableType& table, StoredCells which)
    : _position(table), _which(which)
{
    startChunk(0);
    settle();
}

template <class TableType>
StoredCellWalk<TableType>& StoredCellWalk<TableType>::operator++()
{
    if (!isAtEnd()) {
        markVisited(_position.getDataIndex());
        if (!_isInRows) {
            ++_position;
        }
        settle();
    }
    return *this;
}

/// Stays where the position is at a cell that was not visited.
template <class TableType>
void StoredCellWalk<TableType>::settle()
{
    while (_chunk < _position.getChunks().size()) {
        if (_isInRows ? goToUnvisitedInRows() : goToUnvisited()) {
            return;
        }
        startChunk(_chunk + 1);
    }
}

/// False, and the position at the first cell of a later chunk or at the end, when this one has none.
template <class TableType>
bool StoredCellWalk<TableType>::goToUnvisited()
{
    while (!isAtEnd() && _position.getChunkIndex() == _chunk) {
        const std::size_t place = _position.getDataIndex();
        if (_isInOrder && place == _visitedInOrder) {
            return true;
        }
        stopKeepingOrder();
        const std::size_t unvisited = findUnvisited(place);
        if (unvisited == place) {
            return true;
        }
        _position.goToDataIndex(unvisited);
    }
    return false;
}

/// The same row by row.
template <class TableType>
bool StoredCellWalk<TableType>::goToUnvisitedInRows()
{
    const RowIndex endRow = _position.getChunks()[_chunk].getEndRow();
    while (true) {
        const std::size_t unvisited = findUnvisited(_position._dataIndex);
        if (unvisited < _position._rowEnd) {
            _position._dataIndex = unvisited;
            return true;
        }
        const RowIndex next = _position.getRowIndex() + 1;
        if (next >= endRow) {
            _position._dataIndex = _position._rowEnd;
            _position.updateForNextValidCell();
            return false;
        }
        _position.goToRow(_chunk, next);
    }
}

/// The position is at the first cell that the iterator comes to in this chunk or behind it.
template <class TableType>
void StoredCellWalk<TableType>::startChunk(std::size_t chunk)
{
    _wasInOrder = isInOrder();
    _chunk = chunk;
    _visitedInOrder = 0;
    _isInOrder = true;
    _isInRows = false;
    _next.clear();

    const std::vector<TableChunk>& chunks = _position.getChunks();
    if (_which == StoredCells::OfTableIt || chunk == chunks.size()) {
        return;
    }
    const std::vector<std::uint64_t>& offsets = chunks[chunk].rowDataOffsets;
    if (!std::is_sorted(offsets.begin(), offsets.end())) {
        stopKeepingOrder();
        _isInRows = true;
        _position.goToRow(chunk, chunks[chunk].startRowIndex);
    }
}

template <class TableType>
void StoredCellWalk<TableType>::stopKeepingOrder()
{
    if (_isInOrder) {
        _isInOrder = false;
        _next.assign(_visitedInOrder, _visitedInOrder);
    }
}

template <class TableType>
void StoredCellWalk<TableType>::markVisited(std::size_t place)
{
    if (_isInOrder) {
        ++_visitedInOrder;
        return;
    }
    while (_next.size() <= place) {
        _next.push_back(_next.size());
    }
    _next[place] = place + 1;
}

/// The first place at or behind this one. All entries on the way to it are made to lead there at once.
template <class TableType>
std::size_t StoredCellWalk<TableType>::findUnvisited(std::size_t place)
{
    std::size_t unvisited = place;
    while (unvisited < _next.size() && _next[unvisited] != unvisited) {
        unvisited = _next[unvisited];
    }
    while (place != unvisited) {
        place = std::exchange(_next[place], unvisited);
    }
    return unvisited;
}

template class StoredCellWalk<Table>;
template class StoredCellWalk<const Table>;

} // namespace QN::DOM
