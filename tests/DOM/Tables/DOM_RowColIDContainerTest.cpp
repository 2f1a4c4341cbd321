#include "DOM/Tables/DOM_RowColIDContainer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::RowColIDContainerTest {
namespace {

using namespace QN::Test;
using Ranges = std::vector<std::tuple<std::uint64_t, std::uint64_t, std::uint64_t>>;
using Items = std::vector<std::pair<std::uint64_t, std::uint64_t>>;

constexpr std::uint64_t Count = 100;
constexpr std::uint64_t Inserted = 5'000'000'000;

/// Index, first and last identifier of each run.
Ranges getRanges(const RowColIDContainer& container)
{
    Ranges ranges;
    for (const auto& range : container.getPredefinedIDs()) {
        ranges.emplace_back(range.index, range.firstID, range.lastID);
    }
    return ranges;
}

Items getItems(const RowColIDContainer& container)
{
    Items items;
    for (const auto& item : container.getInsertedItems()) {
        items.emplace_back(item.index, item.id);
    }
    return items;
}

TEST(DOM_RowColIDContainer, GivesEachPositionThePredefinedIdentifierOneAboveIt)
{
    const RowColIDContainer container(Count);
    EXPECT_EQ(container.getID(0), 1U);
    EXPECT_EQ(container.getID(Count - 1), Count);
    EXPECT_EQ(container.getIndex(1), 0U);
    EXPECT_EQ(container.getIndex(Count), Count - 1);
    EXPECT_EQ(container.getPredefinedIDsCount(), Count);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, Count}}));
    EXPECT_EQ(getItems(container), Items());
}

TEST(DOM_RowColIDContainer, AnswersItsCountForIdentifiersThatAreNotLive)
{
    const RowColIDContainer container(Count);
    EXPECT_EQ(container.getIndex(0), Count);
    EXPECT_EQ(container.getIndex(Count + 1), Count);
    EXPECT_EQ(container.getIndex(Inserted), Count);
}

TEST(DOM_RowColIDContainer, CountsOnPastItsLastIdentifier)
{
    const RowColIDContainer container(Count);
    EXPECT_EQ(container.getID(Count), Count + 1);
    EXPECT_EQ(container.getID(Count + 5), Count + 6);
}

TEST(DOM_RowColIDContainer, CutsARunWhereAnIdentifierIsInserted)
{
    RowColIDContainer container(Count);
    container.insert(5, Inserted);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {6, 6, Count}}));
    EXPECT_EQ(getItems(container), (Items{{5, Inserted}}));
    EXPECT_EQ(container.getID(4), 5U);
    EXPECT_EQ(container.getID(5), Inserted);
    EXPECT_EQ(container.getID(6), 6U);
    EXPECT_EQ(container.getIndex(5), 4U);
    EXPECT_EQ(container.getIndex(Inserted), 5U);
    EXPECT_EQ(container.getIndex(6), 6U);
    container.validate();
}

TEST(DOM_RowColIDContainer, MovesTheFirstRunWhenAnIdentifierIsInsertedBeforeIt)
{
    RowColIDContainer container(Count);
    container.insert(0, Inserted);
    EXPECT_EQ(getRanges(container), (Ranges{{1, 1, Count}}));
    container.insert(0, Inserted + 1);
    EXPECT_EQ(getRanges(container), (Ranges{{2, 1, Count}}));
    EXPECT_EQ(getItems(container), (Items{{0, Inserted + 1}, {1, Inserted}}));
    EXPECT_EQ(container.getIndex(1), 2U);
    container.validate();
}

TEST(DOM_RowColIDContainer, CutsNoRunWhenAnIdentifierIsInsertedDirectlyBehindIt)
{
    RowColIDContainer container(Count);
    container.insert(5, Inserted);
    container.insert(5, Inserted + 1);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {7, 6, Count}}));
    EXPECT_EQ(getItems(container), (Items{{5, Inserted + 1}, {6, Inserted}}));
    container.insert(7, Inserted + 2);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {8, 6, Count}}));
    EXPECT_EQ(getItems(container), (Items{{5, Inserted + 1}, {6, Inserted}, {7, Inserted + 2}}));
    container.validate();
}

TEST(DOM_RowColIDContainer, ShortensItsRunWhenTheFirstPositionIsRemoved)
{
    RowColIDContainer container(Count);
    container.remove(0);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 2, Count}}));
    EXPECT_EQ(container.getID(0), 2U);
    EXPECT_EQ(container.getIndex(1), Count);
    EXPECT_EQ(container.getIndex(2), 0U);
}

TEST(DOM_RowColIDContainer, CutsAnIdentifierOutOfTheMiddleOfARun)
{
    RowColIDContainer container(Count);
    container.remove(5);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {5, 7, Count}}));
    EXPECT_EQ(container.getIndex(6), Count);
    EXPECT_EQ(container.getIndex(7), 5U);
    EXPECT_EQ(container.getID(5), 7U);
}

