#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DOM/Tables/DOM_TableRangeUtils.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "Support/RoundTrip.h"

/// Positions outside a table, the last row and the last column, and what goes past them.

namespace QN::DOM::TableLimitsTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

constexpr std::uint64_t Inserted = 5'000'000'000;
constexpr std::uint64_t Far = ~std::uint64_t{0};
constexpr RowIndex LastRow{MaxRows - 1};
constexpr ColumnIndex LastColumn{MaxColumns - 1};

/// A stored cell in each corner of the largest table, numbered from 1 row by row.
Table makeLargest()
{
    Table table;
    table.setUUID(UUID());
    setNumber(table, 0, 0, 1.0);
    setNumber(table, 0, LastColumn.get(), 2.0);
    setNumber(table, LastRow.get(), 0, 3.0);
    setNumber(table, LastRow.get(), LastColumn.get(), 4.0);
    return table;
}

// Positions without anything

TEST(DOM_TableOutside, HasNothingToAnswer)
{
    for (const Table& table : {Table(), makeGrid(3, 3, 2)}) {
        for (const std::uint64_t row : {std::uint64_t{3}, MaxRows - 1, MaxRows, Far}) {
            EXPECT_EQ(table.getCell(RowIndex(row), ColumnIndex(0)), nullptr);
            EXPECT_EQ(table.getCellInfo(RowIndex(row), ColumnIndex(0)).getCell(), nullptr);
            EXPECT_EQ(table.getSharedStyle(RowIndex(row)), nullptr);
            EXPECT_TRUE(table.getStyle(RowIndex(row)).isEmpty());
            EXPECT_EQ(table.getMergedRange(RowIndex(row), ColumnIndex(0)), boost::none);
            EXPECT_EQ(table.getMergedCellRoot(RowIndex(row), ColumnIndex(0)), boost::none);
            EXPECT_EQ(table.getPivotRoot(RowIndex(row), ColumnIndex(0)), boost::none);
            EXPECT_FALSE(table.canInsertRow(RowIndex(row)));
            EXPECT_EQ(table.convertRowIndex(Position(row)), RowIndex(row));
            EXPECT_EQ(table.convertRowIndex(RowIndex(row)), Position(row));
            EXPECT_EQ(table.getRowIndexToInsertTo(Position(row)), RowIndex(row));
            EXPECT_TRUE(table.getTableIt(RowIndex(row), ColumnIndex(0)) == table.getTableIterators().second);
            EXPECT_TRUE(table.getTableLogicalIt(RowIndex(row), ColumnIndex(1)) ==
                        table.getTableLogicalEndIt());
        }
        for (const std::uint64_t column : {std::uint64_t{3}, MaxColumns - 1, MaxColumns, Far}) {
            EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(column)), nullptr);
            EXPECT_EQ(table.getCellInfo(RowIndex(0), ColumnIndex(column)).getCell(), nullptr);
            EXPECT_EQ(table.getSharedStyle(ColumnIndex(column)), nullptr);
            EXPECT_TRUE(table.getStyle(ColumnIndex(column)).isEmpty());
            EXPECT_EQ(table.getMergedRange(RowIndex(0), ColumnIndex(column)), boost::none);
            EXPECT_EQ(table.getPivotRoot(RowIndex(0), ColumnIndex(column)), boost::none);
            EXPECT_FALSE(table.canInsertColumn(ColumnIndex(column)));
            EXPECT_EQ(table.convertColIndex(Position(column)), ColumnIndex(column));
            EXPECT_EQ(table.convertColIndex(ColumnIndex(column)), Position(column));
            EXPECT_EQ(table.getColIndexToInsertTo(Position(column)), ColumnIndex(column));
        }
    }
}

TEST(DOM_TableOutside, HasNothingToTakeAway)
{
    for (Table table : {Table(), makeGrid(3, 3, 2)}) {
        const std::string before = toJson(table);
        for (const std::uint64_t place : {std::uint64_t{3}, MaxRows, Far}) {
            table.removeCell(RowIndex(place), ColumnIndex(0));
            table.removeCell(RowIndex(0), ColumnIndex(place));
            table.removePivotTable(RowIndex(place), ColumnIndex(place));
            EXPECT_EQ(table.removeRow(RowIndex(place)).id, RowID(place + 1));
            EXPECT_EQ(table.removeColumn(ColumnIndex(place)).id, ColumnID(place + 1));
            EXPECT_EQ(table.removeRow(Position(place)).id, RowID(place + 1));
            EXPECT_EQ(table.removeColumn(Position(place)).id, ColumnID(place + 1));
            EXPECT_EQ(table.replaceRowWithTombstone(Position(place)).id, RowID(place + 1));
            EXPECT_EQ(table.replaceColWithTombstone(Position(place)).id, ColumnID(place + 1));
        }
        table.setMergeProps(LastRow, LastColumn, 0, 0);
        EXPECT_EQ(toJson(table), before);
    }
}

