#include "DOM/Tables/DOM_CellRangeIt.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/IteratorSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::CellRangeItTest {
namespace {

using namespace QN::Test;

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

} // namespace
} // namespace QN::DOM::CellRangeItTest
