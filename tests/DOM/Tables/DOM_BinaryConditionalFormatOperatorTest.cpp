#include "DOM/Tables/DOM_BinaryConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/ConditionSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::BinaryConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

TEST(DOM_BinaryConditionalFormatOperator, HasTypeZeroAndNoArgumentsByDefault)
{
    const BinaryConditionalFormatOperator condition;
    EXPECT_EQ(static_cast<int>(condition.getType()), 0);
    EXPECT_EQ(condition.getFirstArgument(), nullptr);
    EXPECT_EQ(condition.getSecondArgument(), nullptr);
    expectText(condition,
               R"({"_type":0,"_firstArgument":{"polymorphic_id":0},"_secondArgument":{"polymorphic_id":0}})");
}

TEST(DOM_BinaryConditionalFormatOperator, WritesItsArgumentsInOrder)
{
    const BinaryConditionalFormatOperator condition(BinaryConditionalFormatOperator::Type::NotBetween,
                                                    makeExpr("a"), makeExpr("b"));
    expectText(condition, R"({"_type":1,"_firstArgument":)" + makeExprJson("a") + R"(,"_secondArgument":)" +
                              makeExprJson("b", false) + "}");
    expectCopiesAndMoves(condition);
}

TEST(DOM_BinaryConditionalFormatOperator, DiffersByTheOrderOfItsArguments)
{
    using Operator = BinaryConditionalFormatOperator;
    Operator condition;
    condition.setType(Operator::Type::NotBetween);
    condition.setFirstArgument(makeExpr("a"));
    condition.setSecondArgument(makeExpr("b"));
    EXPECT_EQ(condition, Operator(Operator::Type::NotBetween, makeExpr("a"), makeExpr("b")));
    EXPECT_NE(condition, Operator(Operator::Type::NotBetween, makeExpr("b"), makeExpr("a")));
    EXPECT_NE(condition, Operator(Operator::Type::Between, makeExpr("a"), makeExpr("b")));
}

TEST(DOM_BinaryConditionalFormatOperator, SharesNoExpressionWithItsCopy)
{
    const BinaryConditionalFormatOperator source(BinaryConditionalFormatOperator::Type::Between,
                                                 makeExpr("a"), makeExpr("b"));
    const BinaryConditionalFormatOperator copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(copy.getFirstArgument(), source.getFirstArgument());
    EXPECT_NE(copy.getSecondArgument(), source.getSecondArgument());
}

TEST(DOM_BinaryConditionalFormatOperator, MayLackEitherArgument)
{
    using Operator = BinaryConditionalFormatOperator;
    const Operator first(Operator::Type::Between, makeExpr("a"), nullptr);
    const Operator second(Operator::Type::Between, nullptr, makeExpr("a"));
    EXPECT_NE(first, second);
    expectCopiesAndMoves(first);
    expectCopiesAndMoves(second);
    expectText(second, R"({"_type":0,"_firstArgument":{"polymorphic_id":0},"_secondArgument":)" +
                           makeExprJson("a") + "}");
}

TEST(DOM_BinaryConditionalFormatOperator, PassesUnknownTypesThrough)
{
    using Type = BinaryConditionalFormatOperator::Type;
    const std::string arguments =
        R"(,"_firstArgument":{"polymorphic_id":0},"_secondArgument":{"polymorphic_id":0}})";
    expectText(BinaryConditionalFormatOperator(LeastType<Type>, nullptr, nullptr),
               R"({"_type":-2147483648)" + arguments);
    expectText(BinaryConditionalFormatOperator(GreatestType<Type>, nullptr, nullptr),
               R"({"_type":2147483647)" + arguments);
}

} // namespace
} // namespace QN::DOM::BinaryConditionalFormatOperatorTest
