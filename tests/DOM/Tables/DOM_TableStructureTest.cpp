#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableStructureTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

constexpr std::uint64_t Inserted = 5'000'000'000;

RowData makeRow(std::uint64_t id, const std::vector<std::pair<std::uint64_t, double>>& cells = {})
{
    RowData row;
    row.id = RowID(id);
    for (const auto& [column, number] : cells) {
        row.cells.emplace_back(ColumnIndex(column), makeNumberCell(number));
    }
    return row;
}

ColumnData makeColumn(std::uint64_t id, const std::vector<std::pair<std::uint64_t, double>>& cells = {})
{
    ColumnData column;
    column.id = ColumnID(id);
    for (const auto& [row, number] : cells) {
        column.cells.emplace_back(RowIndex(row), makeNumberCell(number));
    }
    return column;
}

/// The cells of a row or column in transit.
template <class Data>
std::string getText(const Data& data)
{
    std::ostringstream text;
    text << data.id.get() << ":";
    for (const auto& [index, cell] : data.cells) {
        text << " " << index.get() << "=" << getNumber(cell.get());
    }
    return text.str();
}

template <class Function>
std::string getExceptionText(Function function)
{
    try {
        function();
    } catch (const Table::BadRowColIDException& exception) {
        return exception.what();
    }
    return "<none>";
}

// Rows

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

// Columns

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
} // namespace QN::DOM::TableStructureTest