TEST(DOM_TableOutsideDeathTest, TakesNothingIn)
{
    Table table = makeGrid(3, 3);
    table.replaceRowWithTombstone(Position(2));
    table.replaceColWithTombstone(Position(2));
    EXPECT_DEATH(table.insertRow({{}, {}, RowID(Inserted)}, RowIndex(3)),
                 R"(position\.get\(\) <= _rowsCount)");
    EXPECT_DEATH(table.insertRow({{}, {}, RowID(Inserted)}, Position(4)),
                 R"(position\.get\(\) <= _rowsCount)");
    EXPECT_DEATH(table.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(3)),
                 R"(position\.get\(\) <= _colsCount)");
    EXPECT_DEATH(table.insertColumn({{}, {}, ColumnID(Inserted)}, Position(4)),
                 R"(position\.get\(\) <= _colsCount)");
    EXPECT_DEATH(table.restoreRow({{}, {}, RowID(Inserted)}, Position(3)), "isTombstone");
    EXPECT_DEATH(table.restoreColumn({{}, {}, ColumnID(Inserted)}, Position(3)), "isTombstone");
    EXPECT_DEATH(table.setMergeProps(RowIndex(MaxRows), ColumnIndex(0), 0, 0),
                 R"(TableRange:229: _beginRow < _endRow)");
    EXPECT_DEATH(table.setMergeProps(RowIndex(0), ColumnIndex(MaxColumns), 0, 0),
                 R"(TableRange:230: _beginColumn < _endColumn)");
    EXPECT_DEATH(table.setMergeProps(RowIndex(0), ColumnIndex(0), Far, 0),
                 R"(TableRange:229: _beginRow < _endRow)");
}

TEST(DOM_TableOutside, HasNoCellsToWalkOver)
{
    const Table table = makeGrid(3, 3, 2);
    for (const TableRange& range :
         {makeRange(3, 4, 0, 3), makeRange(0, 3, 3, 4), makeRange(MaxRows, MaxRows + 1, 0, 1),
          makeRange(Far - 1, Far, 0, Far), makeRange(0, Far, Far - 1, Far)}) {
        const auto iterators = table.getRangeIterators(range);
        EXPECT_TRUE(iterators.first == iterators.second);
        auto before = iterators.second;
        --before;
        EXPECT_TRUE(before == iterators.second);
    }
}

TEST(DOM_TableWithoutRows, GoesThroughEveryOperation)
{
    Table table;
    table.resetRowColumnIDsToPredefined();
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(1, 1));
    Table other;
    other.clearRowTombstones();
    other.clearColumnTombstones();
    EXPECT_EQ(other.getFrozenRange().has_value(), false);
    EXPECT_TRUE(other.areCellsEqual(Table()));
    EXPECT_TRUE(other.areRowColIDsEqual(Table()));
    other.insertRow({{}, {}, RowID(Inserted)}, RowIndex(0));
    other.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(0));
    EXPECT_EQ(getChunkTexts(other), (ChunkTexts{"0:"}));
    EXPECT_EQ(other.removeRow(RowIndex(0)).id, RowID(Inserted));
    EXPECT_EQ(other.removeColumn(ColumnIndex(0)).id, ColumnID(Inserted));
    EXPECT_EQ(getChunkTexts(other), (ChunkTexts{"0:"}));
}

// The last row and the last column

TEST(DOM_TableLastPlaces, HoldCellsThatAreFoundAndWalkedOver)
{
    const Table table = makeLargest();
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(MaxRows));
    EXPECT_EQ(getNumber(table, LastRow.get(), LastColumn.get()), 4.0);
    EXPECT_EQ(getNumber(table.getCellById(RowID(MaxRows), ColumnID(MaxColumns))), 4.0);
    std::vector<double> numbers;
    for (const Cell* const cell : table.getTableIterators()) {
        numbers.push_back(getNumber(cell));
    }
    EXPECT_EQ(numbers, (std::vector{1.0, 2.0, 3.0, 4.0}));

    auto last = table.getTableIterators().second;
    --last;
    EXPECT_EQ(last.getRowIndex(), LastRow);
    EXPECT_EQ(last.getColIndex(), LastColumn);
    const auto range = table.getRangeIterators(makeRange(MaxRows - 1, MaxRows, MaxColumns - 1, MaxColumns));
    EXPECT_EQ(getNumber(*range.first), 4.0);
    auto logical = table.getTableLogicalBeginIt();
    logical.advance(MaxRows * MaxColumns - 1);
    EXPECT_EQ(getNumber(*logical), 4.0);
    ++logical;
    EXPECT_TRUE(logical == table.getTableLogicalEndIt());
    --logical;
    EXPECT_EQ(getNumber(*logical), 4.0);
}

