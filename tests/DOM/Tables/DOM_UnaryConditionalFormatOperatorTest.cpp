#include "DOM/Tables/DOM_UnaryConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/ConditionSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::UnaryConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

TEST(DOM_UnaryConditionalFormatOperator, HasTypeZeroAndNoArgumentByDefault)
{
    const UnaryConditionalFormatOperator condition;
    EXPECT_EQ(static_cast<int>(condition.getType()), 0);
    EXPECT_EQ(condition.getArgument(), nullptr);
    expectText(condition, R"({"_type":0,"_argument":{"polymorphic_id":0}})");
}

TEST(DOM_UnaryConditionalFormatOperator, WritesItsArgumentAsABarePointer)
{
    const UnaryConditionalFormatOperator condition(UnaryConditionalFormatOperator::Type::GreaterThan,
                                                   makeExpr("a"));
    expectText(condition, R"({"_type":5,"_argument":)" + makeExprJson("a") + "}");
    expectCopiesAndMoves(condition);
}

TEST(DOM_UnaryConditionalFormatOperator, SharesNoExpressionWithItsCopy)
{
    UnaryConditionalFormatOperator source;
    source.setType(UnaryConditionalFormatOperator::Type::Equal);
    source.setArgument(makeExpr("a"));
    const UnaryConditionalFormatOperator copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(copy.getArgument(), source.getArgument());
    source.setArgument(makeExpr("b"));
    EXPECT_NE(copy, source);
    source.setArgument(nullptr);
    EXPECT_NE(copy, source);
}

TEST(DOM_UnaryConditionalFormatOperator, DiffersByItsTypeAndItsArgument)
{
    using Operator = UnaryConditionalFormatOperator;
    const Operator condition(Operator::Type::Equal, makeExpr("a"));
    EXPECT_EQ(condition, Operator(Operator::Type::Equal, makeExpr("a")));
    EXPECT_NE(condition, Operator(Operator::Type::NotEqual, makeExpr("a")));
    EXPECT_NE(condition, Operator(Operator::Type::Equal, makeExpr("b")));
}

TEST(DOM_UnaryConditionalFormatOperator, PassesUnknownTypesThrough)
{
    using Type = UnaryConditionalFormatOperator::Type;
    expectText(UnaryConditionalFormatOperator(LeastType<Type>, nullptr),
               R"({"_type":-2147483648,"_argument":{"polymorphic_id":0}})");
    expectText(UnaryConditionalFormatOperator(GreatestType<Type>, nullptr),
               R"({"_type":2147483647,"_argument":{"polymorphic_id":0}})");
}

} // namespace
} // namespace QN::DOM::UnaryConditionalFormatOperatorTest
