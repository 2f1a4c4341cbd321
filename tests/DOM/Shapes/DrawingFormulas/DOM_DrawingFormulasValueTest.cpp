#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasValue.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasValueTest {
namespace {

TEST(DrawingFormulasValue, IsZeroByDefault)
{
    EXPECT_EQ(Value().getValue(), 0.0);
    expectInFamily<Expression>(Value(), "QN::DOM::DrawingFormulas::Value", R"({"value0":{},"_value":0.0})");
}

TEST(DrawingFormulasValue, HoldsItsNumber)
{
    Value number(-12.5);
    EXPECT_EQ(number.getValue(), -12.5);
    expectInFamily<Expression>(number, "QN::DOM::DrawingFormulas::Value", R"({"value0":{},"_value":-12.5})");
    number.setValue(21600.0);
    EXPECT_EQ(number.getValue(), 21600.0);
}

TEST(DrawingFormulasValue, ComparesByItsNumber)
{
    EXPECT_EQ(Value(1.0), Value(1.0));
    EXPECT_NE(Value(1.0), Value(2.0));
    EXPECT_EQ(Value(0.0), Value(-0.0));
}

TEST(DrawingFormulasValue, OfNaNIsUnequalToItself)
{
    const Value nan(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(nan != nan);
    EXPECT_FALSE(areDeeplyEqual(static_cast<const Expression&>(nan), nan));
    EXPECT_EQ(toText(nan), R"({"value0":{},"_value":NaN})");
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasValueTest
