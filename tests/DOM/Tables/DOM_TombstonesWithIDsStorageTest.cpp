#include "DOM/Tables/DOM_TombstonesWithIDsStorage.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TombstonesWithIDsStorageTest {
namespace {

using namespace QN::Test;
using Including = TombstonesWithIDsStorage::IndexIncludingTombstones;
using Excluding = TombstonesWithIDsStorage::IndexExcludingTombstones;

/// Tombstones at the positions 2 and 5 with the identifiers 30 and 60.
TombstonesWithIDsStorage makeStorage()
{
    TombstonesWithIDsStorage storage;
    storage.replaceWithTombstone(Including(2), 30);
    storage.replaceWithTombstone(Including(5), 60);
    return storage;
}

TEST(DOM_TombstonesWithIDsStorage, RemembersNothingByDefault)
{
    const TombstonesWithIDsStorage storage;
    EXPECT_EQ(storage.getTombstonesCount(), 0U);
    EXPECT_EQ(storage.getIndexByID(1), boost::none);
    EXPECT_EQ(storage.getIDByIndex(Including(0)), boost::none);
    EXPECT_EQ(storage.convertIndex(Including(7)), Excluding(7));
    EXPECT_EQ(storage.convertIndex(Excluding(7)), Including(7));
}

TEST(DOM_TombstonesWithIDsStorage, RemembersTheIdentifiersOfItsTombstones)
{
    const TombstonesWithIDsStorage storage = makeStorage();
    EXPECT_EQ(storage.getTombstonesCount(), 2U);
    EXPECT_EQ(storage.getIndexByID(30), Excluding(2));
    EXPECT_EQ(storage.getIndexByID(60), Excluding(4));
    EXPECT_EQ(storage.getIndexByID(31), boost::none);
    EXPECT_EQ(storage.getIDByIndex(Including(2)), 30UL);
    EXPECT_EQ(storage.getIDByIndex(Including(5)), 60UL);
    EXPECT_EQ(storage.getIDByIndex(Including(4)), boost::none);
}

TEST(DOM_TombstonesWithIDsStorage, NumbersThePositionsAmongItsTombstones)
{
    const TombstonesWithIDsStorage storage = makeStorage();
    EXPECT_EQ(storage.convertIndex(Including(2)), boost::none);
    EXPECT_EQ(storage.convertIndex(Including(3)), Excluding(2));
    EXPECT_EQ(storage.convertIndex(Excluding(4)), Including(6));
    EXPECT_EQ(storage.getIndexToInsertTo(Including(5)), Excluding(4));
}

TEST(DOM_TombstonesWithIDsStorage, AnswersTheLiveIndexOfEachChange)
{
    TombstonesWithIDsStorage storage;
    EXPECT_EQ(storage.replaceWithTombstone(Including(2), 30), Excluding(2));
    EXPECT_EQ(storage.insertElement(Including(4)), Excluding(3));
    EXPECT_EQ(storage.removeElement(Including(4)), Excluding(3));
    EXPECT_EQ(storage.restoreElement(Including(2)), Excluding(2));
}

TEST(DOM_TombstonesWithIDsStorage, MovesItsIdentifiersUpFromAnInsertion)
{
    TombstonesWithIDsStorage storage = makeStorage();
    storage.insertElement(Including(3));
    EXPECT_EQ(storage.getIDByIndex(Including(2)), 30UL);
    EXPECT_EQ(storage.getIDByIndex(Including(6)), 60UL);
    storage.insertElement(Including(2));
    EXPECT_EQ(storage.getIDByIndex(Including(3)), 30UL);
    EXPECT_EQ(storage.getIDByIndex(Including(7)), 60UL);
    EXPECT_EQ(storage.getIndexByID(60), Excluding(6));
}

TEST(DOM_TombstonesWithIDsStorage, MovesItsIdentifiersDownFromARemoval)
{
    TombstonesWithIDsStorage storage = makeStorage();
    storage.removeElement(Including(3));
    EXPECT_EQ(storage.getIDByIndex(Including(2)), 30UL);
    EXPECT_EQ(storage.getIDByIndex(Including(4)), 60UL);
}

TEST(DOM_TombstonesWithIDsStorage, ForgetsATombstoneThatIsRemoved)
{
    TombstonesWithIDsStorage storage = makeStorage();
    storage.removeElement(Including(2));
    EXPECT_EQ(storage.getIndexByID(30), boost::none);
    EXPECT_EQ(storage.getIDByIndex(Including(4)), 60UL);
    EXPECT_EQ(storage.getTombstonesCount(), 1U);
}

TEST(DOM_TombstonesWithIDsStorage, ForgetsATombstoneThatIsRestored)
{
    TombstonesWithIDsStorage storage = makeStorage();
    EXPECT_EQ(storage.restoreElement(Including(5)), Excluding(4));
    EXPECT_EQ(storage.getIndexByID(60), boost::none);
    EXPECT_EQ(storage.getTombstonesCount(), 1U);
    storage.restoreElement(Including(2));
    EXPECT_EQ(storage, TombstonesWithIDsStorage());
}

TEST(DOM_TombstonesWithIDsStorage, IsAsNewAfterItWasCleared)
{
    TombstonesWithIDsStorage storage = makeStorage();
    storage.clear();
    EXPECT_EQ(storage, TombstonesWithIDsStorage());
    EXPECT_EQ(storage.getIndexByID(30), boost::none);
}

TEST(DOM_TombstonesWithIDsStorage, DiffersByItsIdentifiers)
{
    TombstonesWithIDsStorage other;
    other.replaceWithTombstone(Including(2), 30);
    other.replaceWithTombstone(Including(5), 61);
    EXPECT_NE(other, makeStorage());
    EXPECT_EQ(makeStorage(), makeStorage());
    expectCopiesAndMoves(makeStorage());
}

TEST(DOM_TombstonesWithIDsStorage, WritesIdentifiersBareAndPositionsTagged)
{
    expectText(TombstonesWithIDsStorage(), R"({"_tombstones":{"_tombstones":[]},"_idToIndexMap":[]})");
    TombstonesWithIDsStorage storage;
    storage.replaceWithTombstone(Including(2), 5'000'000'000);
    expectText(storage, R"({"_tombstones":{"_tombstones":[{"_begin":{"_value":2},"_end":{"_value":3}}]},)"
                        R"("_idToIndexMap":[{"key":5000000000,"value":{"_value":2}}]})");
}

TEST(DOM_TombstonesWithIDsStorage, ReadsItsIdentifiersInAnyOrder)
{
    const std::string begin =
        R"({"_tombstones":{"_tombstones":[{"_begin":{"_value":2},"_end":{"_value":4}}]},)"
        R"("_idToIndexMap":)";
    const auto one = fromJson<TombstonesWithIDsStorage>(
        begin + R"([{"key":8,"value":{"_value":2}},{"key":9,"value":{"_value":3}}]})");
    const auto other = fromJson<TombstonesWithIDsStorage>(
        begin + R"([{"key":9,"value":{"_value":3}},{"key":8,"value":{"_value":2}}]})");
    EXPECT_EQ(one, other);
}

TEST(DOM_TombstonesWithIDsStorageDeathTest, StopsTheProcessAtAReversedRangeOfAFile)
{
    EXPECT_DEATH(fromJson<TombstonesWithIDsStorage>(
                     R"({"_tombstones":{"_tombstones":[{"_begin":{"_value":3},"_end":{"_value":3}}]},)"
                     R"("_idToIndexMap":[]})"),
                 R"(CollaborationUtils/Public/CU_IndexRange:77: _begin < _end)");
}

} // namespace
} // namespace QN::DOM::TombstonesWithIDsStorageTest
