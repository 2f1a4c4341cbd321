#include "DOM/Shapes/DOM_TableOffset.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TableOffsetTest {

using namespace Test;

namespace {

TableOffset makeOffset(std::uint64_t column, float columnOffset, std::uint64_t row, float rowOffset)
{
    return {ColumnIndex(column), columnOffset, RowIndex(row), rowOffset};
}

} // namespace

TEST(TableOffsetTest, IsTheOriginOfTheFirstCellByDefault)
{
    const TableOffset offset;
    EXPECT_EQ(offset.getColumnIndex(), ColumnIndex(0));
    EXPECT_EQ(offset.getColumnOffset(), 0.0F);
    EXPECT_EQ(offset.getRowIndex(), RowIndex(0));
    EXPECT_EQ(offset.getRowOffset(), 0.0F);
}

TEST(TableOffsetTest, PersistsColumnBeforeRow)
{
    EXPECT_EQ(
        toJson(makeOffset(1, 2.5F, 3, 4.5F)),
        R"({"_columnIndex":{"_value":1},"_columnOffset":2.5,"_rowIndex":{"_value":3},"_rowOffset":4.5})");
    expectPersists(makeOffset(1, 2.5F, 3, 4.5F));
    expectPersists(TableOffset());
}

TEST(TableOffsetTest, AnyCellAndAnyOffsetPassThrough)
{
    expectRoundTrip(makeOffset(std::numeric_limits<std::uint64_t>::max(), -1e30F,
                               std::numeric_limits<std::uint64_t>::max(), -0.5F));
}

TEST(TableOffsetTest, SettersReplaceEachPart)
{
    TableOffset offset;
    offset.setColumnIndex(ColumnIndex(1));
    offset.setColumnOffset(2.5F);
    offset.setRowIndex(RowIndex(3));
    offset.setRowOffset(4.5F);
    EXPECT_EQ(offset, makeOffset(1, 2.5F, 3, 4.5F));
}

TEST(TableOffsetTest, OrdersByItsMembersInTheOrderOfTheKeys)
{
    expectAscending<TableOffset>({
        makeOffset(0, -1.0F, 9, 9.0F),
        makeOffset(0, 0.0F, 0, -1.0F),
        TableOffset(),
        makeOffset(0, 0.0F, 0, 1.0F),
        makeOffset(0, 0.0F, 1, 0.0F),
        makeOffset(0, 1.0F, 0, 0.0F),
        makeOffset(1, 0.0F, 0, 0.0F),
    });
}

TEST(TableOffsetTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<TableOffset>);
    expectCopiesAndMoves(makeOffset(1, 2.5F, 3, 4.5F));
}

} // namespace QN::DOM::TableOffsetTest
