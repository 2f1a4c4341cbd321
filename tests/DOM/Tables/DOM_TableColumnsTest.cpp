#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DOM/Tables/SparseDataSamples.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableColumnsTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

TEST(DOM_TableColumns, AreInsertedWithoutMovingACell)
{
    Table table = makeGrid(2, 3);
    const auto before = getChunkTexts(table);
    const Cell* const cell = table.getCell(RowIndex(1), ColumnIndex(2));
    table.insertColumn(makeColumn(Inserted), ColumnIndex(1));
    EXPECT_EQ(getChunkTexts(table), before);
    EXPECT_EQ(table.getCell(RowIndex(1), ColumnIndex(3)), cell);
    EXPECT_EQ(table.getCell(RowIndex(1), ColumnIndex(1)), nullptr);
    EXPECT_EQ(getNumber(table, 1, 0), 10.0);
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(4));
    auto last = table.getTableIterators().second;
    --last;
    EXPECT_EQ(last.getColIndex(), ColumnIndex(3));
    EXPECT_EQ(last.getColID(), ColumnID(3));
}

TEST(DOM_TableColumns, AreInsertedWithTheirCellsAndStyle)
{
    Table table = makeGrid(2, 2);
    ColumnData column = makeColumn(Inserted, {{0, 5.0}, {3, 6.0}});
    column.style = makeStyle<ColumnStyle>('1');
    const auto style = column.style;
    table.insertColumn(std::move(column), ColumnIndex(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 5000000000=5 2=1 | 1=10 2=11 | | 5000000000=6"}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
    EXPECT_EQ(table.getSharedStyle(ColumnIndex(1)), style);
    EXPECT_EQ(table.getSharedStyle(ColumnIndex(2)), nullptr);
    EXPECT_EQ(getNumber(table, 0, 1), 5.0);
    EXPECT_EQ(getNumber(table, 0, 2), 1.0);
}

TEST(DOM_TableColumns, LeaveWithTheirCellsStyleAndIdentifier)
{
    Table table = makeGrid(4, 3, 4);
    table.removeCell(RowIndex(2), ColumnIndex(1));
    table.setSharedStyle(makeStyle<ColumnStyle>('1'), ColumnIndex(1));
    const auto style = table.getSharedStyle(ColumnIndex(1));
    const ColumnData removed = table.removeColumn(ColumnIndex(1));
    EXPECT_EQ(getText(removed), "2: 0=1 1=11 3=31");
    EXPECT_EQ(removed.style, style);
    EXPECT_EQ(getChunkTexts(table),
              (ChunkTexts{"0: 1=0 3=2", "1: 1=10 3=12", "2: 1=20 3=22", "3: 1=30 3=32"}));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(2));
    EXPECT_EQ(table.getIndex(ColumnID(3)), ColumnIndex(1));
    EXPECT_EQ(table.getIndex(ColumnID(2)), boost::none);
    EXPECT_EQ(table.getColStylesBegin(), table.getColStylesEnd());
}

TEST(DOM_TableColumns, LeaveGapsClosedWhereverTheyStood)
{
    for (std::uint64_t column = 0; column < 3; ++column) {
        Table table = makeGrid(3, 3);
        table.removeColumn(ColumnIndex(column));
        for (std::uint64_t row = 0; row < 3; ++row) {
            EXPECT_EQ(getNumber(table, row, 0), static_cast<double>(10 * row + (column == 0 ? 1 : 0)));
            EXPECT_EQ(getNumber(table, row, 1), static_cast<double>(10 * row + (column == 2 ? 1 : 2)));
        }
    }
}

TEST(DOM_TableColumns, ComeBackAsTheyLeft)
{
    Table table = makeGrid(4, 3, 5);
    table.setSharedStyle(makeStyle<ColumnStyle>('1'), ColumnIndex(1));
    table.setMergeProps(RowIndex(0), ColumnIndex(1), 1, 1);
    const Table before = table;
    for (std::uint64_t column = 0; column < 3; ++column) {
        ColumnData removed = table.removeColumn(ColumnIndex(column));
        EXPECT_NE(table, before);
        table.insertColumn(std::move(removed), ColumnIndex(column));
        EXPECT_EQ(table, before) << column;
        EXPECT_EQ(table.getMergedRange(RowIndex(1), ColumnIndex(2)), makeRange(0, 2, 1, 3)) << column;
    }
}

TEST(DOM_TableColumns, BehindTheLiveOnesHaveNothingButAnIdentifier)
{
    Table table = makeGrid(2, 2);
    const Table before = table;
    EXPECT_EQ(getText(table.removeColumn(ColumnIndex(2))), "3:");
    EXPECT_EQ(table, before);
}

TEST(DOM_TableColumns, OfAKnownInsertedIdentifierAreRefusedBeforeAnythingChanges)
{
    const std::string message =
        "Trying to insert column, but column with same ID is already present in a table.";
    Table table = makeGrid(3, 3);
    table.insertColumn(makeColumn(Inserted), ColumnIndex(1));
    table.replaceColWithTombstone(Position(2));
    const Table before = table;
    EXPECT_EQ(getExceptionText([&] { table.insertColumn(makeColumn(Inserted), ColumnIndex(0)); }), message);
    EXPECT_EQ(getExceptionText([&] { table.insertColumn(makeColumn(Inserted), Position(0)); }), message);
    EXPECT_EQ(getExceptionText([&] { table.restoreColumn(makeColumn(Inserted), Position(2)); }), message);
    EXPECT_EQ(table, before);
}

TEST(DOM_TableColumnsDeathTest, AreNotInsertedBehindTheLiveOnes)
{
    Table table = makeGrid(2, 2);
    EXPECT_DEATH(table.insertColumn(makeColumn(Inserted), ColumnIndex(3)),
                 R"(position\.get\(\) <= _colsCount)");
}

TEST(DOM_TableColumns, MoveMergedRangesAndPivotTables)
{
    Table table = makeGrid(3, 5);
    table.setMergeProps(RowIndex(0), ColumnIndex(1), 0, 1);
    table.setPivotTable(RowIndex(1), ColumnIndex(3), makePivotTable(2, 2));
    table.insertColumn(makeColumn(Inserted), ColumnIndex(1));
    EXPECT_EQ(table.getMergedRange(RowIndex(0), ColumnIndex(2)), makeRange(0, 1, 2, 4));
    EXPECT_EQ(table.getPivotRoot(RowIndex(2), ColumnIndex(5)), makeIndex(1, 4));
    table.removeColumn(ColumnIndex(2));
    EXPECT_EQ(table.getMergedRange(RowIndex(0), ColumnIndex(2)), boost::none);
    EXPECT_EQ(table.getPivotRoot(RowIndex(2), ColumnIndex(4)), makeIndex(1, 3));
}

TEST(DOM_TableColumns, AreInsertedAmongTombstones)
{
    Table table = makeGrid(1, 3);
    table.replaceColWithTombstone(Position(1));
    table.insertColumn(makeColumn(Inserted, {{0, 7.0}}), Position(2));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 5000000000=7 3=2"}));
    EXPECT_EQ(table.getAllColsCount(), Position(4));
    EXPECT_EQ(table.convertColIndex(Position(1)), boost::none);
    EXPECT_EQ(table.convertColIndex(Position(2)), ColumnIndex(1));
    EXPECT_EQ(table.convertColIndex(ColumnIndex(1)), Position(2));
    EXPECT_EQ(table.getColIndexToInsertTo(Position(2)), ColumnIndex(1));
}

TEST(DOM_TableColumns, ReplacedWithTombstonesAreRestoredWithoutTrace)
{
    Table table = makeGrid(3, 4);
    table.setSharedStyle(makeStyle<ColumnStyle>('1'), ColumnIndex(2));
    const Table before = table;
    ColumnData removed = table.replaceColWithTombstone(Position(2));
    EXPECT_EQ(getText(removed), "3: 0=2 1=12 2=22");
    EXPECT_EQ(table.getAllColsCount(), Position(4));
    table.restoreColumn(std::move(removed), Position(2));
    EXPECT_EQ(table, before);
}

TEST(DOM_TableColumns, ForgetATombstoneThatIsRemoved)
{
    Table table = makeGrid(2, 3);
    table.replaceColWithTombstone(Position(1));
    EXPECT_EQ(getText(table.removeColumn(Position(1))), "2:");
    EXPECT_EQ(table.getAllColsCount(), Position(2));
    EXPECT_EQ(getText(table.removeColumn(Position(1))), "3: 0=2 1=12");
    EXPECT_EQ(getText(table.removeColumn(Position(1))), "4:");
    EXPECT_EQ(table.getAllColsCount(), Position(1));
    EXPECT_EQ(getText(table.replaceColWithTombstone(Position(1))), "4:");
    EXPECT_EQ(table.getAllColsCount(), Position(1));
}

TEST(DOM_TableColumnsDeathTest, AreNotReplacedTwice)
{
    Table table = makeGrid(1, 3);
    table.replaceColWithTombstone(Position(1));
    EXPECT_DEATH(table.replaceColWithTombstone(Position(1)), R"(OptUtils:73: opt)");
}

TEST(DOM_TableColumns, ForgetAllTombstones)
{
    Table table = makeGrid(1, 3);
    table.replaceColWithTombstone(Position(1));
    table.clearColumnTombstones();
    EXPECT_EQ(table.getAllColsCount(), Position(2));
    EXPECT_EQ(table.resolveColIndex(ColumnID(2), false), boost::none);
}

} // namespace
} // namespace QN::DOM::TableColumnsTest
