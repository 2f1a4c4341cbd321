#include "CollaborationUtils/Public/CU_TombstonesStorage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "Support/RoundTrip.h"

namespace QN::CollaborationUtils::CU_TombstonesStorageTest {
namespace {

using namespace QN::Test;

using Including = IndexIncludingTombstones;
using Excluding = IndexExcludingTombstones;
using Range = IndexRange<Including>;

constexpr std::uint64_t LastPosition = 18446744073709551615U;

TombstonesStorage makeStorage(const std::vector<std::uint64_t>& tombstones)
{
    TombstonesStorage storage;
    for (const std::uint64_t position : tombstones) {
        storage.replaceWithTombstone(Including(position));
    }
    return storage;
}

std::vector<Range> makeRanges(const std::vector<std::pair<std::uint64_t, std::uint64_t>>& bounds)
{
    std::vector<Range> ranges;
    for (const auto& [begin, end] : bounds) {
        ranges.emplace_back(Including(begin), Including(end));
    }
    return ranges;
}

std::string makeJson(const std::vector<std::pair<std::uint64_t, std::uint64_t>>& bounds)
{
    std::string json = R"({"_tombstones":[)";
    for (const auto& [begin, end] : bounds) {
        json += json.back() == '[' ? "" : ",";
        json += R"({"_begin":{"_value":)" + std::to_string(begin) + R"(},"_end":{"_value":)" +
                std::to_string(end) + "}}";
    }
    return json + "]}";
}

bool isTombstone(const TombstonesStorage& storage, std::uint64_t position)
{
    return !storage.convertIndex(Including(position));
}

Excluding getPlace(const TombstonesStorage& storage, std::uint64_t position)
{
    return storage.convertIndex(Including(position)).value();
}

TEST(CU_TombstonesStorage, BothConversionsAreTheIdentityWithoutTombstones)
{
    const TombstonesStorage storage;
    for (const std::uint64_t index : {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{100}, LastPosition}) {
        EXPECT_EQ(storage.convertIndex(Excluding(index)), Including(index));
        EXPECT_EQ(getPlace(storage, index), Excluding(index));
        EXPECT_EQ(storage.getIndexToInsertTo(Including(index)), Excluding(index));
    }
    EXPECT_EQ(storage.getTombstonesCount(), 0U);
}

TEST(CU_TombstonesStorage, NumbersTheElementsAroundADeletedOne)
{
    TombstonesStorage storage;
    EXPECT_EQ(storage.replaceWithTombstone(Including(1)), Excluding(1));

    EXPECT_EQ(getPlace(storage, 0), Excluding(0));
    EXPECT_TRUE(isTombstone(storage, 1));
    EXPECT_EQ(getPlace(storage, 2), Excluding(1));
    EXPECT_EQ(storage.convertIndex(Excluding(0)), Including(0));
    EXPECT_EQ(storage.convertIndex(Excluding(1)), Including(2));
    EXPECT_EQ(storage.getIndexToInsertTo(Including(1)), Excluding(1));
    EXPECT_EQ(storage.getIndexToInsertTo(Including(2)), Excluding(1));
    EXPECT_EQ(storage.getIndexToInsertTo(Including(3)), Excluding(2));
    EXPECT_EQ(storage.getTombstonesCount(), 1U);
}

TEST(CU_TombstonesStorage, KeepsAdjacentTombstonesInOneRangeWhateverTheOrderOfDeletion)
{
    const auto expected = makeRanges({{1, 4}});
    EXPECT_EQ(makeStorage({1, 2, 3}).getRanges(), expected);
    EXPECT_EQ(makeStorage({3, 2, 1}).getRanges(), expected);
    EXPECT_EQ(makeStorage({1, 3, 2}).getRanges(), expected);
    EXPECT_EQ(makeStorage({1, 2, 3}), makeStorage({3, 1, 2}));
}

TEST(CU_TombstonesStorage, DiffersFromAnotherSetOfTombstones)
{
    EXPECT_NE(makeStorage({1}), makeStorage({2}));
    EXPECT_NE(makeStorage({1}), makeStorage({1, 2}));
    EXPECT_NE(makeStorage({1}), TombstonesStorage());
}

TEST(CU_TombstonesStorage, InsertingOpensALivePositionAndMovesLaterTombstonesUp)
{
    TombstonesStorage storage = makeStorage({1, 4});
    EXPECT_EQ(storage.insertElement(Including(3)), Excluding(2));
    EXPECT_EQ(storage.getRanges(), makeRanges({{1, 2}, {5, 6}}));
    EXPECT_EQ(storage.insertElement(Including(0)), Excluding(0));
    EXPECT_EQ(storage.getRanges(), makeRanges({{2, 3}, {6, 7}}));
    EXPECT_EQ(storage.insertElement(Including(9)), Excluding(7));
    EXPECT_EQ(storage.getRanges(), makeRanges({{2, 3}, {6, 7}}));
}

TEST(CU_TombstonesStorage, InsertingAtATombstoneOpensThePositionBeforeIt)
{
    TombstonesStorage single = makeStorage({1});
    EXPECT_EQ(single.insertElement(Including(1)), Excluding(1));
    EXPECT_EQ(single.getRanges(), makeRanges({{2, 3}}));

    TombstonesStorage split = makeStorage({1, 2, 3});
    EXPECT_EQ(split.insertElement(Including(2)), Excluding(1));
    EXPECT_EQ(split.getRanges(), makeRanges({{1, 2}, {3, 5}}));
}

TEST(CU_TombstonesStorage, RemovingClosesAPositionWithoutATombstone)
{
    TombstonesStorage storage = makeStorage({1, 4});
    EXPECT_EQ(storage.removeElement(Including(2)), Excluding(1));
    EXPECT_EQ(storage.getRanges(), makeRanges({{1, 2}, {3, 4}}));
    EXPECT_EQ(storage.removeElement(Including(5)), Excluding(3));
    EXPECT_EQ(storage.getRanges(), makeRanges({{1, 2}, {3, 4}}));
}

TEST(CU_TombstonesStorage, RemovingTheElementBetweenTwoRangesMergesThem)
{
    TombstonesStorage storage = makeStorage({1, 3, 4, 8});
    EXPECT_EQ(storage.removeElement(Including(2)), Excluding(1));
    EXPECT_EQ(storage.getRanges(), makeRanges({{1, 4}, {7, 8}}));
}

TEST(CU_TombstonesStorage, RemovingATombstoneForgetsItAndAnswersThePlaceToInsertTo)
{
    TombstonesStorage storage = makeStorage({1, 2, 5});
    EXPECT_EQ(storage.removeElement(Including(2)), Excluding(1));
    EXPECT_EQ(storage.getRanges(), makeRanges({{1, 2}, {4, 5}}));
    EXPECT_EQ(storage.removeElement(Including(1)), Excluding(1));
    EXPECT_EQ(storage.getRanges(), makeRanges({{3, 4}}));
}

TEST(CU_TombstonesStorage, RestoringMakesATombstoneLiveAgain)
{
    TombstonesStorage storage = makeStorage({1, 2, 3, 6});
    EXPECT_EQ(storage.restoreElement(Including(2)), Excluding(1));
    EXPECT_EQ(storage.getRanges(), makeRanges({{1, 2}, {3, 4}, {6, 7}}));
    EXPECT_EQ(storage.restoreElement(Including(1)), Excluding(1));
    EXPECT_EQ(storage.restoreElement(Including(3)), Excluding(3));
    EXPECT_EQ(storage.restoreElement(Including(6)), Excluding(6));
    EXPECT_EQ(storage, TombstonesStorage());
}

TEST(CU_TombstonesStorage, RestoringUndoesADeletion)
{
    TombstonesStorage storage = makeStorage({2, 7});
    const TombstonesStorage before = storage;
    const Excluding erased = storage.replaceWithTombstone(Including(5));
    EXPECT_EQ(storage.restoreElement(Including(5)), erased);
    EXPECT_EQ(storage, before);
}

TEST(CU_TombstonesStorage, ClearForgetsAllTombstones)
{
    TombstonesStorage storage = makeStorage({1, 2, 5});
    storage.clear();
    EXPECT_EQ(storage, TombstonesStorage());
    EXPECT_EQ(storage.getTombstonesCount(), 0U);
    EXPECT_EQ(getPlace(storage, 1), Excluding(1));
}

TEST(CU_TombstonesStorage, WritesOneArrayOfRanges)
{
    EXPECT_EQ(toJson(TombstonesStorage()), R"({"_tombstones":[]})");
    EXPECT_EQ(toJson(makeStorage({1, 2, 5})), makeJson({{1, 3}, {5, 6}}));
}

TEST(CU_TombstonesStorage, Persists)
{
    expectPersists(TombstonesStorage());
    expectPersists(makeStorage({1, 2, 5}));
}

TEST(CU_TombstonesStorage, AFileMayStateRangesInAnyOrderAdjacentOrOverlapping)
{
    const auto load = [](const std::vector<std::pair<std::uint64_t, std::uint64_t>>& bounds) {
        return fromJson<TombstonesStorage>(makeJson(bounds));
    };
    EXPECT_EQ(load({{5, 6}, {1, 3}}), makeStorage({1, 2, 5}));
    EXPECT_EQ(load({{1, 2}, {2, 3}}), makeStorage({1, 2}));
    EXPECT_EQ(load({{1, 4}, {2, 3}}), makeStorage({1, 2, 3}));
    EXPECT_EQ(load({{1, 3}, {2, 5}, {2, 5}, {4, 6}}), makeStorage({1, 2, 3, 4, 5}));
    EXPECT_EQ(load({{0, 1}, {0, 2}}).getRanges(), makeRanges({{0, 2}}));
}

TEST(CU_TombstonesStorage, LoadingReplacesWhatWasThere)
{
    TombstonesStorage storage = makeStorage({1, 2, 5});
    loadJson(makeJson({{7, 8}}), storage);
    EXPECT_EQ(storage.getRanges(), makeRanges({{7, 8}}));
}

TEST(CU_TombstonesStorage, HoldsTombstonesUpToTheEndOf64Bits)
{
    TombstonesStorage storage =
        fromJson<TombstonesStorage>(makeJson({{2, 3}, {LastPosition - 2, LastPosition}}));
    EXPECT_EQ(storage.getTombstonesCount(), 3U);
    EXPECT_TRUE(isTombstone(storage, LastPosition - 1));
    EXPECT_EQ(getPlace(storage, LastPosition), Excluding(LastPosition - 3));
    expectRoundTrip(storage);
}

TEST(CU_TombstonesStorage, ForgetsATombstoneThatWouldLeave64Bits)
{
    TombstonesStorage storage =
        fromJson<TombstonesStorage>(makeJson({{2, 3}, {LastPosition - 2, LastPosition}}));
    EXPECT_EQ(storage.insertElement(Including(LastPosition)), Excluding(LastPosition - 3));
    EXPECT_EQ(storage.getTombstonesCount(), 3U);

    EXPECT_EQ(storage.insertElement(Including(0)), Excluding(0));
    EXPECT_EQ(storage.getRanges(), makeRanges({{3, 4}, {LastPosition - 1, LastPosition}}));
    EXPECT_EQ(storage.insertElement(Including(0)), Excluding(0));
    EXPECT_EQ(storage.getRanges(), makeRanges({{4, 5}}));

    TombstonesStorage full = fromJson<TombstonesStorage>(makeJson({{0, LastPosition}}));
    EXPECT_EQ(full.insertElement(Including(LastPosition - 1)), Excluding(0));
    EXPECT_EQ(full.getRanges(), makeRanges({{0, LastPosition - 1}}));
}

TEST(CU_TombstonesStorageDeathTest, DeletingATombstoneFailsTheContract)
{
    TombstonesStorage storage = makeStorage({1});
    EXPECT_DEATH(storage.replaceWithTombstone(Including(1)), "Utils/Public/Opt/OptUtils:73: opt");
}

TEST(CU_TombstonesStorageDeathTest, DeletingTheLastPositionOf64BitsFailsAContract)
{
    TombstonesStorage storage;
    EXPECT_DEATH(storage.replaceWithTombstone(Including(LastPosition)), "LastPosition");
}

TEST(CU_TombstonesStorageDeathTest, RestoringALivePositionFailsAContract)
{
    TombstonesStorage storage = makeStorage({1});
    EXPECT_DEATH(storage.restoreElement(Including(0)), "Only a tombstone can be restored");
    EXPECT_DEATH(storage.restoreElement(Including(2)), "Only a tombstone can be restored");
}

TEST(CU_TombstonesStorageDeathTest, AnEmptyRangeInAFileStopsTheProcess)
{
    EXPECT_DEATH(fromJson<TombstonesStorage>(makeJson({{1, 2}, {3, 3}})),
                 "CollaborationUtils/Public/CU_IndexRange:77: _begin < _end");
}

/// One flag for each position of the virtual sequence: whether it is a tombstone.
class Model {
public:
    std::uint64_t size() const { return _isTombstone.size(); }
    bool isTombstone(std::uint64_t index) const { return _isTombstone[index]; }
    std::uint64_t countLiveBefore(std::uint64_t index) const
    {
        return static_cast<std::uint64_t>(std::count(_isTombstone.begin(), at(index), false));
    }
    void insert(std::uint64_t index) { _isTombstone.insert(at(index), false); }
    void remove(std::uint64_t index) { _isTombstone.erase(at(index)); }
    void set(std::uint64_t index, bool isTombstone) { _isTombstone[index] = isTombstone; }
    void clear()
    {
        _isTombstone.erase(std::remove(_isTombstone.begin(), _isTombstone.end(), true), _isTombstone.end());
    }

private:
    std::vector<bool>::const_iterator at(std::uint64_t index) const
    {
        return _isTombstone.begin() + static_cast<std::ptrdiff_t>(index);
    }

