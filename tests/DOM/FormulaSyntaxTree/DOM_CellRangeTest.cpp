#include "DOM/FormulaSyntaxTree/DOM_CellRange.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::CellRangeTest {

namespace {

const TableAddress First = std::string("First");
const TableAddress Second = std::string("Second");
const CellRange::Columns AllColumns{{ColumnIndex(0), true}, {ColumnIndex(16383), true}};
const CellRange::Rows AllRows{{RowIndex(0), true}, {RowIndex(1048575), true}};
const CellRange::Columns SomeColumns{{ColumnIndex(1), false}, {ColumnID(2), true}};
const CellRange::Rows SomeRows{{RowIndex(3), false}, {RowID(5), true}};

} // namespace

TEST(CellRangeTest, IsTheFirstCellByDefault)
{
    const CellRange range;
    EXPECT_TRUE(range.getFirstTableAddress() == TableAddress());
    EXPECT_TRUE(range.getSecondTableAddress() == TableAddress());
    EXPECT_EQ(range.getColumns(), CellRange::Columns());
    EXPECT_EQ(range.getRows(), CellRange::Rows());
    EXPECT_FALSE(range.isRowsRange());
    EXPECT_FALSE(range.isColumnsRange());
}

TEST(CellRangeTest, CanBeMadeOfColumnsAndRows)
{
    const CellRange range("doc", First, Second, SomeColumns, SomeRows);
    EXPECT_EQ(range.getDocURL(), "doc");
    EXPECT_TRUE(range.getFirstTableAddress() == First);
    EXPECT_TRUE(range.getSecondTableAddress() == Second);
    EXPECT_EQ(range.getColumns(), SomeColumns);
    EXPECT_EQ(range.getRows(), SomeRows);
    EXPECT_EQ(range.getBeginColumn(), SomeColumns.first);
    EXPECT_EQ(range.getLastColumn(), SomeColumns.second);
    EXPECT_EQ(range.getBeginRow(), SomeRows.first);
    EXPECT_EQ(range.getLastRow(), SomeRows.second);
    EXPECT_FALSE(range.isRowsRange());
    EXPECT_FALSE(range.isColumnsRange());
}

TEST(CellRangeTest, ColumnsAloneReachOverAllRows)
{
    const CellRange range("doc", First, Second, SomeColumns);
    EXPECT_EQ(range, CellRange("doc", First, Second, SomeColumns, AllRows));
    EXPECT_TRUE(range.isColumnsRange());
    EXPECT_FALSE(range.isRowsRange());
}

TEST(CellRangeTest, RowsAloneReachOverAllColumns)
{
    const CellRange range("doc", First, Second, SomeRows);
    EXPECT_EQ(range, CellRange("doc", First, Second, AllColumns, SomeRows));
    EXPECT_TRUE(range.isRowsRange());
    EXPECT_FALSE(range.isColumnsRange());
}

TEST(CellRangeTest, AColumnAndARowMakeARangeOfOneCell)
{
    const std::pair<ColumnAxis, RowAxis> cell(SomeColumns.second, SomeRows.first);
    EXPECT_EQ(CellRange("doc", First, Second, cell),
              CellRange("doc", First, Second, CellRange::Columns(cell.first, cell.first),
                        CellRange::Rows(cell.second, cell.second)));
}

TEST(CellRangeTest, OneColumnReachesOverAllRows)
{
    const ColumnAxis column(ColumnID(2), true);
    EXPECT_EQ(CellRange("doc", First, Second, column),
              CellRange("doc", First, Second, CellRange::Columns(column, column), AllRows));
}

TEST(CellRangeTest, OneRowReachesOverAllColumns)
{
    const RowAxis row(RowID(2), false);
    EXPECT_EQ(CellRange("doc", First, Second, row),
              CellRange("doc", First, Second, AllColumns, CellRange::Rows(row, row)));
}

TEST(CellRangeTest, WholeRowsNeedBothColumnBoundsFixedAtTheExactPositions)
{
    const CellRange rows("", First, First, CellRange::Rows({RowIndex(3), false}, {RowIndex(5), false}));
    EXPECT_TRUE(rows.isRowsRange());

    CellRange other = rows;
    other.setColumnBegin({ColumnIndex(0), false});
    EXPECT_FALSE(other.isRowsRange());
    other = rows;
    other.setColLast({ColumnIndex(16383), false});
    EXPECT_FALSE(other.isRowsRange());
    other = rows;
    other.setColLast({ColumnIndex(16382), true});
    EXPECT_FALSE(other.isRowsRange());
    other = rows;
    other.setColumnBegin({ColumnID(0), true});
    EXPECT_FALSE(other.isRowsRange());
}

TEST(CellRangeTest, WholeColumnsNeedBothRowBoundsFixedAtTheExactPositions)
{
    const CellRange columns("", First, First, SomeColumns);
    CellRange other = columns;
    other.setRowBegin({RowIndex(0), false});
    EXPECT_FALSE(other.isColumnsRange());
    other = columns;
    other.setRowLast({RowIndex(1048575), false});
    EXPECT_FALSE(other.isColumnsRange());
    other = columns;
    other.setRowLast({RowIndex(1048574), true});
    EXPECT_FALSE(other.isColumnsRange());
    other = columns;
    other.setRowLast({RowID(1048575), true});
    EXPECT_FALSE(other.isColumnsRange());
    other = columns;
    other.setRowLast({RowIndex(1048575), true});
    EXPECT_TRUE(other.isColumnsRange());
}

TEST(CellRangeTest, ComparesAllMembers)
{
    const CellRange range("doc", First, Second, SomeColumns, SomeRows);
    EXPECT_EQ(range, CellRange("doc", First, Second, SomeColumns, SomeRows));
    EXPECT_NE(range, CellRange("", First, Second, SomeColumns, SomeRows));
    EXPECT_NE(range, CellRange("doc", Second, Second, SomeColumns, SomeRows));
    EXPECT_NE(range, CellRange("doc", First, First, SomeColumns, SomeRows));
    EXPECT_NE(range, CellRange("doc", First, Second, AllColumns, SomeRows));
    EXPECT_NE(range, CellRange("doc", First, Second, SomeColumns, AllRows));
}

TEST(CellRangeTest, PersistsBothSheetsTheColumnsAndTheRows)
{
    EXPECT_EQ(toJson(CellRange("doc", First, Second, SomeColumns, SomeRows)),
              R"({"value0":{"value0":{},"_docURL":"doc"},)"
              R"("_firstTableAddress":{"which":0,"data":"First"},)"
              R"("_secondTableAddress":{"which":0,"data":"Second"},)"
              R"("_columns":{"first":{"_id":{"which":0,"data":{"_value":1}},"_isFixed":false},)"
              R"("second":{"_id":{"which":1,"data":{"_value":2}},"_isFixed":true}},)"
              R"("_rows":{"first":{"_id":{"which":0,"data":{"_value":3}},"_isFixed":false},)"
              R"("second":{"_id":{"which":1,"data":{"_value":5}},"_isFixed":true}}})");
    expectNode(std::make_unique<CellRange>("doc", First, Second, SomeColumns, SomeRows));
    expectCopiesAndMoves(CellRange("doc", First, Second, SomeColumns, SomeRows));
}

} // namespace QN::DOM::FormulaSyntaxTree::CellRangeTest
