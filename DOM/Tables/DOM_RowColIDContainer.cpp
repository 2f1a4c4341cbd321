#include "DOM/Tables/DOM_RowColIDContainer.h"

#include <algorithm>
#include <utility>

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/VectorUtils.h"

namespace QN::DOM {

namespace {

// Indices move by adding one of these: arithmetic of unsigned numbers wraps.
constexpr std::uint64_t Up = 1;
constexpr std::uint64_t Down = ~std::uint64_t{0};

constexpr auto IndexIsBelow = [](const auto& entry, std::uint64_t index) { return entry.index < index; };

} // namespace

QN_DEFINE_SERIALIZE(RowColIDContainer)

void RowColIDContainer::IndexIDRange::serialize(cereal::JSONOutputArchive& archive) const
{
    archive.member("index", index);
    archive.member("idRange", std::pair(firstID, lastID));
}

void RowColIDContainer::IndexIDRange::serialize(cereal::JSONInputArchive& archive)
{
    std::pair<std::uint64_t, std::uint64_t> idRange;
    archive.member("index", index);
    archive.member("idRange", idRange);
    std::tie(firstID, lastID) = idRange;
}

RowColIDContainer::RowColIDContainer(std::uint64_t count) : _predefinedIDsCount(count)
{
    reset();
}

void RowColIDContainer::reset()
{
    _predefinedIDs.assign(1, IndexIDRange{0, 1, _predefinedIDsCount});
    _insertedItems.clear();
    _idToIndex.clear();
}

bool RowColIDContainer::operator==(const RowColIDContainer& other) const
{
    return _predefinedIDs == other._predefinedIDs && _insertedItems == other._insertedItems &&
           _idToIndex == other._idToIndex && _predefinedIDsCount == other._predefinedIDsCount;
}

std::uint64_t RowColIDContainer::getID(std::uint64_t index) const
{
    if (!_insertedItems.empty()) {
        const std::size_t item = findItemLowerBound(index);
        if (item < _insertedItems.size() && _insertedItems[item].index == index) {
            return _insertedItems[item].id;
        }
    }
    auto rangeIt = findPredefinedIdLowerBound(index);
    if (rangeIt != _predefinedIDs.end() && rangeIt->index == index) {
        return rangeIt->firstID;
    }
    QN_ASSERT(rangeIt != _predefinedIDs.begin());
    --rangeIt;
    return index + rangeIt->firstID - rangeIt->index;
}

std::uint64_t RowColIDContainer::getIndex(std::uint64_t id) const
{
    if (id > _predefinedIDsCount) {
        const auto item = _idToIndex.find(id);
        return item == _idToIndex.end() ? _predefinedIDsCount : item->second;
    }
    auto range = std::lower_bound(
        _predefinedIDs.begin(), _predefinedIDs.end(), id,
        [](const IndexIDRange& entry, std::uint64_t value) { return entry.firstID < value; });
    if (range != _predefinedIDs.end() && range->firstID == id) {
        return range->index;
    }
    if (range == _predefinedIDs.begin()) {
        return _predefinedIDsCount;
    }
    --range;
    return range->lastID < id ? _predefinedIDsCount : id + range->index - range->firstID;
}

bool RowColIDContainer::containsInsertedID(std::uint64_t id) const
{
    return _idToIndex.contains(id);
}

void RowColIDContainer::insert(std::uint64_t index, std::uint64_t id)
{
    splitPredefinedWhenInsert(index, id);
    const std::size_t item = findItemLowerBound(index);
    shiftCachedIds(index, Up);
    shiftItems(item, Up);
    if (id > _predefinedIDsCount) {
        _idToIndex[id] = index;
        _insertedItems.insert(iteratorAt(_insertedItems, item), IndexID{index, id});
    }
}

void RowColIDContainer::remove(std::uint64_t index)
{
    const std::size_t item = findItemLowerBound(index);
    if (item < _insertedItems.size() && _insertedItems[item].index == index) {
        _idToIndex.erase(_insertedItems[item].id);
        _insertedItems.erase(iteratorAt(_insertedItems, item));
    }
    shiftItems(item, Down);
    shiftCachedIds(index, Down);
    splitPredefinedWhenRemove(index);
}

void RowColIDContainer::validate() const
{
    validate(stopAtContract);
}

void RowColIDContainer::validate(const ContractSink& sink) const
{
    for (const IndexID& indexId : _insertedItems) {
        QN_REPORT_UNLESS(indexId.id > _predefinedIDsCount, sink);
        const auto it = _idToIndex.find(indexId.id);
        QN_REPORT_UNLESS(it != _idToIndex.end() && it->second == indexId.index, sink);
    }
    for (const auto& [id, index] : _idToIndex) {
        QN_REPORT_UNLESS(id > _predefinedIDsCount, sink);
        const auto it = iteratorAt(_insertedItems, findItemLowerBound(index));
        QN_REPORT_UNLESS(it != _insertedItems.end() && it->index == index && it->id == id, sink);
    }
}

RowColIDContainer::Ranges::const_iterator
RowColIDContainer::findPredefinedIdLowerBound(std::uint64_t index) const
{
    return std::lower_bound(_predefinedIDs.begin(), _predefinedIDs.end(), index, IndexIsBelow);
}

std::size_t RowColIDContainer::findItemLowerBound(std::uint64_t index) const
{
    const auto item = std::lower_bound(_insertedItems.begin(), _insertedItems.end(), index, IndexIsBelow);
    return static_cast<std::size_t>(item - _insertedItems.begin());
}

/// The run that begins at `index`, or else the one before, or else the first. There must be a run.
std::size_t RowColIDContainer::findCoveringRange(std::uint64_t index) const
{
    auto range = findPredefinedIdLowerBound(index);
    const bool beginsHere = range != _predefinedIDs.end() && range->index == index;
    if (!beginsHere && range != _predefinedIDs.begin()) {
        --range;
    }
    return static_cast<std::size_t>(range - _predefinedIDs.begin());
}

void RowColIDContainer::splitPredefinedWhenInsert(std::uint64_t index, std::uint64_t id)
{
    std::size_t next = 0;
    if (!_predefinedIDs.empty()) {
        next = findCoveringRange(index);
        const IndexIDRange range = _predefinedIDs[next];
        if (index > range.index) {
            const std::uint64_t offset = index - range.index;
            if (offset <= range.lastID - range.firstID) {
                _predefinedIDs.insert(iteratorAt(_predefinedIDs, next + 1),
                                      IndexIDRange{index, range.firstID + offset, range.lastID});
                _predefinedIDs[next].lastID = range.firstID + offset - 1;
            }
            ++next;
        }
    }
    if (id <= _predefinedIDsCount) {
        _predefinedIDs.insert(iteratorAt(_predefinedIDs, next), IndexIDRange{index, id, id});
        ++next;
    }
    shiftPredefinedIDs(next, Up);
}

void RowColIDContainer::splitPredefinedWhenRemove(std::uint64_t index)
{
    if (_predefinedIDs.empty()) {
        return;
    }
    std::size_t next = findCoveringRange(index);
    const IndexIDRange range = _predefinedIDs[next];
    if (index == range.index) {
        if (range.firstID == range.lastID) {
            _predefinedIDs.erase(iteratorAt(_predefinedIDs, next));
        } else {
            ++_predefinedIDs[next].firstID;
            ++next;
        }
    } else if (index > range.index) {
        const std::uint64_t offset = index - range.index;
        if (offset <= range.lastID - range.firstID) {
            const IndexIDRange tail{index, range.firstID + offset + 1, range.lastID};
            if (tail.firstID <= tail.lastID) {
                _predefinedIDs.insert(iteratorAt(_predefinedIDs, next + 1), tail);
            }
            _predefinedIDs[next].lastID = range.firstID + offset - 1;
            next += tail.firstID <= tail.lastID ? 1 : 0;
        }
        ++next;
    }
    shiftPredefinedIDs(next, Down);
}

void RowColIDContainer::shiftPredefinedIDs(std::size_t firstRange, std::uint64_t delta)
{
    for (std::size_t range = firstRange; range < _predefinedIDs.size(); ++range) {
        _predefinedIDs[range].index += delta;
    }
}

void RowColIDContainer::shiftItems(std::size_t firstItem, std::uint64_t delta)
{
    for (std::size_t item = firstItem; item < _insertedItems.size(); ++item) {
        _insertedItems[item].index += delta;
    }
}

void RowColIDContainer::shiftCachedIds(std::uint64_t index, std::uint64_t delta)
{
    for (auto& entry : _idToIndex) {
        if (entry.second >= index) {
            entry.second += delta;
        }
    }
}

} // namespace QN::DOM