    std::vector<bool> _isTombstone = std::vector<bool>(20, false);
};

void expectSame(const TombstonesStorage& storage, const Model& model)
{
    std::uint64_t live = 0;
    for (std::uint64_t index = 0; index < model.size(); ++index) {
        EXPECT_EQ(storage.getIndexToInsertTo(Including(index)), Excluding(live));
        if (model.isTombstone(index)) {
            EXPECT_TRUE(isTombstone(storage, index));
        } else {
            EXPECT_EQ(getPlace(storage, index), Excluding(live));
            EXPECT_EQ(storage.convertIndex(Excluding(live)), Including(index));
            ++live;
        }
    }
    EXPECT_EQ(storage.getTombstonesCount(), model.size() - live);
    EXPECT_EQ(getPlace(storage, model.size()), Excluding(live));

    std::uint64_t count = 0;
    std::uint64_t previousEnd = 0;
    for (const Range& range : storage.getRanges()) {
        EXPECT_TRUE(range.getBegin().get() > previousEnd || count == 0) << "ranges touch";
        previousEnd = range.getEnd().get();
        count += range.getEnd().get() - range.getBegin().get();
    }
    EXPECT_EQ(count, storage.getTombstonesCount());
}

TEST(CU_TombstonesStorage, AgreesWithAModelAfterEachOfManyRandomOperations)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        TombstonesStorage storage;
        Model model;
        for (int step = 0; step < 200 && !HasFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            const std::uint64_t index = random() % model.size();
            switch (random() % 16) {
            case 0:
                EXPECT_EQ(storage.insertElement(Including(index)), Excluding(model.countLiveBefore(index)));
                model.insert(index);
                break;
            case 1:
                if (model.size() > 2) {
                    EXPECT_EQ(storage.removeElement(Including(index)),
                              Excluding(model.countLiveBefore(index)));
                    model.remove(index);
                }
                break;
            case 2:
                if (random() % 8 == 0 && model.countLiveBefore(model.size()) > 2) {
                    storage.clear();
                    model.clear();
                }
                break;
            case 3:
                expectRoundTrip(storage);
                break;
            default: {
                const Excluding place(model.countLiveBefore(index));
                const bool isTombstone = model.isTombstone(index);
                EXPECT_EQ(isTombstone ? storage.restoreElement(Including(index))
                                      : storage.replaceWithTombstone(Including(index)),
                          place);
                model.set(index, !isTombstone);
            }
            }
            expectSame(storage, model);
        }
    }
}

} // namespace
} // namespace QN::CollaborationUtils::CU_TombstonesStorageTest
