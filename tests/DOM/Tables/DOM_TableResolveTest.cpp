#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableResolveTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;
using RowPair = Table::IndexPair<RowIndex>;
using ColumnPair = Table::IndexPair<ColumnIndex>;

constexpr std::uint64_t Inserted = 5'000'000'000;

/// 10 by 10 without the rows 0, 3, 4 and 9 and without the columns 0 and 5, which left tombstones. Live are the row
/// identifiers 2, 3, 6, 7, 8, 9 and the column identifiers 2, 3, 4, 5, 7, 8, 9, 10.
Table makeTable()
{
    Table table(RowIndex(10), ColumnIndex(10));
    for (const std::uint64_t row : {0U, 3U, 4U, 9U}) {
        table.replaceRowWithTombstone(Position(row));
    }
    for (const std::uint64_t column : {0U, 5U}) {
        table.replaceColWithTombstone(Position(column));
    }
    return table;
}

TEST(DOM_TableIdentity, MapsPositionsAndIdentifiers)
{
    Table table(RowIndex(3), ColumnIndex(3));
    table.insertRow({{}, {}, RowID(Inserted)}, RowIndex(1));
    EXPECT_EQ(table.getID(RowIndex(0)), RowID(1));
    EXPECT_EQ(table.getID(RowIndex(1)), RowID(Inserted));
    EXPECT_EQ(table.getID(RowIndex(2)), RowID(2));
    EXPECT_EQ(table.getID(ColumnIndex(2)), ColumnID(3));
    EXPECT_EQ(table.getIndex(RowID(2)), RowIndex(2));
    EXPECT_EQ(table.getIndex(RowID(Inserted)), RowIndex(1));
    EXPECT_EQ(table.getIndex(ColumnID(3)), ColumnIndex(2));
}

TEST(DOM_TableIdentity, HasNoIndexForAnIdentifierThatIsNotLive)
{
    const Table table = makeTable();
    EXPECT_EQ(table.getIndex(RowID(0)), boost::none);
    EXPECT_EQ(table.getIndex(RowID(1)), boost::none);
    EXPECT_EQ(table.getIndex(RowID(MaxRows + 1)), boost::none);
    EXPECT_EQ(table.getIndex(ColumnID(1)), boost::none);
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns + 1)), boost::none);
}

TEST(DOM_TableIdentity, DoesNotResolveIdentifiersPastTheLimits)
{
    Table table(RowIndex(3), ColumnIndex(3));
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns)), ColumnIndex(MaxColumns - 1));
    table.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(0));
    table.insertColumn({{}, {}, ColumnID(Inserted + 1)}, ColumnIndex(0));
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns)), boost::none);
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns - 1)), boost::none);
    EXPECT_EQ(table.getIndex(ColumnID(MaxColumns - 2)), ColumnIndex(MaxColumns - 1));
}

TEST(DOM_TableIdentity, GivesFreshIdentifiersForEachAxis)
{
    const Table table;
    const auto rowID = table.generateID<RowID>();
    const auto columnID = table.generateID<ColumnID>();
    EXPECT_GE(rowID.get(), 2147483647U);
    EXPECT_GE(columnID.get(), 2147483647U);
    EXPECT_NE(rowID, table.generateID<RowID>());
}

TEST(DOM_TableResolve, TakesAPositionAsItIs)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRowIndex(RowIndex(3), false), RowIndex(3));
    EXPECT_EQ(table.resolveRowIndex(RowIndex(3), true), RowIndex(3));
    EXPECT_EQ(table.resolveColIndex(ColumnIndex(99), true), ColumnIndex(99));
}

TEST(DOM_TableResolve, FindsALiveIdentifier)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRowIndex(RowID(2), false), RowIndex(0));
    EXPECT_EQ(table.resolveRowIndex(RowID(6), true), RowIndex(2));
    EXPECT_EQ(table.resolveColIndex(ColumnID(7), false), ColumnIndex(4));
}

