#include "DOM/Tables/Filters/DOM_NullaryConditionTableFilter.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"

namespace QN::DOM::NullaryConditionTableFilterTest {
namespace {

using namespace QN::Test;
using Operator = NullaryConditionTableFilterOperator;

TEST(DOM_NullaryConditionTableFilter, HasTheOperatorOfNumberZeroByDefault)
{
    EXPECT_EQ(static_cast<int>(NullaryConditionTableFilter().getOperator()), 0);
    EXPECT_EQ(NullaryConditionTableFilter(ColumnIndex(2)),
              NullaryConditionTableFilter(ColumnIndex(2), static_cast<Operator>(0)));
    expectText(NullaryConditionTableFilter(),
               R"({"value0":{"value0":{},"_columnIndex":{"_value":0}},"_operator":0})");
}

TEST(DOM_NullaryConditionTableFilter, IsOneOfItsFamily)
{
    expectInFamily<TableFilter>(NullaryConditionTableFilter(ColumnIndex(7), Operator::NotEmpty),
                                "QN::DOM::NullaryConditionTableFilter",
                                R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_operator":1})");
}

TEST(DOM_NullaryConditionTableFilter, PassesUnknownOperatorsThrough)
{
    NullaryConditionTableFilter filter(ColumnIndex(7));
    filter.setOperator(static_cast<Operator>(-1));
    expectText(filter, R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_operator":-1})");
    filter.setOperator(static_cast<Operator>(2147483647));
    expectText(filter, R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_operator":2147483647})");
    EXPECT_NE(filter, NullaryConditionTableFilter(ColumnIndex(7)));
}

} // namespace
} // namespace QN::DOM::NullaryConditionTableFilterTest
