#include "DOM/Tables/DOM_StoredCellWalk.h"

#include <utility>

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

template <class TableType>
StoredCellWalk<TableType>::StoredCellWalk(TableType& table)
    : _position(table), _chunk(_position.getChunkIndex())
{
    skipVisited();
}

template <class TableType>
StoredCellWalk<TableType>& StoredCellWalk<TableType>::operator++()
{
    if (!isAtEnd()) {
        markVisited(_position.getDataIndex());
        ++_position;
        skipVisited();
    }
    return *this;
}

/// Stays where the position is at a cell that was not visited.
template <class TableType>
void StoredCellWalk<TableType>::skipVisited()
{
    while (!isAtEnd()) {
        if (_position.getChunkIndex() != _chunk) {
            _chunk = _position.getChunkIndex();
            _visitedInOrder = 0;
            _isInOrder = true;
            _next.clear();
        }
        const std::size_t place = _position.getDataIndex();
        if (_isInOrder && place == _visitedInOrder) {
            return;
        }
        if (_isInOrder) {
            _isInOrder = false;
            _next.assign(_visitedInOrder, _visitedInOrder);
        }
        const std::size_t unvisited = findUnvisited(place);
        if (unvisited == place) {
            return;
        }
        _position.goToDataIndex(unvisited);
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