TEST(DOM_TableLastPlaces, AreNamedByTheLastPredefinedIdentifiers)
{
    Table table{RowIndex(MaxRows), ColumnIndex(MaxColumns)};
    const TableRangeByID whole = convertToTableRangeByID(table, makeRange(0, MaxRows, 0, MaxColumns));
    EXPECT_EQ(whole, TableRangeByID({RowID(1), RowID(MaxRows)}, {ColumnID(1), ColumnID(MaxColumns)}));
    EXPECT_EQ(convertToTableRange(table, whole), makeRange(0, MaxRows, 0, MaxColumns));
    table.setHeaderRowsCols(LastRow, LastColumn, LastRow, LastColumn);
    EXPECT_EQ(table.getFrozenRange()->begin, CellIndex(LastRow, LastColumn));
    table.replaceRowWithTombstone(Position(MaxRows - 1));
    table.replaceColWithTombstone(Position(MaxColumns - 1));
    EXPECT_EQ(convertToTableRange(table, whole), makeRange(0, MaxRows - 1, 0, MaxColumns - 1));
    EXPECT_EQ(table.getFrozenRange()->size, Size2D<std::uint64_t>(0, 0));
}

TEST(DOM_TableLastPlaces, ComeAndGo)
{
    Table table = makeLargest();
    table.setSharedStyle(makeStyle<RowStyle>('1'), LastRow);
    table.setSharedStyle(makeStyle<ColumnStyle>('2'), LastColumn);
    table.setMergeProps(LastRow, ColumnIndex(0), 0, 3);
    table.setMergeProps(RowIndex(0), LastColumn, 3, 0);
    const Table before(table);
    table.validate();

    RowData row = table.replaceRowWithTombstone(Position(MaxRows - 1));
    EXPECT_EQ(row.cells.size(), 2U);
    EXPECT_NE(row.style, nullptr);
    EXPECT_EQ(table.getAllRowsCount(), Position(MaxRows));
    ColumnData column = table.replaceColWithTombstone(Position(MaxColumns - 1));
    EXPECT_EQ(column.cells.size(), 1U);
    EXPECT_TRUE(getMergedRanges(table).empty());
    table.restoreColumn(std::move(column), Position(MaxColumns - 1));
    table.restoreRow(std::move(row), Position(MaxRows - 1));
    EXPECT_EQ(table, before);
    EXPECT_EQ(getMergedRanges(table), getMergedRanges(before));

    RowData removed = table.removeRow(LastRow);
    table.insertRow(std::move(removed), LastRow);
    EXPECT_EQ(table, before);
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(MaxRows, MaxColumns));
    expectRoundTrip(table);
}

TEST(DOM_TableLastPlaces, LeaveARowAndAColumnFreeWhenAnotherGoes)
{
    Table table = makeLargest();
    table.removeRow(RowIndex(5));
    table.removeColumn(ColumnIndex(5));
    EXPECT_EQ(getNumber(table, LastRow.get() - 1, LastColumn.get() - 1), 4.0);
    table.insertRow({{}, {}, RowID(Inserted)}, LastRow);
    table.insertColumn({{}, {}, ColumnID(Inserted)}, LastColumn);
    EXPECT_EQ(table.getIndex(RowID(Inserted)), LastRow);
    EXPECT_EQ(table.getIndex(ColumnID(Inserted)), LastColumn);
    setNumber(table, LastRow.get(), LastColumn.get(), 5.0);
    EXPECT_EQ(getNumber(table, LastRow.get(), LastColumn.get()), 5.0);
    EXPECT_EQ(getNumber(table.getCellById(RowID(Inserted), ColumnID(Inserted))), 5.0);
    expectRoundTrip(table);
}

// Past the limits

