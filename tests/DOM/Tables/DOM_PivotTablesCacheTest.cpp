#include "DOM/Tables/DOM_PivotTablesCache.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::PivotTablesCacheTest {
namespace {

using namespace QN::Test;

/// Areas of 3 columns and 2 rows.
PivotTablesCache makeCache(const std::vector<CellIndex>& roots)
{
    PivotTablesCache cache;
    for (const CellIndex& root : roots) {
        cache.addPivot(root.getRow(), root.getColumn(), {3, 2});
    }
    return cache;
}

TEST(DOM_PivotTablesCache, KeepsAreasInTheOrderOfAdding)
{
    EXPECT_EQ(makeCache({makeIndex(9, 1), makeIndex(4, 5)}).getPivotRanges(),
              (std::vector{makeRange(9, 11, 1, 4), makeRange(4, 6, 5, 8)}));
}

TEST(DOM_PivotTablesCache, PutsAnAreaWithAKnownRootLast)
{
    auto cache = makeCache({makeIndex(9, 1), makeIndex(4, 5)});
    cache.addPivot(RowIndex(9), ColumnIndex(1), {1, 1});
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8), makeRange(9, 10, 1, 2)}));
}

TEST(DOM_PivotTablesCacheDeathTest, TakesNoEmptyArea)
{
    PivotTablesCache cache;
    EXPECT_DEATH(cache.addPivot(RowIndex(0), ColumnIndex(0), {1, 0}),
                 R"(TableRange:229: _beginRow < _endRow)");
    EXPECT_DEATH(cache.addPivot(RowIndex(0), ColumnIndex(0), {0, 1}),
                 R"(TableRange:230: _beginColumn < _endColumn)");
}

TEST(DOM_PivotTablesCache, ForgetsTheFirstAreaWithARoot)
{
    auto cache = makeCache({makeIndex(9, 1), makeIndex(4, 5)});
    cache.removePivot(RowIndex(10), ColumnIndex(1));
    EXPECT_EQ(cache.getPivotRanges().size(), 2U);
    cache.removePivot(RowIndex(9), ColumnIndex(1));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8)}));
}

TEST(DOM_PivotTablesCache, FindsTheRootOfTheFirstAreaThatHoldsACell)
{
    const auto cache = makeCache({makeIndex(4, 5), makeIndex(5, 6)});
    EXPECT_EQ(cache.getPivotRoot(RowIndex(4), ColumnIndex(5)), makeIndex(4, 5));
    EXPECT_EQ(cache.getPivotRoot(RowIndex(5), ColumnIndex(7)), makeIndex(4, 5));
    EXPECT_EQ(cache.getPivotRoot(RowIndex(5), ColumnIndex(8)), makeIndex(5, 6));
    EXPECT_EQ(cache.getPivotRoot(RowIndex(4), ColumnIndex(8)), boost::none);
    EXPECT_EQ(cache.getPivotRoot(RowIndex(3), ColumnIndex(5)), boost::none);
}

TEST(DOM_PivotTablesCache, FindsTheAreasThatShareACellWithARange)
{
    const auto cache = makeCache({makeIndex(4, 5), makeIndex(0, 0), makeIndex(10, 0)});
    EXPECT_TRUE(cache.isPivotTablesInRange(makeRange(5, 6, 7, 8)));
    EXPECT_FALSE(cache.isPivotTablesInRange(makeRange(6, 10, 0, 20)));
    EXPECT_EQ(cache.getPivotTablesInRange(makeRange(0, 6, 0, 8)),
              (std::vector{makeIndex(4, 5), makeIndex(0, 0)}));
    EXPECT_TRUE(cache.getPivotTablesInRange(makeRange(2, 4, 0, 8)).empty());
}

