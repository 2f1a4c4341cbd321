#include "DOM/Tables/DOM_TextConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/ConditionSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TextConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

TEST(DOM_TextConditionalFormatOperator, HasTypeZeroAndAnEmptyTextByDefault)
{
    const TextConditionalFormatOperator condition;
    EXPECT_EQ(static_cast<int>(condition.getType()), 0);
    expectText(condition, R"({"_type":0,"_argument":{"which":0,"data":""}})");
}

TEST(DOM_TextConditionalFormatOperator, HoldsATextOrAnExpression)
{
    TextConditionalFormatOperator condition(TextConditionalFormatOperator::Type::EndsWith, std::string("a"));
    expectText(condition, R"({"_type":3,"_argument":{"which":0,"data":"a"}})");
    expectCopiesAndMoves(condition);
    condition.setArgument(makeExpr("a"));
    expectText(condition, R"({"_type":3,"_argument":{"which":1,"data":)" + makeExprJson("a") + "}}");
    expectCopiesAndMoves(condition);
    condition.setArgument(std::string("b"));
    condition.setType(TextConditionalFormatOperator::Type::BeginsWith);
    expectText(condition, R"({"_type":2,"_argument":{"which":0,"data":"b"}})");
}

TEST(DOM_TextConditionalFormatOperator, WithATextIsUnequalToOneWithAnEqualExpression)
{
    using Operator = TextConditionalFormatOperator;
    EXPECT_NE(Operator(Operator::Type::BeginsWith, std::string("a")),
              Operator(Operator::Type::BeginsWith, makeExpr("a")));
    EXPECT_EQ(Operator(Operator::Type::BeginsWith, makeExpr("a")),
              Operator(Operator::Type::BeginsWith, makeExpr("a")));
}

TEST(DOM_TextConditionalFormatOperator, RefusesAnUnknownKindOfArgument)
{
    EXPECT_EQ(loadError<TextConditionalFormatOperator>(R"({"_type":0,"_argument":{"which":2,"data":""}})"),
              "Invalid 'which' selector when deserializing boost::variant");
}

TEST(DOM_TextConditionalFormatOperator, SharesNoExpressionWithItsCopy)
{
    using Operator = TextConditionalFormatOperator;
    const Operator source(Operator::Type::BeginsWith, makeExpr("a"));
    const Operator copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(boost::get<Operator::ExprPtr>(copy.getArgument()).get(),
              boost::get<Operator::ExprPtr>(source.getArgument()).get());
}

TEST(DOM_TextConditionalFormatOperator, WithANullExpressionIsUnequalToOneWithATextOrAnExpression)
{
    using Operator = TextConditionalFormatOperator;
    const Operator condition(Operator::Type::ContainsText, Operator::ExprPtr());
    expectText(condition, R"({"_type":0,"_argument":{"which":1,"data":{"polymorphic_id":0}}})");
    expectCopiesAndMoves(condition);
    EXPECT_NE(condition, Operator());
    EXPECT_NE(condition, Operator(Operator::Type::ContainsText, makeExpr("")));
}

TEST(DOM_TextConditionalFormatOperator, DiffersByItsTypeAndItsText)
{
    using Operator = TextConditionalFormatOperator;
    const Operator condition(Operator::Type::EndsWith, std::string("a"));
    EXPECT_EQ(condition, Operator(Operator::Type::EndsWith, std::string("a")));
    EXPECT_NE(condition, Operator(Operator::Type::BeginsWith, std::string("a")));
    EXPECT_NE(condition, Operator(Operator::Type::EndsWith, std::string("b")));
}

TEST(DOM_TextConditionalFormatOperator, PassesUnknownTypesThrough)
{
    using Type = TextConditionalFormatOperator::Type;
    const std::string argument = R"(,"_argument":{"which":0,"data":""}})";
    expectText(TextConditionalFormatOperator(LeastType<Type>, std::string()),
               R"({"_type":-2147483648)" + argument);
    expectText(TextConditionalFormatOperator(GreatestType<Type>, std::string()),
               R"({"_type":2147483647)" + argument);
}

} // namespace
} // namespace QN::DOM::TextConditionalFormatOperatorTest
