#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableIteratorsTest {
namespace {

using namespace QN::Test;
using Positions = std::vector<CellIndex>;

/// The positions from the first iterator to the second, in a step of one.
template <class Iterators>
Positions getPositions(const Iterators& iterators)
{
    Positions positions;
    for (auto it = iterators.first; it != iterators.second; ++it) {
        positions.push_back({it.getRowIndex(), it.getColIndex()});
        if (positions.size() > 10000) {
            ADD_FAILURE() << "the walk does not end";
            break;
        }
    }
    return positions;
}

/// The same from the end back to where stepping back changes nothing.
template <class Iterators>
Positions getPositionsBackwards(const Iterators& iterators)
{
    Positions positions;
    for (auto it = iterators.second;;) {
        const auto before = it;
        --it;
        if (it == before) {
            break;
        }
        positions.insert(positions.begin(), {it.getRowIndex(), it.getColIndex()});
    }
    return positions;
}

/// Cells at (0,1), (0,3), (4,0), (4,2) and (9,5), spread over chunks of at most so many cells.
Table makeSparse(std::uint64_t maxChunkSize = 20000)
{
    Table table(maxChunkSize);
    for (const CellIndex& place :
         {makeIndex(0, 1), makeIndex(0, 3), makeIndex(4, 0), makeIndex(4, 2), makeIndex(9, 5)}) {
        setNumber(table, place.getRow().get(), place.getColumn().get(),
                  static_cast<double>(10 * place.getRow().get() + place.getColumn().get()));
    }
    return table;
}

const Positions SparsePositions{makeIndex(0, 1), makeIndex(0, 3), makeIndex(4, 0), makeIndex(4, 2),
                                makeIndex(9, 5)};

// TableCellIt

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

// CellRangeIt

TEST(DOM_CellRangeIt, VisitsTheStoredCellsOfARange)
{
    for (const std::uint64_t maxChunkSize : {1U, 2U, 20000U}) {
        const Table table = makeSparse(maxChunkSize);
        const auto positionsOf = [&](const TableRange& range) {
            return getPositions(table.getRangeIterators(range));
        };
        EXPECT_EQ(positionsOf(makeRange(0, 10, 0, 6)), SparsePositions);
        EXPECT_EQ(positionsOf(makeRange(0, 5, 1, 3)), (Positions{makeIndex(0, 1), makeIndex(4, 2)}));
        EXPECT_EQ(positionsOf(makeRange(1, 10, 2, 6)), (Positions{makeIndex(4, 2), makeIndex(9, 5)}));
        EXPECT_EQ(positionsOf(makeRange(0, 9, 3, 9)), (Positions{makeIndex(0, 3)}));
        EXPECT_EQ(positionsOf(makeRange(1, 4, 0, 9)), Positions());
        EXPECT_EQ(positionsOf(TableRange()), SparsePositions);
    }
}

TEST(DOM_CellRangeIt, StepsBackThroughARange)
{
    for (const std::uint64_t maxChunkSize : {1U, 2U, 20000U}) {
        const Table table = makeSparse(maxChunkSize);
        for (const TableRange& range :
             {makeRange(0, 10, 0, 6), makeRange(0, 5, 1, 3), makeRange(1, 10, 2, 6), makeRange(0, 9, 3, 9),
              makeRange(1, 4, 0, 9), makeRange(3, 99, 0, 1), TableRange()}) {
            EXPECT_EQ(getPositionsBackwards(table.getRangeIterators(range)),
                      getPositions(table.getRangeIterators(range)));
        }
    }
}

TEST(DOM_CellRangeIt, EqualsItsEndAtOnceBelowTheStoredRows)
{
    const Table table = makeSparse(2);
    for (const TableRange& range :
         {makeRange(10, 20, 0, 9), makeRange(1000, 1001, 0, 1), makeRange(5, 9, 0, 9)}) {
        const auto iterators = table.getRangeIterators(range);
        EXPECT_TRUE(iterators.first == iterators.second);
        EXPECT_EQ(*iterators.first, nullptr);
    }
}

TEST(DOM_CellRangeIt, EndsAtTheEndRowAndTheBeginColumn)
{
    const Table table = makeSparse();
    const TableRange range = makeRange(0, 5, 1, 4);
    auto it = table.getRangeIterators(range).first;
    for (int step = 0; step < 9; ++step) {
        ++it;
    }
    for (const auto& end : {it, table.getRangeIterators(range).second}) {
        EXPECT_EQ(end.getRowIndex(), RowIndex(5));
        EXPECT_EQ(end.getColIndex(), ColumnIndex(1));
        EXPECT_EQ(end.getRowID(), RowID(6));
        EXPECT_EQ(end.getColID(), ColumnID(2));
        EXPECT_EQ(*end, nullptr);
    }
    EXPECT_TRUE(it == table.getRangeIterators(range).second);
}

TEST(DOM_CellRangeIt, AnswersTheCellAndItsPlace)
{
    Table table = makeSparse();
    const TableRange range = makeRange(1, 10, 1, 4);
    const auto it = table.getRangeIterators(range).first;
    EXPECT_EQ(*it, table.getCell(RowIndex(4), ColumnIndex(2)));
    EXPECT_EQ(it.getRange(), range);
    EXPECT_EQ(&it.getTable(), &table);
    EXPECT_EQ(it.getRowID(), RowID(5));
    EXPECT_EQ(it.getColID(), ColumnID(3));
    EXPECT_EQ(it.getCellInfo().getCellIndex(), makeIndex(4, 2));
    EXPECT_EQ(it.getCellInfo().getCell(), *it);
}

TEST(DOM_CellRangeIt, OrdersByRowAndThenByColumn)
{
    const Table table = makeSparse();
    auto first = table.getRangeIterators(makeRange(0, 10, 0, 6)).first;
    auto second = first;
    ++second;
    EXPECT_TRUE(first < second);
    EXPECT_FALSE(second < first);
    EXPECT_TRUE(second < table.getRangeIterators(makeRange(0, 10, 0, 6)).second);
}

TEST(DOM_CellRangeIt, StaysAtTheFirstCellWhenItSteppedBack)
{
    const Table table = makeSparse();
    auto it = table.getRangeIterators(makeRange(4, 10, 0, 6)).first;
    --it;
    EXPECT_EQ(getNumber(*it), 40.0);
    EXPECT_EQ(it.getColIndex(), ColumnIndex(0));
}

// LogicalCellIt

TEST(DOM_LogicalCellIt, VisitsEveryPositionOfASheet)
{
    Table table(RowIndex(3), ColumnIndex(3));
    setNumber(table, 1, 2, 7.0);
    const auto iterators = table.getTableLogicalIterators();
    const Positions positions = getPositions(iterators);
    ASSERT_EQ(positions.size(), 9U);
    for (std::size_t place = 0; place < 9; ++place) {
        EXPECT_EQ(positions[place], makeIndex(place / 3, place % 3));
    }
    int stored = 0;
    for (const Cell* const cell : iterators) {
        stored += cell != nullptr ? 1 : 0;
    }
    EXPECT_EQ(stored, 1);
    EXPECT_EQ(getPositionsBackwards(iterators), positions);
}

/// Walks forward and backward and compares each position with a look-up.
template <class Iterators>
void expectLookups(const Table& table, const Iterators& iterators)
{
    for (auto it = iterators.first; it != iterators.second; ++it) {
        EXPECT_EQ(*it, table.getCell(it.getRowIndex(), it.getColIndex()));
        EXPECT_EQ(it.getRowID(), table.getID(it.getRowIndex()));
        EXPECT_EQ(it.getColID(), table.getID(it.getColIndex()));
        EXPECT_EQ(it.getCellInfo().getCell(), *it);
    }
    for (auto it = iterators.second; it != iterators.first;) {
        --it;
        EXPECT_EQ(*it, table.getCell(it.getRowIndex(), it.getColIndex()));
    }
}

TEST(DOM_LogicalCellIt, FindsEachStoredCellInItsPlace)
{
    for (const std::uint64_t maxChunkSize : {1U, 2U, 20000U}) {
        const Table table = makeSparse(maxChunkSize);
        expectLookups(table, table.getTableLogicalIterators());
        for (const TableRange& range :
             {makeRange(0, 10, 0, 6), makeRange(3, 12, 1, 3), makeRange(20, 22, 0, 2)}) {
            expectLookups(table, table.getRangeLogicalIterators(range));
        }
    }
}

TEST(DOM_LogicalCellIt, TurnsAroundAnywhere)
{
    const Table table = makeSparse(2);
    auto it = table.getTableLogicalBeginIt();
    for (int turn = 0; turn < 60; ++turn) {
        it.advance(7);
        EXPECT_EQ(*it, it.isAtEnd() ? nullptr : table.getCell(it.getRowIndex(), it.getColIndex()));
        for (int step = 0; step < 6; ++step) {
            --it;
            EXPECT_EQ(*it, table.getCell(it.getRowIndex(), it.getColIndex()));
        }
        if (it.getRowIndex() > RowIndex(8)) {
            break;
        }
    }
}

TEST(DOM_LogicalCellIt, StaysAtTheFirstPositionWhenItSteppedBack)
{
    const Table table = makeSparse();
    auto it = table.getTableLogicalBeginIt();
    --it;
    EXPECT_TRUE(it == table.getTableLogicalBeginIt());
    auto inRange = table.getRangeLogicalIterators(makeRange(4, 6, 2, 4)).first;
    --inRange;
    EXPECT_EQ(inRange.getRowIndex(), RowIndex(4));
    EXPECT_EQ(inRange.getColIndex(), ColumnIndex(2));
    EXPECT_EQ(getNumber(*inRange), 42.0);
}

TEST(DOM_LogicalCellIt, AdvancesByManyPositions)
{
    const Table table = makeSparse();
    auto it = table.getTableLogicalBeginIt();
    it.advance(26);
    EXPECT_EQ(it.getRowIndex(), RowIndex(4));
    EXPECT_EQ(it.getColIndex(), ColumnIndex(2));
    EXPECT_EQ(getNumber(*it), 42.0);
    it.advance(0);
    EXPECT_EQ(getNumber(*it), 42.0);

    auto inRange = table.getRangeLogicalIterators(makeRange(3, 10, 4, 6)).first;
    inRange.advance(13);
    EXPECT_EQ(inRange.getRowIndex(), RowIndex(9));
    EXPECT_EQ(inRange.getColIndex(), ColumnIndex(5));
    EXPECT_EQ(getNumber(*inRange), 95.0);
}

TEST(DOM_LogicalCellIt, StopsAtItsEnd)
{
    const Table table = makeSparse();
    for (const std::uint64_t count : {std::uint64_t{60}, std::uint64_t{1000}, ~std::uint64_t{0}}) {
        auto it = table.getTableLogicalBeginIt();
        it.advance(3);
        it.advance(count);
        EXPECT_TRUE(it == table.getTableLogicalEndIt());
        EXPECT_EQ(*it, nullptr);
        ++it;
        EXPECT_TRUE(it == table.getTableLogicalEndIt());

        auto inRange = table.getRangeLogicalIterators(makeRange(3, 10, 4, 6)).first;
        inRange.advance(count);
        EXPECT_TRUE(inRange == table.getRangeLogicalEndIt(makeRange(3, 10, 4, 6)));
        EXPECT_EQ(inRange.getRowIndex(), RowIndex(10));
        EXPECT_EQ(inRange.getColIndex(), ColumnIndex(4));
    }
}

TEST(DOM_LogicalCellIt, BeginsAtItsEndInATableWithoutColumns)
{
    const Table table(RowIndex(5), ColumnIndex(0));
    auto it = table.getTableLogicalBeginIt();
    EXPECT_TRUE(it == table.getTableLogicalEndIt());
    ++it;
    --it;
    EXPECT_TRUE(it == table.getTableLogicalEndIt());
    EXPECT_TRUE(table.getTableLogicalIt(RowIndex(1), ColumnIndex(0)) == table.getTableLogicalEndIt());
    const Table empty;
    EXPECT_TRUE(empty.getTableLogicalBeginIt() == empty.getTableLogicalEndIt());
}

TEST(DOM_LogicalCellIt, StartsAtAPosition)
{
    Table table = makeSparse(2);
    const auto stored = table.getTableLogicalIt(RowIndex(4), ColumnIndex(2));
    EXPECT_EQ(*stored, table.getCell(RowIndex(4), ColumnIndex(2)));
    auto between = std::as_const(table).getTableLogicalIt(RowIndex(4), ColumnIndex(1));
    EXPECT_EQ(*between, nullptr);
    ++between;
    EXPECT_EQ(getNumber(*between), 42.0);
    auto outside = std::as_const(table).getTableLogicalIt(RowIndex(1), ColumnIndex(8));
    ++outside;
    EXPECT_EQ(outside.getRowIndex(), RowIndex(2));
    EXPECT_EQ(outside.getColIndex(), ColumnIndex(3));
}

TEST(DOM_LogicalCellIt, ComparesByPosition)
{
    const Table table = makeSparse();
    const auto first = table.getTableLogicalIt(RowIndex(1), ColumnIndex(4));
    const auto second = table.getTableLogicalIt(RowIndex(2), ColumnIndex(0));
    EXPECT_TRUE(first < second);
    EXPECT_FALSE(second < first);
    EXPECT_TRUE(first != second);
    auto walked = first;
    walked.advance(2);
    EXPECT_TRUE(walked == second);
    EXPECT_TRUE(second < table.getTableLogicalEndIt());
}

TEST(DOM_LogicalCellIt, FollowsColumnsThatCameAndWent)
{
    Table table = makeSparse(2);
    table.insertColumn({{}, {}, ColumnID(5'000'000'000)}, ColumnIndex(2));
    setNumber(table, 4, 2, 7.0);
    table.removeColumn(ColumnIndex(0));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(1));
    expectLookups(table, table.getTableLogicalIterators());
    EXPECT_EQ(
        getPositions(table.getTableIterators()),
        (Positions{makeIndex(0, 0), makeIndex(0, 3), makeIndex(5, 1), makeIndex(5, 2), makeIndex(10, 5)}));
}

} // namespace
} // namespace QN::DOM::TableIteratorsTest
