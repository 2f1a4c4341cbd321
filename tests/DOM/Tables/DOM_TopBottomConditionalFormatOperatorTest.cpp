#include "DOM/Tables/DOM_TopBottomConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/ConditionSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TopBottomConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

TEST(DOM_TopBottomConditionalFormatOperator, HasTypeOneByDefault)
{
    const TopBottomConditionalFormatOperator condition;
    EXPECT_EQ(static_cast<int>(condition.getType()), 1);
    EXPECT_FALSE(condition.getUsePercent());
    EXPECT_EQ(condition.getValue(), 0U);
    expectText(condition, R"({"_type":1,"_value":0,"_usePercent":false})");
}

TEST(DOM_TopBottomConditionalFormatOperator, WritesItsValueBeforeItsFlag)
{
    TopBottomConditionalFormatOperator condition(TopBottomConditionalFormatOperator::Type::Bottom, true,
                                                 4294967295U);
    expectText(condition, R"({"_type":0,"_value":4294967295,"_usePercent":true})");
    expectCopiesAndMoves(condition);
    condition.setType(TopBottomConditionalFormatOperator::Type::Top);
    condition.setUsePercent(false);
    condition.setValue(0);
    EXPECT_EQ(condition, TopBottomConditionalFormatOperator());
}

TEST(DOM_TopBottomConditionalFormatOperator, DiffersByEachOfItsMembers)
{
    using Operator = TopBottomConditionalFormatOperator;
    const Operator condition(Operator::Type::Top, true, 5);
    EXPECT_EQ(condition, Operator(Operator::Type::Top, true, 5));
    EXPECT_NE(condition, Operator(Operator::Type::Bottom, true, 5));
    EXPECT_NE(condition, Operator(Operator::Type::Top, false, 5));
    EXPECT_NE(condition, Operator(Operator::Type::Top, true, 6));
}

TEST(DOM_TopBottomConditionalFormatOperator, PassesUnknownTypesThrough)
{
    using Type = TopBottomConditionalFormatOperator::Type;
    expectText(TopBottomConditionalFormatOperator(LeastType<Type>, false, 0),
               R"({"_type":-2147483648,"_value":0,"_usePercent":false})");
    expectText(TopBottomConditionalFormatOperator(GreatestType<Type>, false, 0),
               R"({"_type":2147483647,"_value":0,"_usePercent":false})");
}

} // namespace
} // namespace QN::DOM::TopBottomConditionalFormatOperatorTest
