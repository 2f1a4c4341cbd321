#include "DOM/Tables/DOM_AboveAverageConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/ConditionSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::AboveAverageConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

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

TEST(DOM_AboveAverageConditionalFormatOperator, DiffersByItsTypeAndItsDeviation)
{
    using Operator = AboveAverageConditionalFormatOperator;
    const Operator condition(Operator::Type::Below, std::uint8_t{0});
    EXPECT_EQ(condition, Operator(Operator::Type::Below, std::uint8_t{0}));
    EXPECT_NE(condition, Operator(Operator::Type::Above, std::uint8_t{0}));
    EXPECT_NE(condition, Operator(Operator::Type::Below, std::uint8_t{1}));
    EXPECT_NE(condition, Operator(Operator::Type::Below));
}

TEST(DOM_AboveAverageConditionalFormatOperator, HasADeviationOfOneByte)
{
    expectText(AboveAverageConditionalFormatOperator({}, std::uint8_t{255}),
               R"({"_type":0,"_stdDev":{"hasValue":true,"value":255}})");
    EXPECT_EQ(typeError<AboveAverageConditionalFormatOperator>(
                  R"({"_type":0,"_stdDev":{"hasValue":true,"value":256}})"),
              "value is within the range of its type");
}

TEST(DOM_AboveAverageConditionalFormatOperator, PassesUnknownTypesThrough)
{
    using Type = AboveAverageConditionalFormatOperator::Type;
    expectText(AboveAverageConditionalFormatOperator(LeastType<Type>),
               R"({"_type":-2147483648,"_stdDev":{"hasValue":false}})");
    expectText(AboveAverageConditionalFormatOperator(GreatestType<Type>),
               R"({"_type":2147483647,"_stdDev":{"hasValue":false}})");
}

} // namespace
} // namespace QN::DOM::AboveAverageConditionalFormatOperatorTest
