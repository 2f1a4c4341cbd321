#include "DOM/Tables/DOM_TableChunk.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableChunkTest {
namespace {

using namespace QN::Test;
using Offsets = std::vector<std::uint64_t>;

/// Cells of the columns 1, 2, 3... with these offsets.
TableChunk makeChunk(std::uint64_t cells, Offsets offsets, std::uint64_t startRow = 0)
{
    TableChunk chunk;
    for (std::uint64_t cell = 1; cell <= cells; ++cell) {
        chunk.data.emplace_back(makeNumberCell(static_cast<double>(cell)), ColumnID(cell));
    }
    chunk.rowDataOffsets = std::move(offsets);
    chunk.startRowIndex = RowIndex(startRow);
    return chunk;
}

void expectBoundaries(const TableChunk& chunk, std::size_t row, std::size_t begin, std::size_t end)
{
    const auto boundaries = chunk.getRelativeRowBoundaries(row);
    EXPECT_EQ(boundaries.begin, begin) << row;
    EXPECT_EQ(boundaries.end, end) << row;
}

TEST(DOM_TableChunk, KnowsWhereItsRowsBeginAndEnd)
{
    const TableChunk chunk = makeChunk(5, {0, 2, 2});
    expectBoundaries(chunk, 0, 0, 2);
    expectBoundaries(chunk, 1, 2, 2);
    expectBoundaries(chunk, 2, 2, 5);
    expectBoundaries(chunk, 3, 5, 5);
    expectBoundaries(chunk, 1000, 5, 5);
    EXPECT_EQ(chunk.getEndRow(), RowIndex(3));
}

TEST(DOM_TableChunk, NeverReachesPastItsCells)
{
    const TableChunk chunk = makeChunk(3, {7, 1, 9, 0});
    expectBoundaries(chunk, 0, 3, 3);
    expectBoundaries(chunk, 1, 1, 3);
    expectBoundaries(chunk, 2, 3, 3);
    expectBoundaries(chunk, 3, 0, 3);
}

TEST(DOM_TableChunk, NumbersItsRowsFromItsFirst)
{
    const TableChunk chunk = makeChunk(0, {}, 10);
    EXPECT_EQ(chunk.getRelativeRow(RowIndex(10)), 0U);
    EXPECT_EQ(chunk.getRelativeRow(RowIndex(15)), 5U);
}

TEST(DOM_TableChunkDeathTest, HasNoRowBeforeItsFirst)
{
    const TableChunk chunk = makeChunk(0, {}, 10);
    EXPECT_DEATH(chunk.getRelativeRow(RowIndex(9)), R"(RowColumnIndices:29: end >= begin)");
}

TEST(DOM_TableChunk, GivesOffsetsToAllRowsUpToOne)
{
    TableChunk chunk = makeChunk(3, {0, 1});
    chunk.extendTo(4);
    EXPECT_EQ(chunk.rowDataOffsets, (Offsets{0, 1, 3, 3, 3}));
    chunk.extendTo(2);
    EXPECT_EQ(chunk.rowDataOffsets, (Offsets{0, 1, 3, 3, 3}));
}

TEST(DOM_TableChunk, MovesTheRowsBehindOne)
{
    TableChunk chunk = makeChunk(3, {0, 1, 2, 3});
    chunk.shiftRows(1, 4);
    EXPECT_EQ(chunk.rowDataOffsets, (Offsets{0, 1, 6, 7}));
    chunk.shiftRows(0, -5);
    EXPECT_EQ(chunk.rowDataOffsets, (Offsets{0, 0, 1, 2}));
    chunk.shiftRows(3, -5);
    EXPECT_EQ(chunk.rowDataOffsets, (Offsets{0, 0, 1, 2}));
}

TEST(DOM_TableChunk, IsSplitAtTheFirstRowOfItsSecondHalf)
{
    EXPECT_EQ(makeChunk(6, {0, 1, 2, 3, 4, 5}).getChunkMedian(), 3U);
    EXPECT_EQ(makeChunk(7, {0, 1, 2, 3, 4, 5}).getChunkMedian(), 3U);
    EXPECT_EQ(makeChunk(6, {0, 1, 2, 4, 4, 5}).getChunkMedian(), 3U);
}

TEST(DOM_TableChunk, IsSplitAtItsLastRowWhenThatHasMoreThanHalfOfTheCells)
{
    EXPECT_EQ(makeChunk(6, {0, 1, 2}).getChunkMedian(), 2U);
    EXPECT_EQ(makeChunk(6, {0, 0}).getChunkMedian(), 1U);
}

TEST(DOM_TableChunk, IsSplitAtItsSecondRowWhenTheFirstIsTheMedian)
{
    EXPECT_EQ(makeChunk(1, {0, 1, 1}).getChunkMedian(), 1U);
    EXPECT_EQ(makeChunk(1, {0, 0}).getChunkMedian(), 1U);
    EXPECT_EQ(makeChunk(2, {9, 9}).getChunkMedian(), 1U);
}

TEST(DOM_TableChunk, StaysWholeWithOneRow)
{
    EXPECT_EQ(makeChunk(6, {0}).getChunkMedian(), 0U);
    EXPECT_EQ(makeChunk(0, {}).getChunkMedian(), 0U);
}

TEST(DOM_TableChunk, LeavesItsFirstRowsAndGivesTheRest)
{
    TableChunk chunk = makeChunk(5, {0, 2, 3, 3}, 10);
    const TableChunk tail = chunk.split(2);
    EXPECT_EQ(chunk.data.size(), 3U);
    EXPECT_EQ(chunk.rowDataOffsets, (Offsets{0, 2}));
    EXPECT_EQ(chunk.startRowIndex, RowIndex(10));
    ASSERT_EQ(tail.data.size(), 2U);
    EXPECT_EQ(tail.data[0].colID, ColumnID(4));
    EXPECT_EQ(getNumber(tail.data[1].cell.get()), 5.0);
    EXPECT_EQ(tail.rowDataOffsets, (Offsets{0, 0}));
    EXPECT_EQ(tail.startRowIndex, RowIndex(12));
}

TEST(DOM_TableChunk, IsSplitWithinItsCellsWhateverItsOffsets)
{
    TableChunk chunk = makeChunk(3, {0, 9, 1});
    const TableChunk tail = chunk.split(1);
    EXPECT_EQ(chunk.data.size(), 3U);
    EXPECT_EQ(tail.data.size(), 0U);
    EXPECT_EQ(tail.rowDataOffsets, (Offsets{6, 0}));
}

TEST(DOM_TableChunk, IsCopiedDeeplyWithItsNullCells)
{
    TableChunk chunk = makeChunk(2, {0, 1});
    chunk.data[1].cell = nullptr;
    const TableChunk copy(chunk);
    ASSERT_EQ(copy.data.size(), 2U);
    EXPECT_NE(copy.data[0].cell, chunk.data[0].cell);
    EXPECT_EQ(*copy.data[0].cell, *chunk.data[0].cell);
    EXPECT_EQ(copy.data[1].cell, nullptr);
    EXPECT_EQ(copy.data[1].colID, ColumnID(2));
}

} // namespace
} // namespace QN::DOM::TableChunkTest
