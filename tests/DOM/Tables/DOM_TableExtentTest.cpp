#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableExtentTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

TEST(DOM_TableExtent, IsEmptyAtFirst)
{
    const Table table;
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(0));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(0));
    EXPECT_EQ(table.getAllRowsCount(), Position(0));
    EXPECT_EQ(table.getAllColsCount(), Position(0));
}

TEST(DOM_TableExtent, IsWhatATableIsMadeWith)
{
    const Table table(RowIndex(3), ColumnIndex(4));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(4));
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(0));
}

TEST(DOM_TableExtent, CountsTombstonesToo)
{
    Table table(RowIndex(5), ColumnIndex(4));
    table.replaceRowWithTombstone(Position(1));
    table.replaceRowWithTombstone(Position(2));
    table.replaceColWithTombstone(Position(0));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
    EXPECT_EQ(table.getAllRowsCount(), Position(5));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(3));
    EXPECT_EQ(table.getAllColsCount(), Position(4));
}

TEST(DOM_TableExtent, IsRaisedAndNeverLowered)
{
    Table table(RowIndex(5), ColumnIndex(4));
    table.ensureSize(RowIndex(3), ColumnIndex(9));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(5));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(9));
}

TEST(DOM_TableExtent, IsNotRaisedPastTheLimits)
{
    Table table;
    table.ensureSize(RowIndex(MaxRows + 7), ColumnIndex(~std::uint64_t{0}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(MaxRows));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(MaxColumns));
}

TEST(DOM_TableExtent, ReachesOnePastTheLastRowOfTheStorage)
{
    Table table(RowIndex(50), ColumnIndex(4));
    setNumber(table, 6, 0, 1.0);
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(7));
    table.removeCell(RowIndex(6), ColumnIndex(0));
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(7));
    EXPECT_EQ(makeGrid(9, 1, 2).getMaxRowIndex(), RowIndex(9));
}

TEST(DOM_TableChangeSize, NeverGoesBelowOneByOne)
{
    Table table;
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(1, 1));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(1));
    Table larger(RowIndex(9), ColumnIndex(9));
    EXPECT_EQ(larger.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(1, 1));
}

TEST(DOM_TableChangeSize, TakesTheRequestAsALowerLimit)
{
    Table table(RowIndex(9), ColumnIndex(9));
    EXPECT_EQ(table.changeSize(RowIndex(4), ColumnIndex(6)), makeIndex(4, 6));
    EXPECT_EQ(table.changeSize(RowIndex(20), ColumnIndex(30)), makeIndex(20, 30));
    EXPECT_EQ(table.changeSize(RowIndex(MaxRows + 1), ColumnIndex(MaxColumns + 1)),
              makeIndex(MaxRows, MaxColumns));
}

TEST(DOM_TableChangeSize, KeepsTheStoredCells)
{
    Table table(RowIndex(99), ColumnIndex(99));
    setNumber(table, 3, 7, 1.0);
    setNumber(table, 5, 2, 1.0);
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(6, 8));
    table.removeCell(RowIndex(5), ColumnIndex(2));
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(4, 8));
}

TEST(DOM_TableChangeSize, KeepsTheCellsOfAllChunks)
{
    Table table = makeGrid(4, 2, 2);
    setNumber(table, 1, 6, 1.0);
    table.ensureSize(RowIndex(50), ColumnIndex(50));
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(4, 7));
}

TEST(DOM_TableChangeSize, KeepsTheRowsAndColumnsWithAStyle)
{
    Table table(RowIndex(99), ColumnIndex(99));
    table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(12));
    table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(3));
    table.setSharedStyle(makeStyle<ColumnStyle>('1'), ColumnIndex(21));
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(13, 22));
    EXPECT_EQ(table.changeSize(RowIndex(20), ColumnIndex(21)), makeIndex(20, 22));
}

TEST(DOM_TableChangeSize, KeepsMergedRangesAndPivotTables)
{
    Table table;
    table.setMergeProps(RowIndex(2), ColumnIndex(3), 4, 1);
    table.setPivotTable(RowIndex(1), ColumnIndex(6), makePivotTable(4, 2));
    table.ensureSize(RowIndex(50), ColumnIndex(50));
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(7, 10));
}

TEST(DOM_TableChangeSize, KeepsTheFilterWithinTheLimits)
{
    Table table(RowIndex(50), ColumnIndex(50));
    table.setFilterInfo(TableFilterInfo(makeRange(1, 6, 2, 9)));
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(6, 9));
    table.setFilterInfo(TableFilterInfo());
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(MaxRows, MaxColumns));
}

} // namespace
} // namespace QN::DOM::TableExtentTest
