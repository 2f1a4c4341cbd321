#include "DOM/Tables/DOM_MergedCellsCache.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::MergedCellsCacheTest {
namespace {

using namespace QN::Test;

MergedCellsCache makeCache(const std::vector<TableRange>& ranges)
{
    MergedCellsCache cache;
    for (const TableRange& range : ranges) {
        cache.mergeCells(range);
    }
    return cache;
}

TEST(DOM_MergedCellsCache, KeepsItsRangesSortedByTheirRoots)
{
    const auto cache = makeCache({makeRange(3, 4, 0, 2), makeRange(1, 2, 5, 7), makeRange(1, 3, 0, 2)});
    EXPECT_EQ(cache.getMergedRanges(),
              (std::vector{makeRange(1, 3, 0, 2), makeRange(1, 2, 5, 7), makeRange(3, 4, 0, 2)}));
}

TEST(DOM_MergedCellsCache, GivesARangeWithTheSameRootANewEnd)
{
    const auto cache = makeCache({makeRange(1, 3, 0, 2), makeRange(1, 9, 0, 8)});
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(1, 9, 0, 8)}));
}

TEST(DOM_MergedCellsCache, ForgetsTheRangeThatIsRootedAtACell)
{
    auto cache = makeCache({makeRange(1, 3, 0, 2), makeRange(1, 3, 5, 7)});
    cache.unmergeCells(RowIndex(2), ColumnIndex(1));
    EXPECT_EQ(cache.getMergedRanges().size(), 2U);
    cache.unmergeCells(RowIndex(1), ColumnIndex(0));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(1, 3, 5, 7)}));
}

TEST(DOM_MergedCellsCacheDeathTest, UnmergesCellsWithinTheLimitsAlone)
{
    MergedCellsCache cache;
    cache.unmergeCells(RowIndex(MaxRows - 1), ColumnIndex(MaxColumns - 1));
    EXPECT_DEATH(cache.unmergeCells(RowIndex(MaxRows), ColumnIndex(0)),
                 R"(TableRange:229: _beginRow < _endRow)");
    EXPECT_DEATH(cache.unmergeCells(RowIndex(0), ColumnIndex(MaxColumns)),
                 R"(TableRange:230: _beginColumn < _endColumn)");
}

TEST(DOM_MergedCellsCache, FindsTheRangeThatHoldsACell)
{
    const auto cache = makeCache({makeRange(1, 4, 1, 3), makeRange(2, 3, 5, 6)});
    EXPECT_EQ(cache.getMergedRange(RowIndex(1), ColumnIndex(1)), makeRange(1, 4, 1, 3));
    EXPECT_EQ(cache.getMergedRange(RowIndex(3), ColumnIndex(2)), makeRange(1, 4, 1, 3));
    EXPECT_EQ(cache.getMergedRange(RowIndex(2), ColumnIndex(5)), makeRange(2, 3, 5, 6));
    EXPECT_EQ(cache.getMergedRange(RowIndex(4), ColumnIndex(1)), boost::none);
    EXPECT_EQ(cache.getMergedRange(RowIndex(0), ColumnIndex(1)), boost::none);
    EXPECT_EQ(cache.getMergedRange(RowIndex(1), ColumnIndex(3)), boost::none);
    EXPECT_EQ(cache.getMergedRange(RowIndex(1), ColumnIndex(0)), boost::none);
}

TEST(DOM_MergedCellsCache, LooksAtTheLastRangeWithTheColumnAlone)
{
    // The range rooted last before the cell has its column and ends above it, so the outer one is not looked at.
    const auto cache = makeCache({makeRange(0, 10, 0, 5), makeRange(2, 3, 1, 2)});
    EXPECT_EQ(cache.getMergedRange(RowIndex(5), ColumnIndex(1)), boost::none);
    EXPECT_EQ(cache.getMergedRange(RowIndex(5), ColumnIndex(2)), makeRange(0, 10, 0, 5));
}

TEST(DOM_MergedCellsCache, FindsTheRootOfTheOtherCellsOfARange)
{
    const auto cache = makeCache({makeRange(1, 4, 1, 3)});
    EXPECT_EQ(cache.getMergedCellRoot(RowIndex(3), ColumnIndex(2)), makeIndex(1, 1));
    EXPECT_EQ(cache.getMergedCellRoot(RowIndex(1), ColumnIndex(1)), boost::none);
    EXPECT_EQ(cache.getMergedCellRoot(RowIndex(4), ColumnIndex(1)), boost::none);
}

