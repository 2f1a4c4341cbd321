#include "DOM/Tables/Filters/DOM_UnaryConditionTableFilter.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"

namespace QN::DOM::UnaryConditionTableFilterTest {
namespace {

using namespace QN::Test;
using Operator = UnaryConditionTableFilterOperator;

TEST(DOM_UnaryConditionTableFilter, HasTheOperatorOfNumberZeroAndNoTextByDefault)
{
    EXPECT_EQ(static_cast<int>(UnaryConditionTableFilter().getOperator()), 0);
    EXPECT_EQ(UnaryConditionTableFilter(ColumnIndex(2)),
              UnaryConditionTableFilter(ColumnIndex(2), static_cast<Operator>(0), ""));
    expectText(UnaryConditionTableFilter(),
               R"({"value0":{"value0":{},"_columnIndex":{"_value":0}},"_operator":0,"_parameter":""})");
}

TEST(DOM_UnaryConditionTableFilter, IsOneOfItsFamily)
{
    expectInFamily<TableFilter>(
        UnaryConditionTableFilter(ColumnIndex(7), Operator::GreaterThanOrEqual, "12"),
        "QN::DOM::UnaryConditionTableFilter",
        R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_operator":5,"_parameter":"12"})");
}

TEST(DOM_UnaryConditionTableFilter, PassesUnknownOperatorsThrough)
{
    for (const int number : {-1, 2147483647}) {
        expectText(UnaryConditionTableFilter(ColumnIndex(7), static_cast<Operator>(number), ""),
                   R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_operator":)" +
                       std::to_string(number) + R"(,"_parameter":""})");
    }
}

TEST(DOM_UnaryConditionTableFilter, TakesWhatItIsGiven)
{
    UnaryConditionTableFilter filter(ColumnIndex(7));
    filter.setOperator(Operator::Contains);
    filter.setParameter("x");
    EXPECT_EQ(filter, UnaryConditionTableFilter(ColumnIndex(7), Operator::Contains, "x"));
    EXPECT_EQ(filter.getParameter(), "x");
    EXPECT_NE(filter, UnaryConditionTableFilter(ColumnIndex(7), Operator::Contains, "y"));
    EXPECT_NE(filter, UnaryConditionTableFilter(ColumnIndex(7), Operator::Equal, "x"));
    EXPECT_NE(filter, UnaryConditionTableFilter(ColumnIndex(8), Operator::Contains, "x"));
}

} // namespace
} // namespace QN::DOM::UnaryConditionTableFilterTest
