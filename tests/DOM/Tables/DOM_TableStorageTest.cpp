#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableStorageTest {
namespace {

using namespace QN::Test;

TEST(DOM_Table, HoldsNoCellsAtFirst)
{
    const Table table;
    EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(0)), nullptr);
    EXPECT_EQ(table.getCell(makeIndex(MaxRows - 1, MaxColumns - 1)), nullptr);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0:"}));
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(0));
}

TEST(DOM_Table, FindsTheCellsThatAreStored)
{
    Table table = makeGrid(3, 4);
    for (std::uint64_t row = 0; row < 3; ++row) {
        for (std::uint64_t column = 0; column < 4; ++column) {
            EXPECT_EQ(getNumber(table, row, column), static_cast<double>(10 * row + column));
        }
        EXPECT_EQ(table.getCell(RowIndex(row), ColumnIndex(4)), nullptr);
    }
    EXPECT_EQ(table.getCell(RowIndex(3), ColumnIndex(0)), nullptr);
    EXPECT_EQ(table.getCell(makeIndex(2, 3)), std::as_const(table).getCell(RowIndex(2), ColumnIndex(3)));
}

TEST(DOM_Table, FindsACellByTheIdentifiersOfItsRowAndColumn)
{
    Table table = makeGrid(3, 3);
    EXPECT_EQ(getNumber(table.getCellById(RowID(2), ColumnID(3))), 12.0);
    EXPECT_EQ(std::as_const(table).getCellById(RowID(2), ColumnID(3)),
              table.getCell(RowIndex(1), ColumnIndex(2)));
    EXPECT_EQ(table.getCellById(RowID(0), ColumnID(3)), nullptr);
    EXPECT_EQ(table.getCellById(RowID(2), ColumnID(0)), nullptr);
    EXPECT_EQ(table.getCellById(RowID(7), ColumnID(7)), nullptr);
}

TEST(DOM_Table, KeepsTheCellsOfARowSortedByColumn)
{
    Table table;
    for (const std::uint64_t column : {5U, 1U, 3U}) {
        setNumber(table, 0, column, static_cast<double>(column));
    }
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 2=1 4=3 6=5"}));
}

TEST(DOM_Table, ShiftsTheRowsBehindAnInsertedCell)
{
    Table table;
    setNumber(table, 0, 0, 1.0);
    setNumber(table, 2, 0, 3.0);
    setNumber(table, 1, 1, 2.0);
    setNumber(table, 0, 1, 1.5);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=1 2=1.5 | 2=2 | 1=3"}));
}

TEST(DOM_Table, FillsInTheRowsBeforeOneFarBelow)
{
    Table table;
    setNumber(table, 1, 0, 1.0);
    setNumber(table, 5, 0, 5.0);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: | 1=1 | | | | 1=5"}));
    EXPECT_EQ(getOffsets(table, 0), (std::vector<std::uint64_t>{0, 0, 1, 1, 1, 1}));
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(6));
}

TEST(DOM_Table, AnswersTheSameCellUntilItIsRemoved)
{
    Table table;
    Cell& cell = table.getOrCreateCell(RowIndex(2), ColumnIndex(3));
    EXPECT_EQ(&table.getOrCreateCell(RowIndex(2), ColumnIndex(3)), &cell);
    makeGrid(3, 3);
    setNumber(table, 0, 0, 1.0);
    setNumber(table, 2, 2, 1.0);
    EXPECT_EQ(table.getCell(RowIndex(2), ColumnIndex(3)), &cell);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(4));
}