TEST(DOM_MergedCellsCache, MovesRangesDownFromAnInsertedRow)
{
    auto cache = makeCache({makeRange(2, 6, 0, 1), makeRange(7, 8, 0, 2)});
    cache.insertRow(RowIndex(3));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(2, 6, 0, 1), makeRange(8, 9, 0, 2)}));
    cache.insertRow(RowIndex(2));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(3, 7, 0, 1), makeRange(9, 10, 0, 2)}));
}

TEST(DOM_MergedCellsCache, MovesRangesRightFromAnInsertedColumn)
{
    auto cache = makeCache({makeRange(0, 1, 2, 6), makeRange(0, 2, 7, 8)});
    cache.insertColumn(ColumnIndex(3));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(0, 1, 2, 6), makeRange(0, 2, 8, 9)}));
    cache.insertColumn(ColumnIndex(2));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(0, 1, 3, 7), makeRange(0, 2, 9, 10)}));
}

TEST(DOM_MergedCellsCache, MovesRangesUpFromARemovedRowAndDropsThoseRootedOnIt)
{
    auto cache = makeCache(
        {makeRange(2, 6, 0, 1), makeRange(3, 4, 2, 4), makeRange(3, 5, 5, 6), makeRange(7, 8, 0, 2)});
    cache.removeRow(RowIndex(3));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(2, 6, 0, 1), makeRange(6, 7, 0, 2)}));
}

TEST(DOM_MergedCellsCache, MovesRangesLeftFromARemovedColumnAndDropsThoseRootedInIt)
{
    auto cache = makeCache(
        {makeRange(0, 1, 2, 6), makeRange(2, 4, 3, 4), makeRange(5, 7, 3, 5), makeRange(8, 9, 7, 9)});
    cache.removeColumn(ColumnIndex(3));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(0, 1, 2, 6), makeRange(8, 9, 6, 8)}));
}

TEST(DOM_MergedCellsCache, NeverNarrowsARangeByARemovalInsideIt)
{
    auto cache = makeCache({makeRange(2, 6, 2, 6)});
    cache.removeRow(RowIndex(3));
    cache.removeColumn(ColumnIndex(5));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(2, 6, 2, 6)}));
}

TEST(DOM_MergedCellsCache, LeavesARangeThatEndsAtTheLargestIndexWhereItIs)
{
    constexpr std::uint64_t Last = ~std::uint64_t{0};
    auto cache = makeCache({makeRange(0, Last, 0, 2), makeRange(0, 2, 3, Last - 1)});
    cache.insertRow(RowIndex(0));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(0, Last, 0, 2), makeRange(1, 3, 3, Last - 1)}));
    cache.insertColumn(ColumnIndex(0));
    cache.insertColumn(ColumnIndex(0));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(0, Last, 2, 4), makeRange(1, 3, 4, Last)}));
    cache.removeRow(RowIndex(0));
    cache.removeColumn(ColumnIndex(0));
    EXPECT_EQ(cache.getMergedRanges(), (std::vector{makeRange(0, 2, 3, Last - 1)}));
}

TEST(DOM_MergedCellsCache, AnswersTheLastRowAndColumnOfAllRanges)
{
    EXPECT_EQ(MergedCellsCache().getBottomRightCellIndex(), makeIndex(0, 0));
    EXPECT_EQ(makeCache({makeRange(0, 9, 0, 2), makeRange(3, 4, 5, 7)}).getBottomRightCellIndex(),
              makeIndex(8, 6));
}

TEST(DOM_MergedCellsCache, WritesItsRanges)
{
    expectText(MergedCellsCache(), R"({"_mergedRanges":[]})");
    expectText(makeCache({makeRange(1, 2, 3, 5)}),
               R"({"_mergedRanges":[{"_beginRow":{"_value":1},"_endRow":{"_value":2},)"
               R"("_beginColumn":{"_value":3},"_endColumn":{"_value":5}}]})");
    expectCopiesAndMoves(makeCache({makeRange(1, 2, 3, 5)}));
}

} // namespace
} // namespace QN::DOM::MergedCellsCacheTest
