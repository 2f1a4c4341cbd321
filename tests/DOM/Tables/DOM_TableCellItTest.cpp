#include "DOM/Tables/DOM_TableCellIt.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/DamagedTables.h"
#include "DOM/Tables/IteratorSamples.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableCellItTest {
namespace {

using namespace QN::Test;

TEST(DOM_TableCellIt, EqualsItsEndAtOnceInATableWithoutCells)
{
    for (const Table& table : {Table(), Table(RowIndex(100), ColumnIndex(100))}) {
        const auto iterators = table.getTableIterators();
        EXPECT_TRUE(iterators.first == iterators.second);
        EXPECT_EQ(*iterators.first, nullptr);
        EXPECT_EQ(iterators.first.getRowIndex(), table.getLiveRowsCount());
    }
    Table emptied = makeGrid(5, 5, 6);
    for (std::uint64_t row = 0; row < 5; ++row) {
        for (std::uint64_t column = 0; column < 5; ++column) {
            emptied.removeCell(RowIndex(row), ColumnIndex(column));
        }
    }
    EXPECT_EQ(getPositions(emptied.getTableIterators()), Positions());
}

TEST(DOM_TableCellIt, VisitsTheStoredCellsInOrder)
{
    for (const std::uint64_t maxChunkSize : {0U, 1U, 2U, 3U, 20000U}) {
        const Table table = makeSparse(maxChunkSize);
        EXPECT_EQ(getPositions(table.getTableIterators()), SparsePositions) << maxChunkSize;
        EXPECT_EQ(getPositionsBackwards(table.getTableIterators()), SparsePositions) << maxChunkSize;
    }
}

TEST(DOM_TableCellIt, AnswersTheCellAndItsPlace)
{
    Table table = makeSparse(2);
    auto it = table.getTableIterators().first;
    ++it;
    ++it;
    ++it;
    EXPECT_EQ(*it, table.getCell(RowIndex(4), ColumnIndex(2)));
    EXPECT_EQ(getNumber(*it), 42.0);
    EXPECT_EQ(it.getRowIndex(), RowIndex(4));
    EXPECT_EQ(it.getColIndex(), ColumnIndex(2));
    EXPECT_EQ(it.getRowID(), RowID(5));
    EXPECT_EQ(it.getColID(), ColumnID(3));
    EXPECT_EQ(&it.getTable(), &table);
    const CellInfo info = it.getCellInfo();
    EXPECT_EQ(info.getTable(), &table);
    EXPECT_EQ(info.getCell(), *it);
    EXPECT_EQ(info.getCellIndex(), makeIndex(4, 2));
    EXPECT_EQ(info.getCellIDPair(), std::pair(RowID(5), ColumnID(3)));
    const TableChunk& chunk = getChunks(table)[it.getChunkIndex()];
    EXPECT_EQ(chunk.data[it.getDataIndex()].cell.get(), *it);
}

TEST(DOM_TableCellIt, StandsAtTheRowCountAndColumnZeroAtItsEnd)
{
    Table table = makeSparse();
    table.ensureSize(RowIndex(50), ColumnIndex(50));
    const auto end = table.getTableIterators().second;
    EXPECT_EQ(end.getRowIndex(), RowIndex(50));
    EXPECT_EQ(end.getColIndex(), ColumnIndex(0));
    EXPECT_EQ(end.getColID(), ColumnID(1));
    EXPECT_EQ(*end, nullptr);
    EXPECT_FALSE(end.getCellInfo().getCell());
    auto past = end;
    ++past;
    EXPECT_TRUE(past == end);
}

TEST(DOM_TableCellIt, StartsAtTheFirstCellAtOrBehindAPosition)
{
    const Table table = makeSparse(2);
    const auto startOf = [&](std::uint64_t row, std::uint64_t column) {
        const auto it = table.getTableIt(RowIndex(row), ColumnIndex(column));
        return makeIndex(it.getRowIndex().get(), it.getColIndex().get());
    };
    EXPECT_EQ(startOf(0, 0), makeIndex(0, 1));
    EXPECT_EQ(startOf(0, 1), makeIndex(0, 1));
    EXPECT_EQ(startOf(0, 2), makeIndex(0, 3));
    EXPECT_EQ(startOf(0, 4), makeIndex(4, 0));
    EXPECT_EQ(startOf(2, 9), makeIndex(4, 0));
    EXPECT_EQ(startOf(9, 5), makeIndex(9, 5));
    EXPECT_TRUE(table.getTableIt(RowIndex(9), ColumnIndex(6)) == table.getTableIterators().second);
    EXPECT_TRUE(table.getTableIt(RowIndex(99), ColumnIndex(0)) == table.getTableIterators().second);
}

TEST(DOM_TableCellIt, OrdersByRowAndThenByPlace)
{
    const Table table = makeSparse();
    auto first = table.getTableIterators().first;
    auto second = first;
    ++second;
    EXPECT_TRUE(first < second);
    EXPECT_FALSE(second < first);
    EXPECT_FALSE(first < first);
    EXPECT_TRUE(second < table.getTableIt(RowIndex(4), ColumnIndex(0)));
    EXPECT_TRUE(first != second);
}

TEST(DOM_TableCellIt, StaysAtTheFirstCellWhenItSteppedBack)
{
    const Table table = makeSparse(1);
    auto it = table.getTableIterators().first;
    --it;
    EXPECT_TRUE(it == table.getTableIterators().first);
    EXPECT_EQ(getNumber(*it), 1.0);
    const Table empty(RowIndex(5), ColumnIndex(5));
    auto end = empty.getTableIterators().second;
    --end;
    EXPECT_TRUE(end == empty.getTableIterators().second);
}

TEST(DOM_TableCellIt, ReachesTheCellsThroughATableThatCanBeChanged)
{
    Table table = makeGrid(2, 2);
    for (Cell* const cell : table.getTableIterators()) {
        cell->getRawBlocks().clear();
    }
    EXPECT_EQ(getNumber(table, 1, 1), -1.0);
}

TEST(DOM_TableCellIt, VisitsNullCellsOfAFile)
{
    Table table = makeGrid(1, 2);
    const_cast<TableChunk&>(getChunks(table)[0]).data[0].cell = nullptr;
    const auto iterators = std::as_const(table).getTableIterators();
    EXPECT_EQ(getPositions(iterators), (Positions{makeIndex(0, 0), makeIndex(0, 1)}));
    EXPECT_EQ(*iterators.first, nullptr);
    EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(0)), nullptr);
    EXPECT_TRUE(table.getOrCreateCell(RowIndex(0), ColumnIndex(0)).getRawBlocks().empty());
    EXPECT_EQ(getChunkTexts(table), (ChunkTexts{"0: 1=-1 2=1"}));
}