TEST(DOM_RowColIDContainer, LeavesNoTailBehindTheLastIdentifierOfARun)
{
    RowColIDContainer container(Count);
    container.insert(5, Inserted);
    container.remove(4);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 4}, {5, 6, Count}}));
    EXPECT_EQ(getItems(container), (Items{{4, Inserted}}));
}

TEST(DOM_RowColIDContainer, ErasesARunThatLosesItsOnlyIdentifier)
{
    RowColIDContainer container(Count);
    container.insert(1, Inserted);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 1}, {2, 2, Count}}));
    container.remove(0);
    EXPECT_EQ(getRanges(container), (Ranges{{1, 2, Count}}));
    EXPECT_EQ(container.getID(0), Inserted);
    EXPECT_EQ(container.getID(1), 2U);
    container.validate();
}

TEST(DOM_RowColIDContainer, LeavesTwoRunsApartWhenAnInsertedPositionIsRemoved)
{
    RowColIDContainer container(Count);
    container.insert(5, Inserted);
    container.remove(5);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {5, 6, Count}}));
    EXPECT_EQ(getItems(container), Items());
    EXPECT_FALSE(container.containsInsertedID(Inserted));
    for (std::uint64_t index = 0; index < Count; ++index) {
        EXPECT_EQ(container.getID(index), index + 1);
        EXPECT_EQ(container.getIndex(index + 1), index);
    }
}

TEST(DOM_RowColIDContainer, TakesAPredefinedIdentifierBackAsARunOfItsOwn)
{
    RowColIDContainer container(Count);
    container.remove(5);
    container.insert(5, 6);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {5, 6, 6}, {6, 7, Count}}));
    EXPECT_EQ(getItems(container), Items());
    EXPECT_EQ(container.getIndex(6), 5U);
    container.validate();
}

TEST(DOM_RowColIDContainer, TakesAPredefinedIdentifierBackAmongInsertedOnes)
{
    RowColIDContainer container(Count);
    container.remove(5);
    container.insert(5, Inserted);
    container.insert(5, 6);
    EXPECT_EQ(getRanges(container), (Ranges{{0, 1, 5}, {5, 6, 6}, {7, 7, Count}}));
    EXPECT_EQ(getItems(container), (Items{{6, Inserted}}));
    EXPECT_EQ(container.getIndex(Inserted), 6U);
    EXPECT_EQ(container.getIndex(7), 7U);
    container.validate();
}

TEST(DOM_RowColIDContainer, MayNotFindAPredefinedIdentifierThatReturnsOutOfOrder)
{
    RowColIDContainer container(Count);
    container.remove(5);
    container.insert(20, 6);
    EXPECT_EQ(container.getID(20), 6U);
    EXPECT_EQ(container.getIndex(6), Count);
}

TEST(DOM_RowColIDContainer, ContainsInsertedIdentifiersAlone)
{
    RowColIDContainer container(Count);
    container.insert(3, Inserted);
    EXPECT_TRUE(container.containsInsertedID(Inserted));
    EXPECT_FALSE(container.containsInsertedID(1));
    EXPECT_FALSE(container.containsInsertedID(Inserted + 1));
}

TEST(DOM_RowColIDContainer, TakesIdentifiersAgainWithoutAnyRun)
{
    RowColIDContainer container(2);
    container.remove(0);
    container.remove(0);
    EXPECT_EQ(getRanges(container), Ranges());
    EXPECT_EQ(container.getIndex(1), 2U);
    container.remove(0);
    container.insert(0, Inserted);
    EXPECT_EQ(getRanges(container), Ranges());
    EXPECT_EQ(container.getID(0), Inserted);
    container.insert(1, 2);
    EXPECT_EQ(getRanges(container), (Ranges{{1, 2, 2}}));
    container.validate();
}

TEST(DOM_RowColIDContainerDeathTest, HasNoIdentifierBeforeItsFirstRun)
{
    RowColIDContainer container(1);
    container.remove(0);
    EXPECT_DEATH(container.getID(0), R"(rangeIt != _predefinedIDs\.begin\(\))");
}

TEST(DOM_RowColIDContainer, KeepsIdentifiersThatArePushedPastTheEndOfTheAxis)
{
    RowColIDContainer container(Count);
    container.insert(0, Inserted);
    EXPECT_EQ(container.getIndex(Count), Count);
    container.remove(0);
    EXPECT_EQ(container.getIndex(Count), Count - 1);
}

TEST(DOM_RowColIDContainer, IsAsNewAfterAReset)
{
    RowColIDContainer container(Count);
    container.insert(5, Inserted);
    container.remove(1);
    container.reset();
    EXPECT_EQ(container, RowColIDContainer(Count));
    EXPECT_FALSE(container.containsInsertedID(Inserted));
}

