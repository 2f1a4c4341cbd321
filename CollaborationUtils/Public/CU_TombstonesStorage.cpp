#include "CollaborationUtils/Public/CU_TombstonesStorage.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/Opt/OptUtils.h"

namespace QN::CollaborationUtils {

namespace {

/// No range can hold it, since no range could end behind it.
constexpr std::uint64_t LastPosition = std::numeric_limits<std::uint64_t>::max();

} // namespace

template <class AnyGaps>
auto TombstonesStorage::findGap(AnyGaps& gaps, std::uint64_t position)
{
    return std::partition_point(gaps.begin(), gaps.end(),
                                [&](const Gap& gap) { return gap.getEnd() <= position; });
}

std::uint64_t TombstonesStorage::getCountBefore(Gaps::const_iterator gap) const
{
    return gap == _gaps.begin() ? 0 : std::prev(gap)->count;
}

bool TombstonesStorage::isInside(Gaps::const_iterator gap, std::uint64_t position) const
{
    return gap != _gaps.end() && gap->live + getCountBefore(gap) <= position;
}

IndexIncludingTombstones TombstonesStorage::convertIndex(IndexExcludingTombstones index) const
{
    const auto gap = std::partition_point(
        _gaps.begin(), _gaps.end(), [&](const Gap& candidate) { return candidate.live <= index.get(); });
    return IndexIncludingTombstones(index.get() + getCountBefore(gap));
}

boost::optional<IndexExcludingTombstones>
TombstonesStorage::convertIndex(IndexIncludingTombstones index) const
{
    const auto gap = findGap(_gaps, index.get());
    if (isInside(gap, index.get())) {
        return boost::none;
    }
    return IndexExcludingTombstones(index.get() - getCountBefore(gap));
}

IndexExcludingTombstones TombstonesStorage::getIndexToInsertTo(IndexIncludingTombstones index) const
{
    const auto gap = findGap(_gaps, index.get());
    return IndexExcludingTombstones(isInside(gap, index.get()) ? gap->live
                                                               : index.get() - getCountBefore(gap));
}

std::uint64_t TombstonesStorage::getTombstonesCount() const
{
    return getCountBefore(_gaps.end());
}

std::vector<IndexRange<IndexIncludingTombstones>> TombstonesStorage::getRanges() const
{
    std::vector<IndexRange<IndexIncludingTombstones>> ranges;
    ranges.reserve(_gaps.size());
    std::uint64_t countBefore = 0;
    for (const Gap& gap : _gaps) {
        ranges.emplace_back(IndexIncludingTombstones(gap.live + countBefore),
                            IndexIncludingTombstones(gap.getEnd()));
        countBefore = gap.count;
    }
    return ranges;
}

IndexExcludingTombstones TombstonesStorage::insertElement(IndexIncludingTombstones index)
{
    makeRoomBehind(index.get());
    const IndexExcludingTombstones place = getIndexToInsertTo(index);
    auto gap = findGap(_gaps, index.get());
    if (isInside(gap, index.get())) {
        const std::uint64_t countBeforeIndex = index.get() - gap->live;
        if (countBeforeIndex != getCountBefore(gap)) {
            gap = std::next(_gaps.insert(gap, {gap->live, countBeforeIndex}));
        }
    }
    std::for_each(gap, _gaps.end(), [](Gap& moved) { ++moved.live; });
    return place;
}

IndexExcludingTombstones TombstonesStorage::removeElement(IndexIncludingTombstones index)
{
    const IndexExcludingTombstones place = getIndexToInsertTo(index);
    auto gap = findGap(_gaps, index.get());
    if (isInside(gap, index.get())) {
        std::for_each(gap, _gaps.end(), [](Gap& moved) { --moved.count; });
        if (gap->count == getCountBefore(gap)) {
            _gaps.erase(gap);
        }
        return place;
    }
    std::for_each(gap, _gaps.end(), [](Gap& moved) { --moved.live; });
    if (gap != _gaps.end() && gap != _gaps.begin() && std::prev(gap)->live == gap->live) {
        _gaps.erase(std::prev(gap));
    }
    return place;
}

IndexExcludingTombstones TombstonesStorage::replaceWithTombstone(IndexIncludingTombstones index)
{
    QN_ASSERT(index.get() != LastPosition);
    const IndexExcludingTombstones place = getRequired(convertIndex(index));
    auto gap = findGap(_gaps, index.get());
    const bool touchesPrevious = gap != _gaps.begin() && std::prev(gap)->live == place.get();
    const bool touchesNext = gap != _gaps.end() && gap->live == place.get() + 1;
    if (touchesPrevious && touchesNext) {
        gap = _gaps.erase(std::prev(gap));
    } else if (touchesPrevious) {
        ++std::prev(gap)->count;
    } else if (!touchesNext) {
        gap = std::next(_gaps.insert(gap, {place.get(), getCountBefore(gap) + 1}));
    }
    std::for_each(gap, _gaps.end(), [](Gap& moved) {
        --moved.live;
        ++moved.count;
    });
    return place;
}

IndexExcludingTombstones TombstonesStorage::restoreElement(IndexIncludingTombstones index)
{
    auto gap = findGap(_gaps, index.get());
    QN_ASSERT_MESSAGE(isInside(gap, index.get()), "isTombstone(index)", "Only a tombstone can be restored.");
    const std::uint64_t live = gap->live;
    const std::uint64_t countBeforeIndex = index.get() - live;
    const bool isFirst = countBeforeIndex == getCountBefore(gap);
    const bool isLast = countBeforeIndex + 1 == gap->count;
    if (isFirst && isLast) {
        gap = _gaps.erase(gap);
    } else if (isLast) {
        --gap->count;
        ++gap;
    } else if (!isFirst) {
        gap = std::next(_gaps.insert(gap, {live, countBeforeIndex}));
    }
    std::for_each(gap, _gaps.end(), [](Gap& moved) {
        ++moved.live;
        --moved.count;
    });
    return IndexExcludingTombstones(live);
}

/// Forgets the last tombstone if the positions behind the given one cannot move up any more.
void TombstonesStorage::makeRoomBehind(std::uint64_t position)
{
    if (_gaps.empty() || _gaps.back().getEnd() != LastPosition || position >= LastPosition) {
        return;
    }
    --_gaps.back().count;
    if (_gaps.back().count == getCountBefore(std::prev(_gaps.end()))) {
        _gaps.pop_back();
    }
}

void TombstonesStorage::serialize(cereal::JSONOutputArchive& archive) const
{
    archive.member("_tombstones", getRanges());
}

void TombstonesStorage::serialize(cereal::JSONInputArchive& archive)
{
    std::vector<IndexRange<IndexIncludingTombstones>> ranges;
    archive.member("_tombstones", ranges);
    std::sort(ranges.begin(), ranges.end(),
              [](const auto& left, const auto& right) { return left.getBegin() < right.getBegin(); });

    Gaps gaps;
    std::uint64_t end = 0;
    std::uint64_t count = 0;
    for (const auto& range : ranges) {
        const std::uint64_t begin = std::max(end, range.getBegin().get());
        if (begin >= range.getEnd().get()) {
            continue;
        }
        const std::uint64_t live = begin - count;
        end = range.getEnd().get();
        count = end - live;
        if (!gaps.empty() && gaps.back().live == live) {
            gaps.back().count = count;
        } else {
            gaps.push_back({live, count});
        }
    }
    _gaps = std::move(gaps);
}

} // namespace QN::CollaborationUtils