TEST(DOM_TableDeathTest, StoresNoCellOutsideTheLimits)
{
    Table table;
    EXPECT_DEATH(table.getOrCreateCell(RowIndex(MaxRows), ColumnIndex(0)),
                 R"(rowIndex\.get\(\) < DOM::MaxRows)");
    EXPECT_DEATH(table.getOrCreateCell(RowIndex(0), ColumnIndex(MaxColumns)),
                 R"(colIndex\.get\(\) < DOM::MaxColumns)");
    EXPECT_DEATH(table.setCell(RowIndex(MaxRows), ColumnIndex(0), std::make_unique<Cell>()),
                 R"(rowIndex\.get\(\) < DOM::MaxRows)");
    EXPECT_DEATH(table.setCell(RowIndex(0), ColumnIndex(MaxColumns), std::make_unique<Cell>()),
                 R"(colIndex\.get\(\) < DOM::MaxColumns)");
    EXPECT_DEATH(table.setMergeProps(RowIndex(MaxRows), ColumnIndex(0), 1, 1),
                 R"(rowIndex\.get\(\) < DOM::MaxRows)");
    EXPECT_DEATH(table.setPivotTable(RowIndex(MaxRows), ColumnIndex(0), makePivotTable(1, 1)),
                 R"(rowIndex\.get\(\) < DOM::MaxRows)");
}

TEST(DOM_Table, StoresACellAtTheLimits)
{
    Table table;
    table.getOrCreateCell(RowIndex(MaxRows - 1), ColumnIndex(MaxColumns - 1));
    EXPECT_NE(table.getCell(RowIndex(MaxRows - 1), ColumnIndex(MaxColumns - 1)), nullptr);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(MaxRows));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(MaxColumns));
}

TEST(DOM_Table, TakesACellWithItsMergedRangeAndPivotTable)
{
    Table table;
    auto cell = makeNumberCell(7.0);
    cell->setMergeProps(CellMergeProps(2, 1));
    cell->setPivotTable(makePivotTable(4, 3));
    table.setCell(RowIndex(1), ColumnIndex(2), std::move(cell));
    EXPECT_EQ(getNumber(table, 1, 2), 7.0);
    EXPECT_EQ(table.getMergedRange(RowIndex(3), ColumnIndex(3)), makeRange(1, 4, 2, 4));
    EXPECT_EQ(table.getPivotRoot(RowIndex(3), ColumnIndex(5)), makeIndex(1, 2));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(4));
}

TEST(DOM_Table, TakesACellWithOtherMergeProps)
{
    Table table;
    table.setCell(RowIndex(0), ColumnIndex(0), makeNumberCell(7.0), CellMergeProps(1, 0));
    EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(0))->getMergeProps(), CellMergeProps(1, 0));
    EXPECT_EQ(table.getMergedRange(RowIndex(0), ColumnIndex(0)), makeRange(0, 2, 0, 1));
}

TEST(DOM_Table, ForgetsTheMergedRangeAndPivotTableOfAReplacedCell)
{
    Table table;
    auto cell = makeNumberCell(7.0);
    cell->setMergeProps(CellMergeProps(2, 1));
    cell->setPivotTable(makePivotTable(4, 3));
    table.setCell(RowIndex(1), ColumnIndex(2), std::move(cell));
    table.setCell(RowIndex(1), ColumnIndex(2), makeNumberCell(8.0));
    EXPECT_EQ(getNumber(table, 1, 2), 8.0);
    EXPECT_EQ(table.getMergedRange(RowIndex(1), ColumnIndex(2)), boost::none);
    EXPECT_EQ(table.getPivotRoot(RowIndex(1), ColumnIndex(2)), boost::none);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
}

TEST(DOM_TableDeathTest, TakesNoCellWhoseMergedRangeWrapsAround)
{
    Table table;
    auto cell = makeNumberCell(7.0);
    cell->setMergeProps(CellMergeProps(~std::uint64_t{0}, 0));
    EXPECT_DEATH(table.setCell(RowIndex(0), ColumnIndex(0), std::move(cell)),
                 R"(TableRange:229: _beginRow < _endRow)");
    auto other = makeNumberCell(7.0);
    other->setMergeProps(CellMergeProps(0, ~std::uint64_t{0}));
    EXPECT_DEATH(table.setCell(RowIndex(0), ColumnIndex(0), std::move(other)),
                 R"(TableRange:230: _beginColumn < _endColumn)");
}

