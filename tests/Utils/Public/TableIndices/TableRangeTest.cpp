#include "Utils/Public/TableIndices/TableRange.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "Utils/Public/NumCast.h"

namespace QN::TableRangeTest {

namespace {

using QN::CellIndex;
using QN::ColumnIndex;
using QN::RowIndex;
using QN::TableRange;

constexpr std::uint64_t Max = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t SignedLimit = std::uint64_t{1} << 63U;
constexpr int MaxOffset = std::numeric_limits<int>::max();
constexpr int MinOffset = std::numeric_limits<int>::min();

TableRange makeRange(std::uint64_t beginRow, std::uint64_t endRow, std::uint64_t beginColumn,
                     std::uint64_t endColumn)
{
    return {RowIndex(beginRow), RowIndex(endRow), ColumnIndex(beginColumn), ColumnIndex(endColumn)};
}

std::string getFailure(TableRange& range, int rows, int columns)
{
    try {
        range.addOffset(rows, columns);
        return "none";
    } catch (const QN::BadNumCastError& error) {
        return error.what();
    }
}

/// All ranges of a table of 4 by 3.
std::vector<TableRange> makeAllRanges()
{
    std::vector<TableRange> ranges;
    for (std::uint64_t beginRow = 0; beginRow < 4; ++beginRow) {
        for (std::uint64_t endRow = beginRow + 1; endRow <= 4; ++endRow) {
            for (std::uint64_t beginColumn = 0; beginColumn < 3; ++beginColumn) {
                for (std::uint64_t endColumn = beginColumn + 1; endColumn <= 3; ++endColumn) {
                    ranges.push_back(makeRange(beginRow, endRow, beginColumn, endColumn));
                }
            }
        }
    }
    return ranges;
}

/// The cells of a range within a table of 4 by 3, row by row.
std::vector<bool> makeCells(const TableRange& range)
{
    std::vector<bool> cells;
    for (std::uint64_t row = 0; row < 4; ++row) {
        for (std::uint64_t column = 0; column < 3; ++column) {
            cells.push_back(row >= range.getBeginRow().get() && row <= range.getLastRow().get() &&
                            column >= range.getBeginColumn().get() && column <= range.getLastColumn().get());
        }
    }
    return cells;
}

TEST(TableRangeTest, KeepsItsEdges)
{
    const TableRange range = makeRange(1, 4, 2, 7);
    EXPECT_EQ(range.getBeginRow(), RowIndex(1));
    EXPECT_EQ(range.getEndRow(), RowIndex(4));
    EXPECT_EQ(range.getLastRow(), RowIndex(3));
    EXPECT_EQ(range.getRowCount(), 3U);
    EXPECT_EQ(range.getBeginColumn(), ColumnIndex(2));
    EXPECT_EQ(range.getEndColumn(), ColumnIndex(7));
    EXPECT_EQ(range.getLastColumn(), ColumnIndex(6));
    EXPECT_EQ(range.getColumnCount(), 5U);
}

TEST(TableRangeTest, IsBuiltFromItsFirstCellAndTheOneBehindItsLast)
{
    EXPECT_EQ(TableRange(CellIndex(RowIndex(1), ColumnIndex(2)), CellIndex(RowIndex(4), ColumnIndex(7))),
              makeRange(1, 4, 2, 7));
}

TEST(TableRangeTest, DefaultCoversAnyTable)
{
    const TableRange range;
    EXPECT_EQ(range.getBeginRow(), RowIndex(0));
    EXPECT_EQ(range.getBeginColumn(), ColumnIndex(0));
    EXPECT_EQ(range.getEndRow(), RowIndex(Max));
    EXPECT_EQ(range.getEndColumn(), ColumnIndex(Max));
}

TEST(TableRangeTest, ContainmentAndIntersectionAreThoseOfTheSetsOfCells)
{
    const std::vector<TableRange> ranges = makeAllRanges();
    ASSERT_EQ(ranges.size(), 60U);
    for (const TableRange& left : ranges) {
        const std::vector<bool> leftCells = makeCells(left);
        for (const TableRange& right : ranges) {
            const std::vector<bool> rightCells = makeCells(right);
            bool contains = true;
            bool intersects = false;
            for (std::size_t cell = 0; cell < leftCells.size(); ++cell) {
                contains = contains && (leftCells[cell] || !rightCells[cell]);
                intersects = intersects || (leftCells[cell] && rightCells[cell]);
            }
            EXPECT_EQ(left.contains(right), contains);
            EXPECT_EQ(left.intersects(right), intersects);
        }
        for (std::uint64_t row = 0; row < 4; ++row) {
            for (std::uint64_t column = 0; column < 3; ++column) {
                EXPECT_EQ(left.contains(CellIndex(RowIndex(row), ColumnIndex(column))),
                          leftCells[row * 3 + column]);
            }
        }
    }
}

TEST(TableRangeTest, RangesThatOnlyTouchDoNotIntersect)
{
    EXPECT_FALSE(makeRange(0, 2, 0, 2).intersects(makeRange(2, 4, 0, 2)));
    EXPECT_FALSE(makeRange(0, 2, 0, 2).intersects(makeRange(0, 2, 2, 4)));
    EXPECT_FALSE(makeRange(0, 2, 0, 2).contains(CellIndex(RowIndex(2), ColumnIndex(0))));
}

TEST(TableRangeTest, OffsetMovesAllEdges)
{
    TableRange range = makeRange(1, 4, 2, 7);
    range.addOffset(10, 20);
    EXPECT_EQ(range, makeRange(11, 14, 22, 27));
    range.addOffset(-11, -22);
    EXPECT_EQ(range, makeRange(0, 3, 0, 5));
    range.addOffset(0, 0);
    EXPECT_EQ(range, makeRange(0, 3, 0, 5));
    range.addOffset(MaxOffset, MaxOffset);
    EXPECT_EQ(range, makeRange(2147483647, 2147483650, 2147483647, 2147483652));
}

TEST(TableRangeTest, OffsetBelowZeroThrowsAndChangesNothing)
{
    constexpr const char* NegativeOverflow = "bad numeric conversion: negative overflow";
    TableRange range = makeRange(1, 4, 2, 7);
    EXPECT_EQ(getFailure(range, -2, 0), NegativeOverflow);
    EXPECT_EQ(getFailure(range, 1, -3), NegativeOverflow);
    EXPECT_EQ(getFailure(range, MinOffset, 0), NegativeOverflow);
    EXPECT_EQ(range, makeRange(1, 4, 2, 7));
}

TEST(TableRangeTest, OffsetPastTheSignedNumbersThrowsAndChangesNothing)
{
    constexpr const char* PositiveOverflow = "bad numeric conversion: positive overflow";
    TableRange range = makeRange(0, SignedLimit - 1, 0, 1);
    EXPECT_EQ(getFailure(range, 1, 0), PositiveOverflow);
    EXPECT_EQ(getFailure(range, MaxOffset, 0), PositiveOverflow);
    EXPECT_EQ(range, makeRange(0, SignedLimit - 1, 0, 1));
    TableRange whole;
    EXPECT_EQ(getFailure(whole, 1, 1), PositiveOverflow);
    EXPECT_EQ(getFailure(whole, 0, 0), PositiveOverflow);
    EXPECT_EQ(whole, TableRange());
}

TEST(TableRangeTest, OrdersByRowsBeforeColumnsAndBeginsBeforeEnds)
{
    const std::vector<TableRange> sorted{makeRange(0, 1, 9, 10), makeRange(0, 2, 0, 1), makeRange(0, 2, 0, 2),
                                         makeRange(0, 2, 1, 2), makeRange(1, 2, 0, 1)};
    for (std::size_t left = 0; left < sorted.size(); ++left) {
        for (std::size_t right = 0; right < sorted.size(); ++right) {
            EXPECT_EQ(sorted[left] < sorted[right], left < right);
            EXPECT_EQ(sorted[left] == sorted[right], left == right);
        }
    }
}

TEST(TableRangeDeathTest, EmptyRangeBreaksTheContract)
{
    EXPECT_DEATH(makeRange(3, 3, 0, 1), "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow\n");
    EXPECT_DEATH(makeRange(0, 1, 3, 3),
                 "Utils/Public/TableIndices/TableRange:230: _beginColumn < _endColumn\n");
    EXPECT_DEATH(makeRange(0, 0, 0, 0), "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow\n");
}

TEST(TableRangeDeathTest, ReversedRangeBreaksTheContract)
{
    EXPECT_DEATH(makeRange(4, 3, 0, 1), "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow\n");
    EXPECT_DEATH(makeRange(0, 1, 4, 3),
                 "Utils/Public/TableIndices/TableRange:230: _beginColumn < _endColumn\n");
    EXPECT_DEATH(TableRange(CellIndex(RowIndex(1), ColumnIndex(1)), CellIndex()),
                 "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow\n");
}

} // namespace

} // namespace QN::TableRangeTest
