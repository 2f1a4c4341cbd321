#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasConstant.h"

#include <gtest/gtest.h>

#include <cmath>

#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasConstantTest {
namespace {

TEST(DrawingFormulasConstant, IsPiByDefault)
{
    EXPECT_EQ(static_cast<int>(Constant().getType()), 8);
    EXPECT_EQ(Constant().getType(), ConstantType::Pi);
    EXPECT_EQ(Constant().getValue(), 3.141592653589793);
    expectInFamily<Expression>(Constant(), "QN::DOM::DrawingFormulas::Constant",
                               R"({"value0":{},"_type":8})");
}

TEST(DrawingFormulasConstant, OfAFullTurnCountsSixtyThousandthsOfADegree)
{
    const Constant turn(ConstantType::FullTurn);
    EXPECT_EQ(turn.getValue(), 21600000.0);
    expectInFamily<Expression>(turn, "QN::DOM::DrawingFormulas::Constant", R"({"value0":{},"_type":9})");
}

TEST(DrawingFormulasConstant, HasNoNumberOfItsOwnForAnyOtherType)
{
    static_assert(sizeof(ConstantType) == 1);
    for (int type = 0; type <= 255; ++type) {
        if (type != 8 && type != 9) {
            EXPECT_TRUE(std::isnan(Constant(static_cast<ConstantType>(type)).getValue())) << type;
        }
    }
}

TEST(DrawingFormulasConstant, ComparesByTypeEvenWhereTheValueIsNaN)
{
    EXPECT_EQ(Constant(ConstantType{0}), Constant(ConstantType{0}));
    EXPECT_NE(Constant(ConstantType{0}), Constant(ConstantType{1}));
}

TEST(DrawingFormulasConstant, PassesUnknownTypesThrough)
{
    expectText(Constant(static_cast<ConstantType>(255)), R"({"value0":{},"_type":255})");
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasConstantTest
