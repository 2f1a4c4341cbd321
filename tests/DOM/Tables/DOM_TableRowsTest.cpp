#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DOM/Tables/SparseDataSamples.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableRowsTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

TEST(DOM_TableRows, AreInsertedEmptyInTheMiddle)
{
    Table table = makeGrid(3, 2);
    table.insertRow(makeRow(Inserted), RowIndex(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | | 1=10 2=11 | 1=20 2=21"}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
    EXPECT_EQ(table.getID(RowIndex(1)), RowID(Inserted));
    EXPECT_EQ(table.getID(RowIndex(2)), RowID(2));
    EXPECT_EQ(table.getIndex(RowID(2)), RowIndex(2));
}

TEST(DOM_TableRows, AreInsertedWithTheirCellsAndStyle)
{
    Table table = makeGrid(2, 2);
    RowData row = makeRow(Inserted, {{0, 5.0}, {4, 6.0}});
    row.style = makeStyle<RowStyle>('1');
    const auto style = row.style;
    table.insertRow(std::move(row), RowIndex(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | 1=5 5=6 | 1=10 2=11"}));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(5));
    EXPECT_EQ(table.getSharedStyle(RowIndex(1)), style);
    EXPECT_EQ(table.getSharedStyle(RowIndex(2)), nullptr);
}

TEST(DOM_TableRows, AreInsertedAtTheBeginningAndAtTheEnd)
{
    Table table = makeGrid(1, 1);
    table.insertRow(makeRow(Inserted, {{0, 5.0}}), RowIndex(0));
    table.insertRow(makeRow(Inserted + 1, {{0, 6.0}}), RowIndex(2));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=5 | 1=0 | 1=6"}));
}

TEST(DOM_TableRows, AreInsertedBehindTheStoredOnes)
{
    Table table(RowIndex(5), ColumnIndex(1));
    table.insertRow(makeRow(Inserted, {{0, 5.0}}), RowIndex(3));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: | | | 1=5"}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(6));
}

TEST(DOM_TableRows, MoveTheLaterChunksOnly)
{
    Table table = makeGrid(6, 1, 2);
    EXPECT_EQ(getChunkTexts(table),
              (ChunkTexts{"0: 1=0", "1: 1=10", "2: 1=20", "3: 1=30", "4: 1=40 | 1=50"}));
    table.insertRow(makeRow(Inserted), RowIndex(2));
    EXPECT_EQ(getChunkTexts(table),
              (ChunkTexts{"0: 1=0", "1: 1=10", "2: | 1=20", "4: 1=30", "5: 1=40 | 1=50"}));
    EXPECT_EQ(getNumber(table, 6, 0), 50.0);
}

TEST(DOM_TableRows, SplitTheirChunkWhenTheyBringTooManyCells)
{
    Table table = makeGrid(2, 1, 3);
    table.insertRow(makeRow(Inserted, {{0, 5.0}, {1, 6.0}}), RowIndex(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 | 1=5 2=6", "2: 1=10"}));
}

TEST(DOM_TableRows, SplitAChunkOfOneLargeRowAlsoWithoutCells)
{
    Table table = makeGrid(1, 3, 2);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 3=2"}));
    table.insertRow(makeRow(Inserted), RowIndex(0));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0:", "1: 1=0 2=1 3=2"}));
    Table below = makeGrid(1, 3, 2);
    below.insertRow(makeRow(Inserted), RowIndex(1));
    EXPECT_EQ(getChunkTexts(below), (ChunkTexts{"0: 1=0 2=1 3=2", "1:"}));
}

TEST(DOM_TableRows, OfTheIdentifierZeroMayHideLiveOnes)
{
    Table table = makeGrid(3, 1);
    table.insertRow(RowData(), RowIndex(1));
    EXPECT_EQ(table.getID(RowIndex(0)), RowID(1));
    EXPECT_EQ(table.getIndex(RowID(1)), boost::none);
    EXPECT_EQ(getNumber(table, 2, 0), 10.0);
}

TEST(DOM_TableRows, BringTheirMergedRangesAndPivotTables)
{
    Table table = makeGrid(3, 3);
    RowData row = makeRow(Inserted, {{0, 5.0}, {2, 6.0}});
    row.cells[0].second->setMergeProps(CellMergeProps(1, 1));
    row.cells[1].second->setPivotTable(makePivotTable(3, 2));
    table.insertRow(std::move(row), RowIndex(1));
    EXPECT_EQ(table.getMergedRange(RowIndex(2), ColumnIndex(1)), makeRange(1, 3, 0, 2));
    EXPECT_EQ(table.getPivotRoot(RowIndex(2), ColumnIndex(4)), makeIndex(1, 2));
}

TEST(DOM_TableRowsDeathTest, AreNotInsertedBehindTheLiveOnes)
{
    Table table = makeGrid(2, 2);
    EXPECT_DEATH(table.insertRow(makeRow(Inserted), RowIndex(3)), R"(position\.get\(\) <= _rowsCount)");
}

TEST(DOM_TableRowsDeathTest, BringNoMergedRangeThatWrapsAround)
{
    Table table = makeGrid(2, 2);
    RowData row = makeRow(Inserted, {{0, 5.0}});
    row.cells[0].second->setMergeProps(CellMergeProps(~std::uint64_t{0}, 0));
    EXPECT_DEATH(table.insertRow(std::move(row), RowIndex(0)), R"(_beginRow < _endRow)");
}

TEST(DOM_TableRows, OfAKnownInsertedIdentifierAreRefusedBeforeAnythingChanges)
{
    const std::string message = "Trying to insert row, but row with same ID is already present in a table.";
    Table table = makeGrid(3, 2);
    table.insertRow(makeRow(Inserted), RowIndex(1));
    table.replaceRowWithTombstone(Position(2));
    const Table before = table;
    EXPECT_EQ(getExceptionText([&] { table.insertRow(makeRow(Inserted), RowIndex(0)); }), message);
    EXPECT_EQ(getExceptionText([&] { table.insertRow(makeRow(Inserted), Position(0)); }), message);
    EXPECT_EQ(getExceptionText([&] { table.restoreRow(makeRow(Inserted), Position(2)); }), message);
    EXPECT_EQ(table, before);
    EXPECT_THROW(table.insertRow(makeRow(Inserted), RowIndex(0)), BaseRuntimeError);
}

TEST(DOM_TableRows, OfALivePredefinedIdentifierAreNotDetected)
{
    Table table = makeGrid(3, 2);
    table.insertRow(makeRow(2), RowIndex(1));
    EXPECT_EQ(table.getID(RowIndex(1)), RowID(2));
    EXPECT_EQ(table.getID(RowIndex(2)), RowID(2));
}

TEST(DOM_TableRows, LeaveWithTheirCellsStyleAndIdentifier)
{
    Table table = makeGrid(3, 2);
    table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(1));
    const auto style = table.getSharedStyle(RowIndex(1));
    const RowData removed = table.removeRow(RowIndex(1));
    EXPECT_EQ(getText(removed), "2: 0=10 1=11");
    EXPECT_EQ(removed.style, style);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | 1=20 2=21"}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(2));
    EXPECT_EQ(table.getIndex(RowID(2)), boost::none);
    EXPECT_EQ(table.getRowStylesBegin(), table.getRowStylesEnd());
}

TEST(DOM_TableRows, ComeBackAsTheyLeft)
{
    Table table = makeGrid(4, 3, 5);
    table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(1));
    table.setMergeProps(RowIndex(1), ColumnIndex(0), 1, 1);
    const Table before = table;
    const auto chunks = getChunkTexts(table);
    for (std::uint64_t row = 0; row < 4; ++row) {
        RowData removed = table.removeRow(RowIndex(row));
        EXPECT_NE(table, before);
        table.insertRow(std::move(removed), RowIndex(row));
        EXPECT_EQ(table, before) << row;
        EXPECT_EQ(table.getMergedRange(RowIndex(2), ColumnIndex(1)), makeRange(1, 3, 0, 2)) << row;
    }
}

TEST(DOM_TableRows, BehindTheLiveOnesHaveNothingButAnIdentifier)
{
    Table table = makeGrid(3, 2);
    const Table before = table;
    const RowData removed = table.removeRow(RowIndex(3));
    EXPECT_EQ(getText(removed), "4:");
    EXPECT_EQ(removed.style, nullptr);
    EXPECT_EQ(getText(table.removeRow(RowIndex(100))), "101:");
    EXPECT_EQ(table, before);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
}

TEST(DOM_TableRows, WithoutStorageLeaveJustAsWell)
{
    Table table(RowIndex(5), ColumnIndex(2));
    setNumber(table, 0, 0, 1.0);
    EXPECT_EQ(getText(table.removeRow(RowIndex(3))), "4:");
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=1"}));
    EXPECT_EQ(table.getID(RowIndex(3)), RowID(5));
}

TEST(DOM_TableRows, TakeTheirChunkWithThemWhenTheyAreItsLast)
{
    Table table = makeGrid(3, 1, 1);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0", "1: 1=10", "2: 1=20"}));
    table.removeRow(RowIndex(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0", "1: 1=20"}));
    table.removeRow(RowIndex(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0"}));
    table.removeRow(RowIndex(0));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0:"}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(0));
    setNumber(table, 0, 0, 7.0);
    EXPECT_EQ(getNumber(table, 0, 0), 7.0);
}

TEST(DOM_TableRows, TakeTheirMergedRangeWithThemAndLeaveTheirPivotTablesArea)
{
    Table table = makeGrid(5, 3);
    table.setMergeProps(RowIndex(1), ColumnIndex(0), 1, 0);
    table.setMergeProps(RowIndex(3), ColumnIndex(0), 1, 0);
    table.setPivotTable(RowIndex(1), ColumnIndex(2), makePivotTable(1, 2));
    table.removeRow(RowIndex(1));
    EXPECT_EQ(table.getMergedRange(RowIndex(1), ColumnIndex(0)), boost::none);
    EXPECT_EQ(table.getMergedRange(RowIndex(3), ColumnIndex(0)), makeRange(2, 4, 0, 1));
    EXPECT_EQ(table.getPivotRoot(RowIndex(2), ColumnIndex(2)), makeIndex(1, 2));
}

TEST(DOM_TableRows, InsertedIntoAMergedRangeDoNotWidenIt)
{
    Table table = makeGrid(8, 1);
    table.setMergeProps(RowIndex(2), ColumnIndex(0), 3, 0);
    table.insertRow(makeRow(Inserted), RowIndex(3));
    EXPECT_EQ(table.getMergedRange(RowIndex(2), ColumnIndex(0)), makeRange(2, 6, 0, 1));
    table.insertRow(makeRow(Inserted + 1), RowIndex(2));
    EXPECT_EQ(table.getMergedRange(RowIndex(3), ColumnIndex(0)), makeRange(3, 7, 0, 1));
    EXPECT_EQ(table.getMergedRange(RowIndex(2), ColumnIndex(0)), boost::none);
}

// Rows among tombstones

TEST(DOM_TableRows, AreInsertedAmongTombstones)
{
    Table table = makeGrid(3, 1);
    table.replaceRowWithTombstone(Position(1));
    table.insertRow(makeRow(Inserted, {{0, 7.0}}), Position(2));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 | 1=7 | 1=20"}));
    EXPECT_EQ(table.getAllRowsCount(), Position(4));
    EXPECT_EQ(table.convertRowIndex(Position(1)), boost::none);
    EXPECT_EQ(table.convertRowIndex(Position(2)), RowIndex(1));
    table.insertRow(makeRow(Inserted + 1, {{0, 8.0}}), Position(1));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 | 1=8 | 1=7 | 1=20"}));
    EXPECT_EQ(table.convertRowIndex(Position(2)), boost::none);
}

TEST(DOM_TableRows, ReplacedWithTombstonesAreRestoredWithoutTrace)
{
    Table table = makeGrid(4, 3);
    table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(2));
    const Table before = table;
    RowData removed = table.replaceRowWithTombstone(Position(2));
    EXPECT_EQ(getText(removed), "3: 0=20 1=21 2=22");
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
    EXPECT_EQ(table.getAllRowsCount(), Position(4));
    EXPECT_NE(table, before);
    table.restoreRow(std::move(removed), Position(2));
    EXPECT_EQ(table, before);
    EXPECT_EQ(table.getAllRowsCount(), Position(4));
    EXPECT_EQ(table.resolveRowIndex(RowID(3), false), RowIndex(2));
}

TEST(DOM_TableRows, AreRemovedAmongTombstonesWithoutTrace)
{
    Table table = makeGrid(4, 1);
    table.replaceRowWithTombstone(Position(1));
    EXPECT_EQ(getText(table.removeRow(Position(2))), "3: 0=20");
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 | 1=30"}));
    EXPECT_EQ(table.getAllRowsCount(), Position(3));
    EXPECT_EQ(table.resolveRowIndex(RowID(2), false), RowIndex(1));
    EXPECT_EQ(table.resolveRowIndex(RowID(3), false), boost::none);
}

TEST(DOM_TableRows, ForgetATombstoneThatIsRemoved)
{
    Table table = makeGrid(4, 1);
    table.replaceRowWithTombstone(Position(1));
    EXPECT_EQ(getText(table.removeRow(Position(1))), "2:");
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 | 1=20 | 1=30"}));
    EXPECT_EQ(table.getAllRowsCount(), Position(3));
    EXPECT_EQ(table.resolveRowIndex(RowID(2), false), boost::none);
}

TEST(DOM_TableRows, BehindTheLiveOnesLeaveNoTombstone)
{
    Table table = makeGrid(2, 1);
    table.replaceRowWithTombstone(Position(1));
    const Table before = table;
    EXPECT_EQ(getText(table.replaceRowWithTombstone(Position(2))), "3:");
    EXPECT_EQ(getText(table.replaceRowWithTombstone(Position(9))), "10:");
    EXPECT_EQ(getText(table.removeRow(Position(9))), "10:");
    EXPECT_EQ(table, before);
    EXPECT_EQ(table.getAllRowsCount(), Position(2));
}

TEST(DOM_TableRowsDeathTest, AreNotReplacedTwiceNorRestoredWhereTheyAreLive)
{
    Table table = makeGrid(3, 1);
    table.replaceRowWithTombstone(Position(1));
    EXPECT_DEATH(table.replaceRowWithTombstone(Position(1)), R"(OptUtils:73: opt)");
    EXPECT_DEATH(table.restoreRow(makeRow(Inserted), Position(0)), "tombstone");
}

TEST(DOM_TableRows, ForgetAllTombstones)
{
    Table table = makeGrid(3, 1);
    table.replaceRowWithTombstone(Position(1));
    table.clearRowTombstones();
    EXPECT_EQ(table.getAllRowsCount(), Position(2));
    EXPECT_EQ(table.resolveRowIndex(RowID(2), false), boost::none);
}

TEST(DOM_TableRows, ConvertTheirPositions)
{
    Table table = makeGrid(4, 1);
    table.replaceRowWithTombstone(Position(1));
    EXPECT_EQ(table.convertRowIndex(RowIndex(1)), Position(2));
    EXPECT_EQ(table.convertRowIndex(Position(3)), RowIndex(2));
    EXPECT_EQ(table.getRowIndexToInsertTo(Position(1)), RowIndex(1));
    EXPECT_EQ(table.getRowIndexToInsertTo(Position(2)), RowIndex(1));
}

} // namespace
} // namespace QN::DOM::TableRowsTest