// Replacing a cell raises the offsets behind it although no cell was added. The behaviour is fixed.

TEST(DOM_TableSetCellOnAnOccupiedPlace, LosesSightOfTheRowsBehind)
{
    Table table;
    table.setCell(RowIndex(0), ColumnIndex(0), makeNumberCell(1.0));
    table.setCell(RowIndex(1), ColumnIndex(0), makeNumberCell(2.0));
    table.setCell(RowIndex(0), ColumnIndex(0), makeNumberCell(3.0));
    EXPECT_EQ(getOffsets(table, 0), (std::vector<std::uint64_t>{0, 2}));
    EXPECT_EQ(getNumber(table, 0, 0), 3.0);
    EXPECT_EQ(table.getCell(RowIndex(1), ColumnIndex(0)), nullptr);
}

TEST(DOM_TableSetCellOnAnOccupiedPlace, LeavesTheLastRowInSightWhenThereIsNoneBehind)
{
    Table table;
    table.setCell(RowIndex(0), ColumnIndex(0), makeNumberCell(1.0));
    table.setCell(RowIndex(1), ColumnIndex(0), makeNumberCell(2.0));
    table.setCell(RowIndex(1), ColumnIndex(0), makeNumberCell(3.0));
    EXPECT_EQ(getOffsets(table, 0), (std::vector<std::uint64_t>{0, 1}));
    EXPECT_EQ(getNumber(table, 0, 0), 1.0);
    EXPECT_EQ(getNumber(table, 1, 0), 3.0);
}

TEST(DOM_TableSetCellOnAnOccupiedPlace, GivesTheCellsOfARowToTheOneBefore)
{
    Table table = makeGrid(3, 2);
    table.setCell(RowIndex(0), ColumnIndex(0), makeNumberCell(7.0));
    EXPECT_EQ(getOffsets(table, 0), (std::vector<std::uint64_t>{0, 3, 5}));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=7 2=1 1=10 | 2=11 1=20 | 2=21"}));
}

