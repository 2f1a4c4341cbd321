#include "DOM/Validator/DOM_BusinessLogicChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

#include "DOM/DOM.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/Validator/TableFaults.h"

namespace QN::DOM::BusinessLogicChecksTest {
namespace {

using namespace Test;
using namespace BusinessLogicChecks;

TEST(BusinessLogicChecksTest, ARangeThatLiesInsideOrApartDoesNotStickOut)
{
    const TableRange first = makeRange(2, 6, 2, 6);
    EXPECT_FALSE(isIntersectedAndNotContained(first, first));
    EXPECT_FALSE(isIntersectedAndNotContained(first, makeRange(3, 5, 3, 5)));
    EXPECT_FALSE(isIntersectedAndNotContained(first, makeRange(6, 8, 2, 6)));
    EXPECT_FALSE(isIntersectedAndNotContained(first, makeRange(0, 2, 0, 9)));
}

TEST(BusinessLogicChecksTest, ARangeThatCrossesAnEdgeSticksOut)
{
    const TableRange first = makeRange(2, 6, 2, 6);
    EXPECT_TRUE(isIntersectedAndNotContained(first, makeRange(1, 3, 3, 5)));
    EXPECT_TRUE(isIntersectedAndNotContained(first, makeRange(5, 7, 3, 5)));
    EXPECT_TRUE(isIntersectedAndNotContained(first, makeRange(3, 5, 1, 3)));
    EXPECT_TRUE(isIntersectedAndNotContained(first, makeRange(3, 5, 5, 7)));
    EXPECT_TRUE(isIntersectedAndNotContained(first, makeRange(0, 9, 0, 9)));
}

TEST(BusinessLogicChecksTest, ARangeWithoutMergedCellsHasNoneThatSticksOut)
{
    Table table = makeGrid(9, 9);
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 9, 0, 9)));
    table.setMergeProps(RowIndex(5), ColumnIndex(5), 2, 2);
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 5, 0, 9)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 1048576, 0, 5)));
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 6, 0, 9)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 1048576, 0, 16384)));
}

TEST(BusinessLogicChecksTest, OnlyTheFirstMergedRangeThatIsMetDecides)
{
    Table table = makeGrid(9, 9);
    table.setMergeProps(RowIndex(1), ColumnIndex(1), 1, 1);
    table.setMergeProps(RowIndex(4), ColumnIndex(4), 4, 4);
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 6, 0, 6)));
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(3, 6, 0, 6)));
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(2, 9, 2, 9)));
}

TEST(BusinessLogicChecksTest, ACellBelowAMergedRangeInsideAnotherBelongsToNeither)
{
    Table table = makeGrid(9, 9);
    table.setMergeProps(RowIndex(0), ColumnIndex(0), 8, 0);
    table.setMergeProps(RowIndex(1), ColumnIndex(0), 1, 0);
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(2, 6, 0, 1)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(5, 6, 0, 1)));
}

/// Position by position, as it is defined.
bool walkLogicalCells(const Table& table, const TableRange& range)
{
    const auto [begin, end] = table.getRangeLogicalIterators(range);
    for (auto cell = begin; cell != end; ++cell) {
        if (const auto merged = table.getMergedRange(cell.getRowIndex(), cell.getColIndex())) {
            return isIntersectedAndNotContained(range, *merged);
        }
    }
    return false;
}

class Random {
public:
    explicit Random(unsigned seed) : _engine(seed) {}
    std::uint64_t below(std::uint64_t count) { return _engine() % count; }

    TableRange makeRangeBelow(std::uint64_t begin, std::uint64_t size)
    {
        const std::uint64_t row = below(begin);
        const std::uint64_t column = below(begin);
        return makeRange(row, row + 1 + below(size), column, column + 1 + below(size));
    }

private:
    std::mt19937 _engine;
};

TEST(BusinessLogicChecksTest, TheAnswerIsThatOfAWalkOverAllPositions)
{
    std::size_t yes = 0;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        Random random(seed);
        Table table = makeGrid(3, 3);
        // Ranges that overlap, and some that stand partly or wholly behind the table.
        for (std::uint64_t count = random.below(8); count > 0; --count) {
            getMember<MergedCellsCache>(table, "_mergedCellsCache").mergeCells(random.makeRangeBelow(12, 8));
        }
        const TableRange range = random.makeRangeBelow(10, 7);
        const bool expected = walkLogicalCells(table, range);
        yes += expected ? 1 : 0;
        ASSERT_EQ(isMergedRangeIntersectedAndOutOfRangeExists(table, range), expected) << "seed " << seed;
    }
    EXPECT_GT(yes, 300U);
    EXPECT_LT(yes, 2700U);
}

TEST(BusinessLogicChecksTest, MergedRangesThatAFileLeftUnsortedAreTakenAsSorted)
{
    for (unsigned seed = 0; seed < 1000; ++seed) {
        Random random(seed);
        Table table = makeGrid(3, 3);
        auto& cache = getMember<MergedCellsCache>(table, "_mergedCellsCache");
        for (std::uint64_t count = random.below(8); count > 0; --count) {
            cache.mergeCells(random.makeRangeBelow(12, 8));
        }
        const TableRange range = random.makeRangeBelow(10, 7);
        const bool expected = walkLogicalCells(table, range);
        auto& ranges = getMember<std::vector<TableRange>>(cache, "_mergedRanges");
        std::shuffle(ranges.begin(), ranges.end(), std::mt19937(seed));
        ASSERT_EQ(isMergedRangeIntersectedAndOutOfRangeExists(table, range), expected) << "seed " << seed;
    }
}

TEST(BusinessLogicChecksTest, PositionsBehindTheTableCount)
{
    const Table table = [] {
        Table grid = makeGrid(2, 2);
        getMember<MergedCellsCache>(grid, "_mergedCellsCache").mergeCells(makeRange(5, 7, 5, 7));
        return grid;
    }();
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 6, 0, 6)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(0, 7, 0, 7)));
}

TEST(BusinessLogicChecksTest, TheSizeOfTheRangeDoesNotMatter)
{
    Table table = makeGrid(2, 2);
    auto& cache = getMember<MergedCellsCache>(table, "_mergedCellsCache");
    // Each of the first two holds no cell of the range, but all positions between them would have to be asked.
    cache.mergeCells(makeRange(0, 1, 0, MaxColumns));
    cache.mergeCells(makeRange(MaxRows - 1, MaxRows, 5, 7));
    EXPECT_FALSE(
        isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(1, MaxRows - 1, 0, MaxColumns)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(1, MaxRows, 0, MaxColumns)));
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(1, MaxRows, 0, 6)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, TableRange()));

    constexpr std::uint64_t Largest = std::numeric_limits<std::uint64_t>::max();
    cache.mergeCells(makeRange(0, Largest, 0, 1));
    cache.mergeCells(makeRange(1, 2, 0, 1));
    cache.mergeCells(makeRange(Largest - 2, Largest, 0, 1));
    // Below the one in rows 1 and 2, the long one holds no cells.
    EXPECT_TRUE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(2, Largest - 1, 0, 1)));
    EXPECT_FALSE(isMergedRangeIntersectedAndOutOfRangeExists(table, makeRange(2, Largest, 0, 1)));
}

} // namespace
} // namespace QN::DOM::BusinessLogicChecksTest