TEST(DOM_TableResolve, PutsARemovedBeginningWhereItWouldStand)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRowIndex(RowID(1), false), RowIndex(0));
    EXPECT_EQ(table.resolveRowIndex(RowID(4), false), RowIndex(2));
    EXPECT_EQ(table.resolveRowIndex(RowID(5), false), RowIndex(2));
    EXPECT_EQ(table.resolveRowIndex(RowID(10), false), RowIndex(6));
    EXPECT_EQ(table.resolveColIndex(ColumnID(6), false), ColumnIndex(4));
}

TEST(DOM_TableResolve, PutsARemovedEndOneBefore)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRowIndex(RowID(4), true), RowIndex(1));
    EXPECT_EQ(table.resolveRowIndex(RowID(5), true), RowIndex(1));
    EXPECT_EQ(table.resolveRowIndex(RowID(10), true), RowIndex(5));
    EXPECT_EQ(table.resolveRowIndex(RowID(1), true), boost::none);
    EXPECT_EQ(table.resolveColIndex(ColumnID(1), true), boost::none);
    EXPECT_EQ(table.resolveColIndex(ColumnID(6), true), ColumnIndex(3));
}

TEST(DOM_TableResolve, FindsNothingForAnUnknownIdentifier)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRowIndex(RowID(0), false), boost::none);
    EXPECT_EQ(table.resolveRowIndex(RowID(Inserted), false), boost::none);
    EXPECT_EQ(table.resolveColIndex(ColumnID(Inserted), true), boost::none);
}

TEST(DOM_TableResolve, ShrinksARangeToItsLiveRows)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRange(RowID(2), RowID(7)), (RowPair{RowIndex(0), RowIndex(3)}));
    EXPECT_EQ(table.resolveRange(RowID(1), RowID(10)), (RowPair{RowIndex(0), RowIndex(5)}));
    EXPECT_EQ(table.resolveRange(RowID(3), RowID(5)), (RowPair{RowIndex(1), RowIndex(1)}));
    EXPECT_EQ(table.resolveRange(RowID(4), RowID(6)), (RowPair{RowIndex(2), RowIndex(2)}));
    EXPECT_EQ(table.resolveRange(ColumnID(6), ColumnID(8)), (ColumnPair{ColumnIndex(4), ColumnIndex(5)}));
    EXPECT_EQ(table.resolveRange(RowIndex(1), RowID(7)), (RowPair{RowIndex(1), RowIndex(3)}));
}

TEST(DOM_TableResolve, FindsNothingForARangeWithoutLiveRows)
{
    const Table table = makeTable();
    EXPECT_EQ(table.resolveRange(RowID(4), RowID(5)), boost::none);
    EXPECT_EQ(table.resolveRange(RowID(1), RowID(1)), boost::none);
    EXPECT_EQ(table.resolveRange(RowID(10), RowID(10)), boost::none);
    EXPECT_EQ(table.resolveRange(RowID(7), RowID(6)), boost::none);
    EXPECT_EQ(table.resolveRange(RowID(2), RowID(Inserted)), boost::none);
    EXPECT_EQ(table.resolveRange(ColumnID(Inserted), ColumnID(2)), boost::none);
}

TableRangeByID makeIDRange(std::uint64_t beginRow, std::uint64_t lastRow, std::uint64_t beginColumn,
                           std::uint64_t lastColumn)
{
    return {{RowID(beginRow), RowID(lastRow)}, {ColumnID(beginColumn), ColumnID(lastColumn)}};
}

TEST(DOM_TableResolve, TellsWhetherACellLiesInARange)
{
    const Table table = makeTable();
    const TableRangeByID range = makeIDRange(3, 7, 6, 8);
    for (std::uint64_t row = 0; row < 6; ++row) {
        for (std::uint64_t column = 0; column < 8; ++column) {
            EXPECT_EQ(table.isInRange(range, makeIndex(row, column)),
                      row >= 1 && row <= 3 && column >= 4 && column <= 5)
                << row << " " << column;
        }
    }
}