TEST(DOM_TableSetCellOnAnOccupiedPlace, LeavesAllOtherOperationsWithinTheCells)
{
    for (int operation = 0; operation < 12; ++operation) {
        Table table(std::uint64_t{7});
        for (std::uint64_t row = 0; row < 3; ++row) {
            setNumber(table, row, 0, 1.0);
            setNumber(table, row, 1, 1.0);
        }
        for (int replaced = 0; replaced < 9; ++replaced) {
            table.setCell(RowIndex(0), ColumnIndex(0), makeNumberCell(7.0));
        }
        switch (operation) {
        case 0:
            table.removeCell(RowIndex(0), ColumnIndex(1));
            break;
        case 1:
            EXPECT_EQ(table.removeRow(RowIndex(0)).cells.size(), 6U);
            break;
        case 2:
            EXPECT_TRUE(table.removeRow(RowIndex(2)).cells.empty());
            break;
        case 3:
            table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(1));
            break;
        case 4:
            EXPECT_EQ(table.removeColumn(ColumnIndex(0)).cells.size(), 1U);
            break;
        case 5:
            table.insertColumn({{}, {}, ColumnID(5'000'000'000)}, ColumnIndex(1));
            break;
        case 6:
            table.getOrCreateCell(RowIndex(2), ColumnIndex(5));
            table.getOrCreateCell(RowIndex(1), ColumnIndex(5));
            break;
        case 7:
            table.changeSize(RowIndex(0), ColumnIndex(0));
            break;
        case 8:
            table.resetRowColumnIDsToPredefined();
            break;
        case 9:
            EXPECT_EQ(Table(table), table);
            break;
        case 10:
            for (const CellIndex& place : {makeIndex(1, 0), makeIndex(2, 1)}) {
                table.setCell(place.getRow(), place.getColumn(), makeNumberCell(8.0));
            }
            break;
        default:
            table.removeRow(RowIndex(1));
            table.removeRow(RowIndex(0));
            table.removeRow(RowIndex(0));
            break;
        }
        std::size_t cells = 0;
        for (const Cell* const cell : std::as_const(table).getTableIterators()) {
            EXPECT_NE(cell, nullptr);
            ++cells;
        }
        EXPECT_LE(cells, 9U) << operation;
    }
}

TEST(DOM_Table, DropsACellWithItsMergedRangeAndPivotTable)
{
    Table table = makeGrid(3, 3);
    table.setMergeProps(RowIndex(1), ColumnIndex(1), 1, 1);
    table.setPivotTable(RowIndex(1), ColumnIndex(1), makePivotTable(2, 2));
    table.removeCell(RowIndex(1), ColumnIndex(1));
    EXPECT_EQ(table.getCell(RowIndex(1), ColumnIndex(1)), nullptr);
    EXPECT_EQ(table.getMergedRange(RowIndex(1), ColumnIndex(1)), boost::none);
    EXPECT_EQ(table.getPivotRoot(RowIndex(1), ColumnIndex(1)), boost::none);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 3=2 | 1=10 3=12 | 1=20 2=21 3=22"}));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(3));
}

TEST(DOM_Table, DropsNothingWhereNoCellIsStored)
{
    Table table = makeGrid(2, 2);
    table.setMergeProps(RowIndex(0), ColumnIndex(0), 1, 1);
    table.removeCell(RowIndex(5), ColumnIndex(0));
    table.removeCell(RowIndex(0), ColumnIndex(5));
    table.removeCell(RowIndex(1), ColumnIndex(2));
    EXPECT_EQ(table.getMergedRange(RowIndex(1), ColumnIndex(1)), makeRange(0, 2, 0, 2));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | 1=10 2=11"}));
}

TEST(DOM_Table, MergesAndUnmergesCells)
{
    Table table;
    table.setMergeProps(RowIndex(2), ColumnIndex(3), 1, 2);
    ASSERT_NE(table.getCell(RowIndex(2), ColumnIndex(3)), nullptr);
    EXPECT_EQ(table.getCell(RowIndex(2), ColumnIndex(3))->getMergeProps(), CellMergeProps(1, 2));
    EXPECT_EQ(table.getMergedRange(RowIndex(3), ColumnIndex(5)), makeRange(2, 4, 3, 6));
    EXPECT_EQ(table.getMergedCellRoot(RowIndex(3), ColumnIndex(5)), makeIndex(2, 3));
    EXPECT_EQ(table.getMergedCellRoot(RowIndex(2), ColumnIndex(3)), boost::none);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(6));

    table.setMergeProps(RowIndex(2), ColumnIndex(3), 0, 0);
    EXPECT_EQ(table.getCell(RowIndex(2), ColumnIndex(3))->getMergeProps(), CellMergeProps());
    EXPECT_EQ(table.getMergedRange(RowIndex(2), ColumnIndex(3)), boost::none);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(4));
}

TEST(DOM_Table, UnmergesWithoutMakingACell)
{
    Table table;
    table.setMergeProps(RowIndex(2), ColumnIndex(3), 0, 0);
    EXPECT_EQ(table.getCell(RowIndex(2), ColumnIndex(3)), nullptr);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(0));
}

