#include "DOM/Tables/DOM_CellInfo.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::CellInfoTest {
namespace {

using namespace QN::Test;

TEST(DOM_CellInfo, TellsOfNothingByDefault)
{
    const CellInfo info;
    EXPECT_FALSE(info.isInitialized());
    EXPECT_EQ(info.getTable(), nullptr);
    EXPECT_EQ(info.getCell(), nullptr);
    EXPECT_EQ(info.getCellIndex(), makeIndex(0, 0));
    EXPECT_EQ(info.getRowID(), RowID(0));
    EXPECT_EQ(info.getColID(), ColumnID(0));
    EXPECT_EQ(info.getCellID(), CellID());
    EXPECT_EQ(info.getPivotRoot(), boost::none);
}

TEST(DOM_CellInfo, TellsOfAPosition)
{
    const Table table(RowIndex(3), ColumnIndex(3));
    const Cell cell;
    const CellInfo info(&table, &cell, RowIndex(1), ColumnIndex(2), RowID(7), ColumnID(8));
    EXPECT_TRUE(info.isInitialized());
    EXPECT_EQ(info.getTable(), &table);
    EXPECT_EQ(info.getCell(), &cell);
    EXPECT_EQ(info.getRowIndex(), RowIndex(1));
    EXPECT_EQ(info.getColIndex(), ColumnIndex(2));
    EXPECT_EQ(info.getCellIndex(), makeIndex(1, 2));
    EXPECT_EQ(info.getCellIDPair(), std::pair(RowID(7), ColumnID(8)));
    EXPECT_EQ(info.getCellID(), (CellID{table.getUUID(), RowID(7), ColumnID(8)}));
}

TEST(DOM_CellInfo, ComesFromATable)
{
    Table table = makeGrid(2, 2);
    const CellInfo stored = table.getCellInfo(RowIndex(1), ColumnIndex(0));
    EXPECT_EQ(stored.getCell(), table.getCell(RowIndex(1), ColumnIndex(0)));
    EXPECT_EQ(stored.getCellIDPair(), std::pair(RowID(2), ColumnID(1)));
    const CellInfo missing = table.getCellInfo(RowIndex(5), ColumnIndex(6));
    EXPECT_EQ(missing.getCell(), nullptr);
    EXPECT_TRUE(missing.isInitialized());
}

TEST(DOM_CellInfo, KnowsThePivotTableOfItsPosition)
{
    Table table = makeGrid(4, 4);
    table.setPivotTable(RowIndex(1), ColumnIndex(1), makePivotTable(2, 2));
    EXPECT_EQ(table.getCellInfo(RowIndex(2), ColumnIndex(2)).getPivotRoot(), makeIndex(1, 1));
    EXPECT_EQ(table.getCellInfo(RowIndex(3), ColumnIndex(2)).getPivotRoot(), boost::none);
}

} // namespace
} // namespace QN::DOM::CellInfoTest