TEST(DOM_TableResolve, FindsNoCellInARangeThatDoesNotResolve)
{
    const Table table = makeTable();
    EXPECT_FALSE(table.isInRange(makeIDRange(3, 7, 1, 1), makeIndex(1, 0)));
    EXPECT_FALSE(table.isInRange(makeIDRange(1, 1, 2, 9), makeIndex(0, 0)));
    EXPECT_FALSE(table.isInRange(makeIDRange(3, 7, Inserted, 9), makeIndex(1, 1)));
    EXPECT_FALSE(table.isInRange(makeIDRange(Inserted, 7, 2, 9), makeIndex(1, 1)));
    EXPECT_FALSE(table.isInRange(makeIDRange(3, Inserted, 2, 9), makeIndex(1, 1)));
    EXPECT_FALSE(table.isInRange(makeIDRange(3, 7, 2, Inserted), makeIndex(1, 1)));
}

TEST(DOM_TableResolve, TellsWhetherACellLiesInAnyRange)
{
    const Table table = makeTable();
    const std::vector ranges{makeIDRange(2, 2, 2, 2), makeIDRange(9, 9, 9, 9)};
    EXPECT_TRUE(table.isInRanges(ranges, makeIndex(0, 0)));
    EXPECT_TRUE(table.isInRanges(ranges, makeIndex(5, 6)));
    EXPECT_FALSE(table.isInRanges(ranges, makeIndex(0, 1)));
    EXPECT_FALSE(table.isInRanges({}, makeIndex(0, 0)));
}

// Headers

void expectFrozen(const Table& table, const CellIndex& begin, std::uint64_t width, std::uint64_t height)
{
    const auto frozen = table.getFrozenRange();
    ASSERT_TRUE(frozen);
    EXPECT_EQ(frozen->begin, begin);
    EXPECT_EQ(frozen->size, (Size2D<std::uint64_t>(width, height)));
}

TEST(DOM_TableFrozenRange, IsMissingWithoutHeaders)
{
    EXPECT_FALSE(Table().getFrozenRange());
}

TEST(DOM_TableFrozenRange, IsWhatTheHeadersTake)
{
    Table table(RowIndex(10), ColumnIndex(10));
    table.setHeaderRowsCols(RowIndex(1), ColumnIndex(2), RowIndex(3), ColumnIndex(2));
    EXPECT_EQ(table.getHeaderRowsCols()->getBeginRowID(), RowID(2));
    EXPECT_EQ(table.getHeaderRowsCols()->getLastRowID(), RowID(4));
    EXPECT_EQ(table.getHeaderRowsCols()->getBeginColID(), ColumnID(3));
    EXPECT_EQ(table.getHeaderRowsCols()->getLastColID(), ColumnID(3));
    expectFrozen(table, makeIndex(1, 2), 1, 3);
}

TEST(DOM_TableFrozenRange, FollowsItsRowsAndColumns)
{
    Table table(RowIndex(10), ColumnIndex(10));
    table.setHeaderRowsCols(RowIndex(1), ColumnIndex(2), RowIndex(3), ColumnIndex(2));
    table.insertRow({{}, {}, RowID(Inserted)}, RowIndex(2));
    table.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(0));
    expectFrozen(table, makeIndex(1, 3), 1, 4);
    table.replaceRowWithTombstone(Position(4));
    expectFrozen(table, makeIndex(1, 3), 1, 3);
    table.replaceColWithTombstone(Position(3));
    expectFrozen(table, makeIndex(1, 0), 0, 3);
}

TEST(DOM_TableFrozenRange, IsEmptyWhereARangeIsMissing)
{
    Table table(RowIndex(10), ColumnIndex(10));
    HeaderRowsCols headers;
    table.setHeaderRowsCols(headers);
    expectFrozen(table, makeIndex(0, 0), 0, 0);
    headers.setBeginRow(RowID(2));
    table.setHeaderRowsCols(headers);
    expectFrozen(table, makeIndex(0, 0), 0, 0);
    headers.setLastRow(RowID(2));
    table.setHeaderRowsCols(headers);
    expectFrozen(table, makeIndex(1, 0), 0, 1);
    table.setHeaderRowsCols(boost::none);
    EXPECT_FALSE(table.getFrozenRange());
}

} // namespace
} // namespace QN::DOM::TableResolveTest