TEST(DOM_Table, SetsAndRemovesAPivotTable)
{
    Table table = makeGrid(2, 2);
    table.setPivotTable(RowIndex(1), ColumnIndex(1), makePivotTable(3, 2));
    EXPECT_EQ(getNumber(table, 1, 1), 11.0);
    EXPECT_NE(table.getCell(RowIndex(1), ColumnIndex(1))->getPivotTable(), nullptr);
    EXPECT_EQ(table.getPivotRoot(RowIndex(2), ColumnIndex(3)), makeIndex(1, 1));
    EXPECT_TRUE(table.isPivotTablesInRange(makeRange(2, 9, 3, 4)));
    EXPECT_FALSE(table.isPivotTablesInRange(makeRange(3, 9, 3, 4)));
    EXPECT_EQ(table.getPivotTablesInRange(makeRange(0, 9, 0, 9)), (std::vector{makeIndex(1, 1)}));
    EXPECT_TRUE(table.canInsertRow(RowIndex(2)));
    EXPECT_FALSE(table.canInsertRow(RowIndex(1)));
    EXPECT_TRUE(table.canInsertColumn(ColumnIndex(3)));
    EXPECT_FALSE(table.canInsertColumn(ColumnIndex(4)));

    table.removePivotTable(RowIndex(1), ColumnIndex(1));
    EXPECT_EQ(table.getCell(RowIndex(1), ColumnIndex(1))->getPivotTable(), nullptr);
    EXPECT_EQ(getNumber(table, 1, 1), 11.0);
    EXPECT_FALSE(table.isPivotTablesInRange(makeRange(0, 9, 0, 9)));
    table.removePivotTable(RowIndex(7), ColumnIndex(7));
    EXPECT_EQ(table.getCell(RowIndex(7), ColumnIndex(7)), nullptr);
}

TEST(DOM_TableDeathTest, NeedsAPivotTableWithAnArea)
{
    Table table;
    EXPECT_DEATH(table.setPivotTable(RowIndex(0), ColumnIndex(0), makePivotTable(0, 1)),
                 R"(TableRange:230: _beginColumn < _endColumn)");
    EXPECT_DEATH(table.setPivotTable(RowIndex(0), ColumnIndex(0), nullptr), "plainPtr");
}

// Chunks

TEST(DOM_Table, SplitsAChunkWithOneCellTooMany)
{
    Table table = makeGrid(3, 2, 6);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | 1=10 2=11 | 1=20 2=21"}));
    setNumber(table, 3, 0, 30.0);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | 1=10 2=11", "2: 1=20 2=21 | 1=30"}));
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(4));
    EXPECT_EQ(getNumber(table, 2, 1), 21.0);
    EXPECT_EQ(getNumber(table, 3, 0), 30.0);
}

TEST(DOM_Table, SplitsAChunkThatTakesACellToo)
{
    Table table = makeGrid(3, 2, 6);
    table.setCell(RowIndex(3), ColumnIndex(0), makeNumberCell(30.0));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 | 1=10 2=11", "2: 1=20 2=21 | 1=30"}));
}

TEST(DOM_Table, SplitsAChunkInTheMiddle)
{
    Table table = makeGrid(8, 1, 4);
    EXPECT_EQ(getChunkTexts(table),
              (ChunkTexts{"0: 1=0 | 1=10", "2: 1=20 | 1=30", "4: 1=40 | 1=50 | 1=60 | 1=70"}));
    setNumber(table, 2, 1, 21.0);
    setNumber(table, 2, 2, 22.0);
    setNumber(table, 3, 1, 31.0);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 | 1=10", "2: 1=20 2=21 3=22", "3: 1=30 2=31",
                                                "4: 1=40 | 1=50 | 1=60 | 1=70"}));
}

TEST(DOM_Table, NeverDividesARow)
{
    Table table(std::uint64_t{2});
    for (std::uint64_t column = 0; column < 5; ++column) {
        setNumber(table, 0, column, static_cast<double>(column));
    }
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 3=2 4=3 5=4"}));
    setNumber(table, 1, 0, 10.0);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1 3=2 4=3 5=4", "1: 1=10"}));
}

TEST(DOM_Table, WorksWithChunksOfNoCells)
{
    const Table table = makeGrid(3, 2, 0);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0 2=1", "1: 1=10 2=11", "2: 1=20 2=21"}));
}

TEST(DOM_Table, KeepsItsChunksWhenCellsAreDropped)
{
    Table table = makeGrid(3, 1, 1);
    table.removeCell(RowIndex(1), ColumnIndex(0));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0", "1:", "2: 1=20"}));
}

} // namespace
} // namespace QN::DOM::TableStorageTest
