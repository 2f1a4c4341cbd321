#include "DOM/Validator/DOM_BusinessLogicChecks.h"

#include <gtest/gtest.h>

#include <random>

#include "DOM/DOM.h"
#include "DOM/Tables/TableSamples.h"

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

TEST(BusinessLogicChecksTest, TheAnswerIsThatOfAWalkOverAllPositions)
{
    std::mt19937 random(5);
    const auto below = [&](std::uint64_t count) { return random() % count; };
    for (int round = 0; round < 300; ++round) {
        Table table = makeGrid(12, 12);
        for (std::uint64_t count = below(5); count > 0; --count) {
            table.setMergeProps(RowIndex(below(12)), ColumnIndex(below(12)), below(4), below(4));
        }
        const std::uint64_t row = below(10);
        const std::uint64_t column = below(10);
        const TableRange range = makeRange(row, row + 1 + below(6), column, column + 1 + below(6));
        EXPECT_EQ(isMergedRangeIntersectedAndOutOfRangeExists(table, range), walkLogicalCells(table, range))
            << "round " << round;
    }
}

} // namespace
} // namespace QN::DOM::BusinessLogicChecksTest
