#include "DOM/Tables/DOM_LogicalCellIt.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/IteratorSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::LogicalCellItTest {
namespace {

using namespace QN::Test;

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

TEST(DOM_LogicalCellIt, FindsEachStoredCellAfterTurnsInFrontOfTheFirst)
{
    const Table table = makeSparse(2);
    for (const TableRange& range : {makeRange(0, 10, 0, 6), makeRange(1, 12, 1, 3), makeRange(0, 4, 4, 6)}) {
        const auto iterators = table.getRangeLogicalIterators(range);
        auto it = iterators.second;
        for (std::uint64_t back = 1; back < 80; ++back) {
            for (std::uint64_t step = 0; step < back; ++step) {
                --it;
                ASSERT_EQ(*it, table.getCell(it.getRowIndex(), it.getColIndex()));
            }
            it.advance(back / 2);
            ASSERT_EQ(*it, it.isAtEnd() ? nullptr : table.getCell(it.getRowIndex(), it.getColIndex()));
        }
    }
}

TEST(DOM_LogicalCellIt, LooksForCellsBeforeTheFirstOneOnceWhenItGoesBackwards)
{
    constexpr std::uint64_t Rows = 30000;
    Table table;
    for (std::uint64_t row = 0; row < Rows; ++row) {
        setNumber(table, row, 0, 1.0);
    }
    // 450,000,000 rows if each step looked again.
    const auto iterators = table.getRangeLogicalIterators(makeRange(0, Rows, 1, 2));
    std::uint64_t steps = 0;
    for (auto it = iterators.second; it != iterators.first; --it) {
        ++steps;
    }
    EXPECT_EQ(steps, Rows);
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

TEST(DOM_LogicalCellIt, StandsAtItsEndWhenItStartsBehindItsArea)
{
    const Table table = makeSparse();
    for (const std::uint64_t row : {std::uint64_t{10}, std::uint64_t{11}, ~std::uint64_t{0}}) {
        auto it = table.getTableLogicalIt(RowIndex(row), ColumnIndex(3));
        EXPECT_TRUE(it == table.getTableLogicalEndIt());
        EXPECT_EQ(*it, nullptr);
        --it;
        EXPECT_EQ(it.getRowIndex(), RowIndex(9));
        EXPECT_EQ(getNumber(*it), 95.0);
    }
    const TableRange range = makeRange(3, 5, 1, 4);
    const LogicalCellIt it(table.getRangeIterators(range).second, RowIndex(5), ColumnIndex(2));
    EXPECT_TRUE(it == table.getRangeLogicalEndIt(range));
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
} // namespace QN::DOM::LogicalCellItTest