TEST(DOM_PivotTablesCache, AnswersThatARowCanBeInsertedWhereItWouldCutAnArea)
{
    const auto cache = makeCache({makeIndex(4, 5)});
    EXPECT_FALSE(cache.canInsertRow(RowIndex(4)));
    EXPECT_TRUE(cache.canInsertRow(RowIndex(5)));
    EXPECT_FALSE(cache.canInsertRow(RowIndex(6)));
    EXPECT_FALSE(PivotTablesCache().canInsertRow(RowIndex(0)));
}

TEST(DOM_PivotTablesCache, AnswersThatAColumnCanBeInsertedWhereItWouldCutAnArea)
{
    const auto cache = makeCache({makeIndex(4, 5)});
    EXPECT_FALSE(cache.canInsertColumn(ColumnIndex(5)));
    EXPECT_TRUE(cache.canInsertColumn(ColumnIndex(6)));
    EXPECT_TRUE(cache.canInsertColumn(ColumnIndex(7)));
    EXPECT_FALSE(cache.canInsertColumn(ColumnIndex(8)));
}

TEST(DOM_PivotTablesCache, MovesAreasFromAnInsertion)
{
    auto cache = makeCache({makeIndex(4, 5), makeIndex(5, 9)});
    cache.insertRow(RowIndex(5));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8), makeRange(6, 8, 9, 12)}));
    cache.insertColumn(ColumnIndex(6));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8), makeRange(6, 8, 10, 13)}));
}

TEST(DOM_PivotTablesCache, MovesAreasFromARemovalButNotOneRootedOnIt)
{
    auto cache = makeCache({makeIndex(4, 5), makeIndex(5, 9)});
    cache.removeRow(RowIndex(4));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8), makeRange(4, 6, 9, 12)}));
    cache.removeColumn(ColumnIndex(5));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8), makeRange(4, 6, 8, 11)}));
    cache.removeRow(RowIndex(5));
    cache.removeColumn(ColumnIndex(12));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(4, 6, 5, 8), makeRange(4, 6, 8, 11)}));
}

TEST(DOM_PivotTablesCache, LeavesAnAreaThatEndsAtTheLargestIndexWhereItIs)
{
    constexpr std::uint64_t Last = ~std::uint64_t{0};
    auto cache = makeCache({makeIndex(Last - 2, Last - 4)});
    cache.insertRow(RowIndex(0));
    cache.insertColumn(ColumnIndex(0));
    cache.insertColumn(ColumnIndex(0));
    EXPECT_EQ(cache.getPivotRanges(), (std::vector{makeRange(Last - 2, Last, Last - 3, Last)}));
}

TEST(DOM_PivotTablesCache, AnswersTheLastRowAndColumnOfAllAreas)
{
    EXPECT_EQ(PivotTablesCache().getBottomRightCellIndex(), makeIndex(0, 0));
    EXPECT_EQ(makeCache({makeIndex(4, 5), makeIndex(9, 0)}).getBottomRightCellIndex(), makeIndex(10, 7));
}

TEST(DOM_PivotTablesCache, ComparesItsAreasInOrder)
{
    EXPECT_EQ(makeCache({makeIndex(4, 5), makeIndex(9, 0)}), makeCache({makeIndex(4, 5), makeIndex(9, 0)}));
    EXPECT_NE(makeCache({makeIndex(4, 5), makeIndex(9, 0)}), makeCache({makeIndex(9, 0), makeIndex(4, 5)}));
    expectCopiesAndMoves(makeCache({makeIndex(4, 5)}));
}

TEST(DOM_PivotTablesCache, WritesItsAreas)
{
    expectText(PivotTablesCache(), R"({"_pivotRanges":[]})");
    expectText(makeCache({makeIndex(4, 5)}),
               R"({"_pivotRanges":[{"_beginRow":{"_value":4},"_endRow":{"_value":6},)"
               R"("_beginColumn":{"_value":5},"_endColumn":{"_value":8}}]})");
}

} // namespace
} // namespace QN::DOM::PivotTablesCacheTest
