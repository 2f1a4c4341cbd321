#include "DOM/Tables/DOM_ConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/ConditionSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::ConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

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

TEST(DOM_ConditionalFormatOperator, WritesWhichAlternativeItHoldsAndWhatThatHolds)
{
    expectText(ConditionalFormatOperator(), R"({"which":0,"data":0})");
    expectText(ConditionalFormatOperator(static_cast<NullaryConditionalFormatOperator>(255)),
               R"({"which":0,"data":255})");
    expectText(ConditionalFormatOperator(UnaryConditionalFormatOperator({}, makeExpr("a"))),
               R"({"which":1,"data":{"_type":0,"_argument":)" + makeExprJson("a") + "}}");
    expectText(ConditionalFormatOperator(BinaryConditionalFormatOperator({}, makeExpr("a"), makeExpr("b"))),
               R"({"which":2,"data":{"_type":0,"_firstArgument":)" + makeExprJson("a") +
                   R"(,"_secondArgument":)" + makeExprJson("b", false) + "}}");
    expectText(ConditionalFormatOperator(TextConditionalFormatOperator({}, makeExpr("a"))),
               R"({"which":3,"data":{"_type":0,"_argument":{"which":1,"data":)" + makeExprJson("a") + "}}}");
    expectText(ConditionalFormatOperator(TopBottomConditionalFormatOperator()),
               R"({"which":4,"data":{"_type":1,"_value":0,"_usePercent":false}})");
    expectText(ConditionalFormatOperator(AboveAverageConditionalFormatOperator()),
               R"({"which":5,"data":{"_type":0,"_stdDev":{"hasValue":false}}})");
    expectText(ConditionalFormatOperator(UniquenessConditionalFormatOperator::UniqueValues),
               R"({"which":6,"data":1})");
}

TEST(DOM_ConditionalFormatOperator, RefusesAnAlternativeThatDoesNotExist)
{
    EXPECT_EQ(textError<ConditionalFormatOperator>(R"({"which":7,"data":0})"),
              "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(textError<ConditionalFormatOperator>(R"({"which":-1,"data":0})"),
              "Error traversing variant during load");
}

} // namespace
} // namespace QN::DOM::ConditionalFormatOperatorTest
