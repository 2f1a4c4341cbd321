#include <gtest/gtest.h>

#include <iterator>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableRowColumnStylesTest {
namespace {

using namespace QN::Test;

TEST(DOM_TableStyles, AreEmptyWhereNoneIsSet)
{
    const Table table(RowIndex(3), ColumnIndex(3));
    EXPECT_EQ(table.getSharedStyle(), nullptr);
    EXPECT_TRUE(table.getStyle().isEmpty());
    EXPECT_EQ(table.getSharedStyle(RowIndex(1)), nullptr);
    EXPECT_TRUE(table.getStyle(RowIndex(1)).isEmpty());
    EXPECT_EQ(table.getSharedStyle(ColumnIndex(1)), nullptr);
    EXPECT_TRUE(table.getStyle(ColumnIndex(1)).isEmpty());
}

TEST(DOM_TableStyles, AreSetForTheTableARowAndAColumn)
{
    Table table;
    const auto tableStyle = makeStyle<TableStyle>('1');
    const auto rowStyle = makeStyle<RowStyle>('2');
    const auto columnStyle = makeStyle<ColumnStyle>('3');
    table.setSharedStyle(tableStyle);
    table.setSharedStyle(rowStyle, RowIndex(4));
    table.setSharedStyle(columnStyle, ColumnIndex(6));
    EXPECT_EQ(table.getSharedStyle(), tableStyle);
    EXPECT_EQ(&table.getStyle(), &tableStyle->get());
    EXPECT_EQ(table.getSharedStyle(RowIndex(4)), rowStyle);
    EXPECT_EQ(&table.getStyle(RowIndex(4)), &rowStyle->get());
    EXPECT_EQ(table.getSharedStyle(ColumnIndex(6)), columnStyle);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(5));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(7));
    EXPECT_EQ(table.getRowStylesBegin()->first, RowID(5));
    EXPECT_EQ(std::distance(table.getRowStylesBegin(), table.getRowStylesEnd()), 1);
    EXPECT_EQ(table.getColStylesBegin()->first, ColumnID(7));
    EXPECT_EQ(std::distance(table.getColStylesBegin(), table.getColStylesEnd()), 1);
}

TEST(DOM_TableStyles, AreReplacedAndErasedByNull)
{
    Table table;
    table.setSharedStyle(makeStyle<RowStyle>('2'), RowIndex(4));
    const auto other = makeStyle<RowStyle>('3');
    table.setSharedStyle(other, RowIndex(4));
    EXPECT_EQ(table.getSharedStyle(RowIndex(4)), other);
    table.setSharedStyle(SharedStylePtr<RowStyle>(), RowIndex(4));
    EXPECT_EQ(table.getRowStylesBegin(), table.getRowStylesEnd());
    table.setSharedStyle(SharedStylePtr<ColumnStyle>(), ColumnIndex(8));
    EXPECT_EQ(table.getColStylesBegin(), table.getColStylesEnd());
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(9));
}

TEST(DOM_TableStyles, FollowTheirRowsAndColumns)
{
    Table table;
    const auto rowStyle = makeStyle<RowStyle>('2');
    table.setSharedStyle(rowStyle, RowIndex(4));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(0));
    EXPECT_EQ(table.getSharedStyle(RowIndex(4)), nullptr);
    EXPECT_EQ(table.getSharedStyle(RowIndex(5)), rowStyle);
}

TEST(DOM_TableStylesDeathTest, ExistWithinTheLimitsAlone)
{
    Table table;
    EXPECT_DEATH(table.setSharedStyle(makeStyle<RowStyle>('2'), RowIndex(MaxRows)),
                 R"(rowIndex\.get\(\) < DOM::MaxRows)");
    EXPECT_DEATH(table.setSharedStyle(makeStyle<ColumnStyle>('2'), ColumnIndex(MaxColumns)),
                 R"(colIndex\.get\(\) < DOM::MaxColumns)");
}

TEST(DOM_TableReset, GivesCellsAndStylesThePredefinedIdentifiersOfTheirPositions)
{
    Table table = makeGrid(3, 3);
    const auto rowStyle = makeStyle<RowStyle>('2');
    const auto columnStyle = makeStyle<ColumnStyle>('3');
    table.setSharedStyle(rowStyle, RowIndex(1));
    table.setSharedStyle(columnStyle, ColumnIndex(2));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(0));
    table.insertColumn({{}, {}, ColumnID(5'000'000'000)}, ColumnIndex(1));
    table.removeColumn(ColumnIndex(0));
    const Table before = table;

    table.resetRowColumnIDsToPredefined();
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: | 2=1 3=2 | 2=11 3=12 | 2=21 3=22"}));
    EXPECT_EQ(table.getRowStylesBegin()->first, RowID(3));
    EXPECT_EQ(table.getSharedStyle(RowIndex(2)), rowStyle);
    EXPECT_EQ(table.getSharedStyle(ColumnIndex(2)), columnStyle);
    EXPECT_EQ(table.getRowIDContainer(), RowColIDContainer(MaxRows));
    EXPECT_EQ(table.getColIDContainer(), RowColIDContainer(MaxColumns));
    EXPECT_TRUE(table.areEqualWithoutIDs(before));
    EXPECT_FALSE(table.areRowColIDsEqual(before));
}

TEST(DOM_TableReset, RewritesNothingElse)
{
    Table table = makeGrid(4, 4);
    table.setMergeProps(RowIndex(1), ColumnIndex(1), 1, 1);
    table.setPivotTable(RowIndex(1), ColumnIndex(3), makePivotTable(1, 2));
    table.setHeaderRowsCols(RowIndex(1), ColumnIndex(1), RowIndex(1), ColumnIndex(1));
    table.replaceRowWithTombstone(Table::IndexIncludingTombstones(0));
    table.resetRowColumnIDsToPredefined();
    EXPECT_EQ(table.getMergedRange(RowIndex(0), ColumnIndex(1)), makeRange(0, 2, 1, 3));
    EXPECT_EQ(table.getPivotRoot(RowIndex(0), ColumnIndex(3)), makeIndex(0, 3));
    EXPECT_EQ(table.getHeaderRowsCols()->getBeginRowID(), RowID(2));
    EXPECT_EQ(table.getAllRowsCount(), Table::IndexIncludingTombstones(4));
}

} // namespace
} // namespace QN::DOM::TableRowColumnStylesTest
