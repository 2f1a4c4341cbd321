#include "DOM/Tables/DOM_TableRangeMoves.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"

namespace QN::DOM::TableRangeMovesTest {
namespace {

constexpr std::uint64_t Last = ~std::uint64_t{0};

TableRange makeRange(std::uint64_t beginRow, std::uint64_t endRow, std::uint64_t beginColumn,
                     std::uint64_t endColumn)
{
    return {RowIndex(beginRow), RowIndex(endRow), ColumnIndex(beginColumn), ColumnIndex(endColumn)};
}

TEST(DOM_TableRangeMoves, GoByOneInEachDirection)
{
    TableRange range = makeRange(1, 3, 2, 5);
    moveDown(range);
    EXPECT_EQ(range, makeRange(2, 4, 2, 5));
    moveRight(range);
    EXPECT_EQ(range, makeRange(2, 4, 3, 6));
    moveUp(range);
    moveUp(range);
    EXPECT_EQ(range, makeRange(0, 2, 3, 6));
    moveLeft(range);
    EXPECT_EQ(range, makeRange(0, 2, 2, 5));
}

TEST(DOM_TableRangeMoves, EndAtTheLargestIndex)
{
    TableRange range = makeRange(1, Last - 1, 2, Last - 1);
    moveDown(range);
    moveDown(range);
    EXPECT_EQ(range, makeRange(2, Last, 2, Last - 1));
    moveRight(range);
    moveRight(range);
    EXPECT_EQ(range, makeRange(2, Last, 3, Last));
    TableRange whole;
    moveDown(whole);
    moveRight(whole);
    EXPECT_EQ(whole, TableRange());
}

} // namespace
} // namespace QN::DOM::TableRangeMovesTest
