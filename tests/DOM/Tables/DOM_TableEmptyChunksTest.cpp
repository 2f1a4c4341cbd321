#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "Support/RoundTrip.h"

/// The walks over chunks that have lost all of their cells.

namespace QN::DOM::TableEmptyChunksTest {
namespace {

using namespace QN::Test;
using Positions = std::vector<CellIndex>;

constexpr std::uint64_t Rows = 6;
constexpr std::uint64_t Columns = 2;

/// A table with a chunk for each row, which has cells in the rows of a mask alone, the first row being the lowest bit.
Table makeTable(unsigned mask)
{
    Table table = makeGrid(Rows, Columns, 1);
    EXPECT_EQ(getChunks(table).size(), Rows);
    for (std::uint64_t row = 0; row < Rows; ++row) {
        for (std::uint64_t column = 0; column < Columns && (mask >> row & 1U) == 0; ++column) {
            table.removeCell(RowIndex(row), ColumnIndex(column));
        }
    }
    EXPECT_EQ(getChunks(table).size(), Rows);
    return table;
}

Positions getExpected(unsigned mask, const TableRange& range)
{
    Positions positions;
    for (std::uint64_t row = 0; row < Rows; ++row) {
        for (std::uint64_t column = 0; column < Columns; ++column) {
            if ((mask >> row & 1U) != 0 && range.contains(makeIndex(row, column))) {
                positions.push_back(makeIndex(row, column));
            }
        }
    }
    return positions;
}

template <class Iterators>
Positions walk(const Iterators& iterators)
{
    Positions positions;
    for (auto it = iterators.first; it != iterators.second && positions.size() < 100; ++it) {
        if (*it != nullptr) {
            positions.push_back({it.getRowIndex(), it.getColIndex()});
        }
    }
    return positions;
}

/// From the end to the begin.
template <class Iterators>
Positions walkBack(const Iterators& iterators)
{
    Positions positions;
    for (auto it = iterators.second; it != iterators.first && positions.size() < 100;) {
        --it;
        if (*it != nullptr) {
            positions.insert(positions.begin(), {it.getRowIndex(), it.getColIndex()});
        }
    }
    return positions;
}

template <class Iterators>
void expectWalks(const Iterators& iterators, const Positions& expected)
{
    EXPECT_EQ(walk(iterators), expected);
    EXPECT_EQ(walkBack(iterators), expected);
}

TEST(DOM_TableWithEmptyChunks, IsWalkedOverInBothDirections)
{
    for (unsigned mask = 0; mask < 1U << Rows; ++mask) {
        SCOPED_TRACE(mask);
        const Table table = makeTable(mask);
        const Positions expected = getExpected(mask, makeRange(0, Rows, 0, Columns));
        expectWalks(table.getTableIterators(), expected);
        expectWalks(table.getTableLogicalIterators(), expected);
        for (const TableRange& range : {makeRange(0, 6, 0, 2), makeRange(1, 5, 1, 2), makeRange(2, 3, 0, 1),
                                        makeRange(4, 99, 0, 9), TableRange()}) {
            expectWalks(table.getRangeIterators(range), getExpected(mask, range));
        }
        const TableRange part = makeRange(1, 8, 0, 3);
        expectWalks(table.getRangeLogicalIterators(part), getExpected(mask, part));
    }
}

TEST(DOM_TableWithEmptyChunks, IsEnteredAnywhere)
{
    for (unsigned mask = 0; mask < 1U << Rows; ++mask) {
        const Table table = makeTable(mask);
        for (std::uint64_t row = 0; row <= Rows; ++row) {
            const auto it = table.getTableIt(RowIndex(row), ColumnIndex(1));
            CellIndex expected(table.getLiveRowsCount(), ColumnIndex(0));
            for (const CellIndex& position : getExpected(mask, makeRange(0, Rows, 0, Columns))) {
                if (!(position < makeIndex(row, 1))) {
                    expected = position;
                    break;
                }
            }
            EXPECT_EQ(CellIndex(it.getRowIndex(), it.getColIndex()), expected) << mask << " " << row;
        }
    }
}

TEST(DOM_TableWithEmptyChunks, EqualsOneWithoutThem)
{
    for (const unsigned mask : {0U, 5U, 42U}) {
        const Table table = makeTable(mask);
        Table other{RowIndex(Rows), ColumnIndex(Columns)};
        other.setUUID(table.getUUID());
        for (const CellIndex& position : getExpected(mask, makeRange(0, Rows, 0, Columns))) {
            setNumber(other, position.getRow().get(), position.getColumn().get(),
                      static_cast<double>(10 * position.getRow().get() + position.getColumn().get()));
        }
        EXPECT_EQ(table, other);
        expectRoundTrip(table);
    }
}

TEST(DOM_TableWithEmptyChunks, ShrinksAndGrows)
{
    Table table = makeTable(0b000010);
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(2, 2));
    EXPECT_EQ(getChunks(table).size(), Rows);
    EXPECT_TRUE(walk(table.getTableIterators()) == (Positions{makeIndex(1, 0), makeIndex(1, 1)}));
    EXPECT_TRUE(walkBack(table.getTableIterators()) == (Positions{makeIndex(1, 0), makeIndex(1, 1)}));
    setNumber(table, 4, 0, 7.0);
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(5));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(4));
    EXPECT_EQ(getNumber(table, 5, 0), 7.0);
    for (int row = 0; row < 5; ++row) {
        table.removeRow(RowIndex(0));
    }
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=7", "1:"}));
}

TEST(DOM_TableWithEmptyChunks, ComeFromTheRemovalOfAColumn)
{
    Table table = makeGrid(3, 1, 1);
    ColumnData column = table.removeColumn(ColumnIndex(0));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0:", "1:", "2:"}));
    EXPECT_TRUE(table.getTableIterators().first == table.getTableIterators().second);
    EXPECT_TRUE(table.getTableLogicalBeginIt() == table.getTableLogicalEndIt());
    table.insertColumn(std::move(column), ColumnIndex(0));
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=0", "1: 1=10", "2: 1=20"}));
}

} // namespace
} // namespace QN::DOM::TableEmptyChunksTest