TEST(DOM_RowColIDContainer, WritesItsNumbersBare)
{
    RowColIDContainer container(Count);
    expectText(container, R"({"_predefinedIDs":[{"index":0,"idRange":{"first":1,"second":100}}],)"
                          R"("_insertedItems":[],"_idToIndex":[],"_predefinedIDsCount":100})");
    container.insert(5, Inserted);
    expectText(container, R"({"_predefinedIDs":[{"index":0,"idRange":{"first":1,"second":5}},)"
                          R"({"index":6,"idRange":{"first":6,"second":100}}],)"
                          R"("_insertedItems":[{"index":5,"id":5000000000}],)"
                          R"("_idToIndex":[{"key":5000000000,"value":5}],"_predefinedIDsCount":100})");
    expectCopiesAndMoves(container);
}

TEST(DOM_RowColIDContainer, ReadsItsIdentifiersInAnyOrder)
{
    const std::string begin = R"({"_predefinedIDs":[{"index":2,"idRange":{"first":1,"second":4}}],)"
                              R"("_insertedItems":[{"index":0,"id":77},{"index":1,"id":66}],"_idToIndex":)";
    const std::string end = R"(,"_predefinedIDsCount":4})";
    const auto one =
        fromJson<RowColIDContainer>(begin + R"([{"key":77,"value":0},{"key":66,"value":1}])" + end);
    const auto other =
        fromJson<RowColIDContainer>(begin + R"([{"key":66,"value":1},{"key":77,"value":0}])" + end);
    EXPECT_EQ(one, other);
    EXPECT_EQ(one.getIndex(66), 1U);
}

RowColIDContainer loadWith(const std::string& items, const std::string& map)
{
    return fromJson<RowColIDContainer>(R"({"_predefinedIDs":[{"index":0,"idRange":{"first":1,"second":4}}],)"
                                       R"("_insertedItems":)" +
                                       items + R"(,"_idToIndex":)" + map + R"(,"_predefinedIDsCount":4})");
}

TEST(DOM_RowColIDContainerDeathTest, FindsItsBrokenInvariants)
{
    EXPECT_DEATH(loadWith(R"([{"index":4,"id":4}])", R"([{"key":4,"value":4}])").validate(),
                 R"(indexId\.id > _predefinedIDsCount)");
    EXPECT_DEATH(loadWith(R"([{"index":4,"id":5}])", "[]").validate(),
                 R"(it != _idToIndex\.end\(\) && it->second == indexId\.index)");
    EXPECT_DEATH(loadWith(R"([{"index":4,"id":5}])", R"([{"key":5,"value":3}])").validate(),
                 R"(it != _idToIndex\.end\(\) && it->second == indexId\.index)");
    EXPECT_DEATH(loadWith("[]", R"([{"key":4,"value":4}])").validate(), R"(id > _predefinedIDsCount)");
    EXPECT_DEATH(loadWith("[]", R"([{"key":5,"value":4}])").validate(),
                 R"(it != _insertedItems\.end\(\) && it->index == index && it->id == id)");
}

/// Beside a plain list of identifiers.
TEST(DOM_RowColIDContainer, AgreesWithAListThroughRandomChanges)
{
    constexpr std::uint64_t Seed = 20240611;
    SCOPED_TRACE("seed " + std::to_string(Seed));
    std::mt19937_64 random(Seed);
    RowColIDContainer container(Count);
    std::vector<std::uint64_t> list;
    for (std::uint64_t id = 1; id <= Count; ++id) {
        list.push_back(id);
    }
    std::vector<std::uint64_t> removed;
    std::uint64_t fresh = Inserted;
    for (int step = 0; step < 3000; ++step) {
        const std::uint64_t index = random() % list.size();
        if (random() % 2 == 0 && list.size() > 10) {
            removed.push_back(list[index]);
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
            container.remove(index);
        } else if (!removed.empty() && random() % 2 == 0) {
            // An identifier returns to where the order of the predefined ones puts it.
            const std::uint64_t id = removed.back();
            removed.pop_back();
            const auto place = std::find_if(
                list.begin(), list.end(), [&](std::uint64_t other) { return other <= Count && other > id; });
            container.insert(static_cast<std::uint64_t>(place - list.begin()), id);
            list.insert(place, id);
        } else {
            container.insert(index, ++fresh);
            list.insert(list.begin() + static_cast<std::ptrdiff_t>(index), fresh);
        }
        container.validate();
        if (step % 50 == 0) {
            for (std::uint64_t position = 0; position < list.size(); ++position) {
                ASSERT_EQ(container.getID(position), list[position]) << step;
                // The count itself means "not found", so it cannot be told from that position.
                if (position != Count) {
                    ASSERT_EQ(container.getIndex(list[position]), position) << step;
                }
            }
            for (const std::uint64_t id : removed) {
                ASSERT_EQ(container.getIndex(id), Count) << step;
            }
        }
    }
}

} // namespace
} // namespace QN::DOM::RowColIDContainerTest
