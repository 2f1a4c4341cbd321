#include "DOM/Tables/Properties/DOM_HeaderRowsCols.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::HeaderRowsColsTest {
namespace {

using namespace QN::Test;
using RowIDs = IDRange<boost::optional<RowID>>;
using ColumnIDs = IDRange<boost::optional<ColumnID>>;

TEST(DOM_HeaderRowsCols, AreEmptyByDefault)
{
    expectText(HeaderRowsCols(), R"({"_beginRowID":{"hasValue":false},"_beginColID":{"hasValue":false},)"
                                 R"("_lastRowID":{"hasValue":false},"_lastColID":{"hasValue":false}})");
    EXPECT_FALSE(HeaderRowsCols().getRowRange());
    EXPECT_FALSE(HeaderRowsCols().getColRange());
}

TEST(DOM_HeaderRowsCols, WriteTheColumnsBetweenTheRows)
{
    const HeaderRowsCols headers(RowIDs{RowID(1), RowID(2)}, ColumnIDs{ColumnID(3), ColumnID(4)});
    expectText(headers, R"({"_beginRowID":{"hasValue":true,"value":{"_value":1}},)"
                        R"("_beginColID":{"hasValue":true,"value":{"_value":3}},)"
                        R"("_lastRowID":{"hasValue":true,"value":{"_value":2}},)"
                        R"("_lastColID":{"hasValue":true,"value":{"_value":4}}})");
    expectCopiesAndMoves(headers);
}

TEST(DOM_HeaderRowsCols, AnswerTheirRangesAndTheirEnds)
{
    const HeaderRowsCols headers(RowIDs{RowID(1), RowID(2)}, ColumnIDs{ColumnID(3), ColumnID(4)});
    EXPECT_EQ(headers.getRowRange(), (RowIDs{RowID(1), RowID(2)}));
    EXPECT_EQ(headers.getColRange(), (ColumnIDs{ColumnID(3), ColumnID(4)}));
    EXPECT_EQ(headers.getBeginRowID(), RowID(1));
    EXPECT_EQ(headers.getLastRowID(), RowID(2));
    EXPECT_EQ(headers.getBeginColID(), ColumnID(3));
    EXPECT_EQ(headers.getLastColID(), ColumnID(4));
}

TEST(DOM_HeaderRowsCols, HaveNoRangeThatLacksAnEnd)
{
    HeaderRowsCols headers;
    headers.setBeginRow(RowID(1));
    headers.setLastCol(ColumnID(4));
    EXPECT_FALSE(headers.getRowRange());
    EXPECT_FALSE(headers.getColRange());
    headers.setLastRow(RowID(1));
    headers.setBeginCol(ColumnID(2));
    EXPECT_EQ(headers.getRowRange(), (RowIDs{RowID(1), RowID(1)}));
    EXPECT_EQ(headers.getColRange(), (ColumnIDs{ColumnID(2), ColumnID(4)}));
}

TEST(DOM_HeaderRowsCols, LoseBothEndsToAnAbsentRange)
{
    HeaderRowsCols headers(RowIDs{RowID(1), RowID(2)}, ColumnIDs{ColumnID(3), ColumnID(4)});
    headers.setRowRange(boost::none);
    EXPECT_FALSE(headers.getBeginRowID());
    EXPECT_FALSE(headers.getLastRowID());
    headers.setColRange(boost::none);
    EXPECT_EQ(headers, HeaderRowsCols());
}

TEST(DOM_HeaderRowsColsDeathTest, TakeNoRangeThatLacksAnEnd)
{
    HeaderRowsCols headers;
    EXPECT_DEATH(headers.setRowRange(RowIDs{RowID(1), boost::none}),
                 R"(DOM_HeaderRowsCols\.cpp:[0-9]+: rowRange->begin && rowRange->last)");
    EXPECT_DEATH(headers.setRowRange(RowIDs{boost::none, RowID(1)}),
                 R"(DOM_HeaderRowsCols\.cpp:[0-9]+: rowRange->begin && rowRange->last)");
    EXPECT_DEATH(headers.setColRange(ColumnIDs{ColumnID(1), boost::none}),
                 R"(DOM_HeaderRowsCols\.cpp:[0-9]+: colRange->begin && colRange->last)");
    EXPECT_DEATH(headers.setColRange(ColumnIDs{boost::none, ColumnID(1)}),
                 R"(DOM_HeaderRowsCols\.cpp:[0-9]+: colRange->begin && colRange->last)");
}

TEST(DOM_HeaderRowsCols, OrderByRowsAndThenByColumns)
{
    expectAscending({HeaderRowsCols(),
                     with<HeaderRowsCols>([](auto& headers) { headers.setLastCol(ColumnID(1)); }),
                     with<HeaderRowsCols>([](auto& headers) { headers.setBeginCol(ColumnID(1)); }),
                     with<HeaderRowsCols>([](auto& headers) { headers.setLastRow(RowID(1)); }),
                     with<HeaderRowsCols>([](auto& headers) { headers.setBeginRow(RowID(1)); })});
}

} // namespace
} // namespace QN::DOM::HeaderRowsColsTest