TEST(DOM_TableCellIt, EndsWhateverTheOffsetsOfAFile)
{
    for (const std::vector<std::uint64_t>& offsets :
         {std::vector<std::uint64_t>{9, 0, 9, 0}, {0, 0, 0, 0}, {2, 1, 0, 3}, {7, 7, 7, 7}, {1, 4, 2, 4}}) {
        Table table = makeGrid(4, 1);
        const_cast<std::vector<std::uint64_t>&>(getOffsets(table, 0)) = offsets;
        std::size_t steps = 0;
        const auto iterators = std::as_const(table).getTableIterators();
        for (auto it = iterators.first; it != iterators.second && steps < 100; ++it) {
            EXPECT_NE(*it, nullptr);
            ++steps;
        }
        EXPECT_LE(steps, 16U);
        steps = 0;
        for (auto it = iterators.second; steps < 100; ++steps) {
            const auto before = it;
            --it;
            if (it == before) {
                break;
            }
        }
        EXPECT_LE(steps, 16U);
    }
}

TEST(DOM_TableCellIt, ComesToItsEndWhateverTheOffsetsOfAFileAndWithRowsBehindTheLiveOnes)
{
    constexpr std::uint64_t CellsCount = 3;
    constexpr std::uint64_t RowsCount = 5;
    for (std::uint64_t number = 0; number < 1024; ++number) {
        std::vector<std::uint64_t> offsets;
        for (std::uint64_t rest = number; offsets.size() < RowsCount; rest /= CellsCount + 1) {
            offsets.push_back(rest % (CellsCount + 1));
        }
        Table table = makeDamagedTable(CellsCount, offsets);
        for (std::uint64_t live = 0; live <= RowsCount; ++live) {
            setLiveRowsCount(table, live);
            const auto iterators = std::as_const(table).getTableIterators();
            std::size_t steps = 0;
            auto it = iterators.first;
            for (; it != iterators.second && steps < 100; ++it) {
                EXPECT_LT(it.getRowIndex(), RowIndex(live));
                ++steps;
            }
            ASSERT_LE(steps, CellsCount * RowsCount) << "offsets " << number << ", live rows " << live;
        }
    }
}

TEST(DOM_TableCellIt, HasItsEndAtTheFirstCellBehindTheLiveRows)
{
    Table table = makeGrid(4, 1);
    setLiveRowsCount(table, 2);
    const auto end = std::as_const(table).getTableIterators().second;
    EXPECT_EQ(getNumber(*end), 20.0);
    EXPECT_FALSE(end.isAtEnd());
}

} // namespace
} // namespace QN::DOM::TableCellItTest
