#include "DOM/Tables/DOM_ConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/DOM_Bool.h"
#include "DOM/FormulaSyntaxTree/DOM_String.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::ConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;
using FormulaSyntaxTree::Expr;

std::unique_ptr<Expr> makeExpr(const std::string& text)
{
    return std::make_unique<FormulaSyntaxTree::String>(text);
}

/// A string expression that stands first in its text.
std::string makeExprJson(const std::string& text, bool isFirst = true)
{
    const std::string type =
        isFirst ? R"("polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::FormulaSyntaxTree::String")"
                : R"("polymorphic_id":1)";
    return "{" + type + R"(,"ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{}},"_value":")" + text +
           R"("}}})";
}

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

TEST(DOM_TopBottomConditionalFormatOperator, HasTypeOneByDefault)
{
    const TopBottomConditionalFormatOperator condition;
    EXPECT_EQ(static_cast<int>(condition.getType()), 1);
    EXPECT_FALSE(condition.getUsePercent());
    EXPECT_EQ(condition.getValue(), 0U);
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

TEST(DOM_AboveAverageConditionalFormatOperator, HasTypeZeroAndNoDeviationByDefault)
{
    const AboveAverageConditionalFormatOperator condition;
    EXPECT_EQ(static_cast<int>(condition.getType()), 0);
    expectText(condition, R"({"_type":0,"_stdDev":{"hasValue":false}})");
}

TEST(DOM_AboveAverageConditionalFormatOperator, WritesItsDeviation)
{
    using Operator = AboveAverageConditionalFormatOperator;
    Operator condition(Operator::Type::EqualOrBelow, std::uint8_t{2});
    expectText(condition, R"({"_type":3,"_stdDev":{"hasValue":true,"value":2}})");
    expectCopiesAndMoves(condition);
    condition.setStdDev(boost::none);
    condition.setType(Operator::Type::Above);
    EXPECT_EQ(condition, Operator());
    EXPECT_FALSE(condition.getStdDev());
}

TEST(DOM_ConditionalFormatOperator, HasTheAlternativesOfTheFileFormat)
{
    const auto whichOf = [](ConditionalFormatOperator condition) { return condition.which(); };
    EXPECT_EQ(ConditionalFormatOperator().which(), 0);
    EXPECT_EQ(whichOf(NullaryConditionalFormatOperator::ContainsErrors), 0);
    EXPECT_EQ(whichOf(UnaryConditionalFormatOperator()), 1);
    EXPECT_EQ(whichOf(BinaryConditionalFormatOperator()), 2);
    EXPECT_EQ(whichOf(TextConditionalFormatOperator()), 3);
    EXPECT_EQ(whichOf(TopBottomConditionalFormatOperator()), 4);
    EXPECT_EQ(whichOf(AboveAverageConditionalFormatOperator()), 5);
    EXPECT_EQ(whichOf(UniquenessConditionalFormatOperator::UniqueValues), 6);
}

TEST(DOM_ConditionalFormatOperator, WritesPlainEnumerationsAsNumbers)
{
    expectText(ConditionalFormatOperator(), R"({"which":0,"data":0})");
    expectText(ConditionalFormatOperator(static_cast<NullaryConditionalFormatOperator>(255)),
               R"({"which":0,"data":255})");
    expectText(ConditionalFormatOperator(UniquenessConditionalFormatOperator::UniqueValues),
               R"({"which":6,"data":1})");
}

} // namespace
} // namespace QN::DOM::ConditionalFormatOperatorTest
