#include "DOM/Tables/DOM_TableRangeUtils.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableRangeUtilsTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

TEST(DOM_ConvertTableRange, NamesTheCornersOfARange)
{
    const Table table(RowIndex(10), ColumnIndex(10));
    const TableRangeByID expected({RowID(2), RowID(4)}, {ColumnID(3), ColumnID(3)});
    EXPECT_EQ(convertToTableRangeByID(table, makeRange(1, 4, 2, 3)), expected);
    EXPECT_EQ(convertToTableRange(table, expected), makeRange(1, 4, 2, 3));
}

TEST(DOM_ConvertTableRange, FollowsRowsAndColumns)
{
    Table table(RowIndex(10), ColumnIndex(10));
    const TableRangeByID range = convertToTableRangeByID(table, makeRange(1, 4, 2, 3));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(2));
    table.insertColumn({{}, {}, ColumnID(5'000'000'000)}, ColumnIndex(0));
    EXPECT_EQ(convertToTableRange(table, range), makeRange(1, 5, 3, 4));
    EXPECT_EQ(convertToTableRangeByID(table, makeRange(1, 5, 3, 4)), range);
}

TEST(DOM_ConvertTableRange, ShrinksToTheLiveRowsUntilNoneIsLeft)
{
    Table table(RowIndex(10), ColumnIndex(10));
    const TableRangeByID range = convertToTableRangeByID(table, makeRange(1, 4, 2, 4));
    table.replaceRowWithTombstone(Position(1));
    EXPECT_EQ(convertToTableRange(table, range), makeRange(1, 3, 2, 4));
    table.replaceRowWithTombstone(Position(3));
    EXPECT_EQ(convertToTableRange(table, range), makeRange(1, 2, 2, 4));
    table.replaceRowWithTombstone(Position(2));
    EXPECT_EQ(convertToTableRange(table, range), boost::none);
}

TEST(DOM_ConvertTableRange, IsNothingWithoutColumnsOrForAnUnknownIdentifier)
{
    Table table(RowIndex(10), ColumnIndex(10));
    const TableRangeByID range = convertToTableRangeByID(table, makeRange(1, 4, 2, 3));
    table.removeColumn(ColumnIndex(2));
    EXPECT_EQ(convertToTableRange(table, range), boost::none);
    EXPECT_EQ(convertToTableRange(table, TableRangeByID()), boost::none);
}

TEST(DOM_ConvertTableRange, TakesAWholeListElementByElement)
{
    Table table(RowIndex(10), ColumnIndex(10));
    const std::vector ranges{makeRange(1, 4, 2, 3), makeRange(0, 1, 0, 1)};
    const auto byID = convertToTableRangesByID(table, ranges);
    EXPECT_EQ(byID, (std::vector{convertToTableRangeByID(table, ranges[0]),
                                 convertToTableRangeByID(table, ranges[1])}));
    table.removeRow(RowIndex(0));
    EXPECT_EQ(convertToTableRanges(table, byID),
              (std::vector<boost::optional<TableRange>>{makeRange(0, 3, 2, 3), boost::none}));
    EXPECT_TRUE(convertToTableRanges(table, {}).empty());
}

} // namespace
} // namespace QN::DOM::TableRangeUtilsTest