TEST(DOM_TablePastItsLimits, IsPushedByAnInsertionAndComesBack)
{
    Table table = makeLargest();
    const Table before(table);
    table.insertRow({{}, {}, RowID(Inserted)}, RowIndex(0));
    table.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(0));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(MaxRows + 1));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(MaxColumns + 1));
    EXPECT_EQ(table.getIndex(RowID(MaxRows)), boost::none);
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns)), boost::none);
    EXPECT_EQ(table.getCellById(RowID(MaxRows), ColumnID(1)), nullptr);
    EXPECT_EQ(getNumber(table, MaxRows, 1), 3.0);
    EXPECT_EQ(loadError<Table>(toJson(table)),
              "A table cannot be loaded: it has more rows than a table can have");
    table.removeRow(RowIndex(0));
    EXPECT_EQ(loadError<Table>(toJson(table)),
              "A table cannot be loaded: it has more columns than a table can have");
    table.removeColumn(ColumnIndex(0));
    EXPECT_EQ(table, before);
    expectRoundTrip(table);
}

TEST(DOM_TablePastItsLimits, IsMadeWithAnyCounts)
{
    const Table table(RowIndex(MaxRows + 1), ColumnIndex(1));
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(MaxRows + 1));
    EXPECT_EQ(loadError<Table>(toJson(table)),
              "A table cannot be loaded: it has more rows than a table can have");
}

TEST(DOM_TablePastItsLimitsDeathTest, IsNotValidWithAMergedRangeThatReachesThere)
{
    Table table = makeLargest();
    table.setMergeProps(LastRow, LastColumn, 1, 0);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(MaxRows));
    expectRoundTrip(table);
    EXPECT_DEATH(table.validate(), R"(getLiveRowsCount\(\)\.get\(\) > mergedCellsBounds\.rowIndex\.get\(\))");
}

TEST(DOM_TablePastItsLimits, MovesAMergedRangeOfAnySizeWithoutFailing)
{
    Table table = makeGrid(3, 3);
    table.setMergeProps(RowIndex(0), ColumnIndex(0), Far - 1, 0);
    table.setMergeProps(RowIndex(0), ColumnIndex(2), 0, std::uint64_t{1} << 63U);
    table.insertRow({{}, {}, RowID(Inserted)}, RowIndex(0));
    table.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(0));
    EXPECT_EQ(getMergedRanges(table),
              (std::vector{makeRange(0, Far, 1, 2), makeRange(1, 2, 3, (std::uint64_t{1} << 63U) + 4)}));
    EXPECT_EQ(getNumber(table, 1, 1), 0.0);
}

// Positions that removals freed at the end of an axis

TEST(DOM_TableFreedPositions, HoldCellsThatAreWalkedOverButNotFound)
{
    Table table = makeGrid(1, 2);
    table.removeColumn(ColumnIndex(0));
    EXPECT_EQ(table.getID(LastColumn), ColumnID(MaxColumns + 1));
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns + 1)), boost::none);
    Cell& cell = table.getOrCreateCell(RowIndex(0), LastColumn);
    EXPECT_EQ(&table.getOrCreateCell(RowIndex(0), LastColumn), &cell);
    EXPECT_EQ(table.getCell(RowIndex(0), LastColumn), nullptr);
    std::size_t stored = 0;
    for (const Cell* const walked : std::as_const(table).getTableIterators()) {
        EXPECT_NE(walked, nullptr);
        ++stored;
    }
    EXPECT_EQ(stored, 2U);
    table.removeCell(RowIndex(0), LastColumn);
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 2=1"}));
}

TEST(DOM_TableFreedPositions, HoldRowsWhoseIdentifiersDoNotResolve)
{
    Table table(RowIndex(MaxRows), ColumnIndex(1));
    table.removeRow(RowIndex(0));
    setNumber(table, LastRow.get(), 0, 1.0);
    const auto style = makeStyle<RowStyle>('1');
    table.setSharedStyle(style, LastRow);
    EXPECT_EQ(getNumber(table, LastRow.get(), 0), 1.0);
    EXPECT_EQ(table.getSharedStyle(LastRow), style);
    const TableRangeByID range = convertToTableRangeByID(table, makeRange(MaxRows - 1, MaxRows, 0, 1));
    EXPECT_EQ(range.getBeginRowID(), RowID(MaxRows + 1));
    EXPECT_EQ(convertToTableRange(table, range), boost::none);
    EXPECT_EQ(table.getCellById(RowID(MaxRows + 1), ColumnID(1)), nullptr);
}

} // namespace
} // namespace QN::DOM::TableLimitsTest
