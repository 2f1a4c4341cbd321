#include "Utils/Public/TableIndices/CellIndex.h"

#include <gtest/gtest.h>

namespace QN::CellIndexTest {

namespace {

using QN::CellIndex;
using QN::ColumnIndex;
using QN::RowIndex;

TEST(CellIndexTest, DefaultIsTheFirstCell)
{
    EXPECT_EQ(CellIndex().getRow(), RowIndex(0));
    EXPECT_EQ(CellIndex().getColumn(), ColumnIndex(0));
}

TEST(CellIndexTest, TakesRowBeforeColumn)
{
    CellIndex cell(RowIndex(3), ColumnIndex(4));
    EXPECT_EQ(cell.getRow(), RowIndex(3));
    EXPECT_EQ(cell.getColumn(), ColumnIndex(4));
    cell.setRow(RowIndex(5));
    cell.setColumn(ColumnIndex(6));
    EXPECT_EQ(cell, CellIndex(RowIndex(5), ColumnIndex(6)));
}

TEST(CellIndexTest, ComparesRowBeforeColumn)
{
    const CellIndex cell(RowIndex(3), ColumnIndex(4));
    EXPECT_NE(cell, CellIndex(RowIndex(4), ColumnIndex(3)));
    EXPECT_NE(cell, CellIndex(RowIndex(3), ColumnIndex(5)));
    EXPECT_LT(cell, CellIndex(RowIndex(3), ColumnIndex(5)));
    EXPECT_LT(cell, CellIndex(RowIndex(4), ColumnIndex(0)));
    EXPECT_FALSE(cell < cell);
}

} // namespace

} // namespace QN::CellIndexTest
