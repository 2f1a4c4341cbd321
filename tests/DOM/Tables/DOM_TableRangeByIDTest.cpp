#include "DOM/Tables/DOM_TableRangeByID.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TableRangeByIDTest {
namespace {

using namespace QN::Test;

TableRangeByID makeRange(std::uint64_t beginRow, std::uint64_t lastRow, std::uint64_t beginColumn,
                         std::uint64_t lastColumn)
{
    return {{RowID(beginRow), RowID(lastRow)}, {ColumnID(beginColumn), ColumnID(lastColumn)}};
}

TEST(DOM_TableRangeByID, HasNoIdentifierByDefault)
{
    EXPECT_EQ(TableRangeByID(), makeRange(0, 0, 0, 0));
    EXPECT_EQ(TableRangeByID().getBeginRowID(), RowID(0));
}

TEST(DOM_TableRangeByID, WritesTheBeginColumnBeforeTheLastRow)
{
    expectText(makeRange(1, 2, 3, 4), R"({"_beginRowID":{"_value":1},"_beginColID":{"_value":3},)"
                                      R"("_lastRowID":{"_value":2},"_lastColID":{"_value":4}})");
    expectCopiesAndMoves(makeRange(1, 2, 3, 4));
}

TEST(DOM_TableRangeByID, AnswersItsIdentifiersOneByOneAndByAxis)
{
    const TableRangeByID range = makeRange(1, 2, 3, 4);
    EXPECT_EQ(range.getBeginRowID(), RowID(1));
    EXPECT_EQ(range.getLastRowID(), RowID(2));
    EXPECT_EQ(range.getBeginColID(), ColumnID(3));
    EXPECT_EQ(range.getLastColID(), ColumnID(4));
    EXPECT_EQ(range.getRowIDRange(), (IDRange<RowID>{RowID(1), RowID(2)}));
    EXPECT_EQ(range.getColIDRange(), (IDRange<ColumnID>{ColumnID(3), ColumnID(4)}));
}

TEST(DOM_TableRangeByID, TakesItsIdentifiersOneByOneAndByAxis)
{
    TableRangeByID range;
    range.setBeginRowID(RowID(1));
    range.setLastRowID(RowID(2));
    range.setBeginColID(ColumnID(3));
    range.setLastColID(ColumnID(4));
    EXPECT_EQ(range, makeRange(1, 2, 3, 4));
    range.setRowIDRange({RowID(5), RowID(6)});
    range.setColIDRange({ColumnID(7), ColumnID(8)});
    EXPECT_EQ(range, makeRange(5, 6, 7, 8));
}

TEST(DOM_TableRangeByID, OrdersByRowsAndThenByColumns)
{
    expectAscending({makeRange(0, 0, 0, 0), makeRange(0, 0, 0, 9), makeRange(0, 0, 1, 0),
                     makeRange(0, 1, 0, 0), makeRange(1, 0, 0, 0)});
}

} // namespace
} // namespace QN::DOM::TableRangeByIDTest
