#include "DOM/Properties/DOM_SolidFill.h"

#include <gtest/gtest.h>

#include <string>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::SolidFillTest {

using namespace Test;

namespace {

SolidFill makeSolidFill(boost::optional<Color> color)
{
    SolidFill fill;
    fill.setColor(std::move(color));
    return fill;
}

} // namespace

TEST(SolidFillTest, HoldsNoColorByDefault)
{
    EXPECT_FALSE(SolidFill().getColor());
    EXPECT_EQ(toJson(SolidFill()), R"({"value0":{},"_color":{"hasValue":false}})");
}

TEST(SolidFillTest, NoColorDiffersFromADefaultColor)
{
    const SolidFill withDefault = makeSolidFill(Color());
    EXPECT_NE(SolidFill(), withDefault);
    EXPECT_EQ(toJson(withDefault),
              R"({"value0":{},"_color":{"hasValue":true,"value":)" + std::string(DefaultColorJson) + "}}");
}

TEST(SolidFillTest, TheSetterTakesAndRemovesAColor)
{
    SolidFill fill = makeSolidFill(makeSlotColor(ThemeColorId::Accent1));
    ASSERT_TRUE(fill.getColor());
    EXPECT_EQ(*fill.getColor(), makeSlotColor(ThemeColorId::Accent1));
    fill.setColor(boost::none);
    EXPECT_FALSE(fill.getColor());
}

TEST(SolidFillTest, OrdersByItsColorAnAbsentOneFirst)
{
    expectAscending<SolidFill>(
        {SolidFill(), makeSolidFill(Color()), makeSolidFill(makeSlotColor(ThemeColorId::Dark1))});
}

TEST(SolidFillTest, PersistsWithAndWithoutAColor)
{
    expectPersists(SolidFill());
    expectPersists(makeSolidFill(makePlaceholder({Tint(0.5)})));
}

TEST(SolidFillTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeSolidFill(makePlaceholder({Tint(0.5)})));
}

} // namespace QN::DOM::SolidFillTest
