#include "Utils/Public/NodeAddressing/AddressInTable.h"

#include <gtest/gtest.h>

namespace QN::AddressInTableTest {

namespace {

using NodeAddressing::AddressInTable;

AddressInTable makeAddress(std::uint64_t row, std::uint64_t column)
{
    return {RowIndex(row), ColumnIndex(column)};
}

TEST(AddressInTableTest, HoldsARowAndAColumn)
{
    EXPECT_EQ(AddressInTable().getCellIndex(), CellIndex());
    AddressInTable address = makeAddress(2, 5);
    EXPECT_EQ(address.getRow(), RowIndex(2));
    EXPECT_EQ(address.getColumn(), ColumnIndex(5));
    EXPECT_EQ(address.getCellIndex(), CellIndex(RowIndex(2), ColumnIndex(5)));
    EXPECT_EQ(AddressInTable(address.getCellIndex()), address);
    address.setRow(RowIndex(7));
    address.setColumn(ColumnIndex(8));
    EXPECT_EQ(address, makeAddress(7, 8));
}

TEST(AddressInTableTest, ComparesAndHashesByRowAndColumn)
{
    EXPECT_EQ(makeAddress(2, 5), makeAddress(2, 5));
    EXPECT_NE(makeAddress(2, 5), makeAddress(3, 5));
    EXPECT_NE(makeAddress(2, 5), makeAddress(2, 6));
    EXPECT_NE(makeAddress(2, 5), makeAddress(5, 2));
    EXPECT_EQ(hash_value(makeAddress(2, 5)), hash_value(makeAddress(2, 5)));
    EXPECT_NE(hash_value(makeAddress(2, 5)), hash_value(makeAddress(5, 2)));
}

TEST(AddressInTableTest, IsWrittenWithTheRowFirst)
{
    EXPECT_EQ(makeAddress(0, 0).toString(), "cell(0, 0)");
    EXPECT_EQ(makeAddress(1048575, 16383).toString(), "cell(1048575, 16383)");
}

} // namespace

} // namespace QN::AddressInTableTest
