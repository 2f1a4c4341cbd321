#include "DOM/Tables/DOM_TombstonesWithIDsStorage.h"

#include <algorithm>

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

template <class Map, class Index>
auto findByIndex(Map& map, Index index)
{
    return std::find_if(map.begin(), map.end(), [&](const auto& entry) { return entry.second == index; });
}

} // namespace

QN_DEFINE_VALUE(TombstonesWithIDsStorage)

TombstonesWithIDsStorage::IndexExcludingTombstones
TombstonesWithIDsStorage::insertElement(IndexIncludingTombstones index)
{
    for (auto& entry : _idToIndexMap) {
        if (entry.second >= index) {
            ++entry.second;
        }
    }
    return _tombstones.insertElement(index);
}

TombstonesWithIDsStorage::IndexExcludingTombstones
TombstonesWithIDsStorage::removeElement(IndexIncludingTombstones index)
{
    for (auto entry = _idToIndexMap.begin(); entry != _idToIndexMap.end();) {
        if (entry->second == index) {
            entry = _idToIndexMap.erase(entry);
            continue;
        }
        if (entry->second > index) {
            --entry->second;
        }
        ++entry;
    }
    return _tombstones.removeElement(index);
}

TombstonesWithIDsStorage::IndexExcludingTombstones
TombstonesWithIDsStorage::replaceWithTombstone(IndexIncludingTombstones index, std::uint64_t id)
{
    _idToIndexMap[id] = index;
    return _tombstones.replaceWithTombstone(index);
}

TombstonesWithIDsStorage::IndexExcludingTombstones
TombstonesWithIDsStorage::restoreElement(IndexIncludingTombstones index)
{
    const auto entry = findByIndex(_idToIndexMap, index);
    if (entry != _idToIndexMap.end()) {
        _idToIndexMap.erase(entry);
    }
    return _tombstones.restoreElement(index);
}

boost::optional<TombstonesWithIDsStorage::IndexExcludingTombstones>
TombstonesWithIDsStorage::getIndexByID(std::uint64_t id) const
{
    const auto entry = _idToIndexMap.find(id);
    if (entry == _idToIndexMap.end()) {
        return boost::none;
    }
    return getIndexToInsertTo(entry->second);
}

boost::optional<std::uint64_t> TombstonesWithIDsStorage::getIDByIndex(IndexIncludingTombstones index) const
{
    const auto entry = findByIndex(_idToIndexMap, index);
    if (entry == _idToIndexMap.end()) {
        return boost::none;
    }
    return entry->first;
}

void TombstonesWithIDsStorage::clear()
{
    _tombstones.clear();
    _idToIndexMap.clear();
}

} // namespace QN::DOM
