#include "DOM/Properties/DOM_ThemeFill.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ThemeFillTest {

using namespace Test;

namespace {

ThemeFill makeFill(boost::optional<std::uint64_t> index, FillThemeType type,
                   boost::optional<Color> color = boost::none)
{
    ThemeFill fill;
    fill.setIndex(index);
    fill.setFillThemeType(type);
    fill.setColor(std::move(color));
    return fill;
}

} // namespace

TEST(ThemeFillTest, RefersToNothingByDefault)
{
    const ThemeFill fill;
    EXPECT_FALSE(fill.getIndex());
    EXPECT_EQ(static_cast<int>(fill.getFillThemeType()), 0);
    EXPECT_FALSE(fill.getColor());
    EXPECT_EQ(toJson(fill), R"({"value0":{},"_index":{"hasValue":false},"_fillThemeType":0,)"
                            R"("_color":{"hasValue":false}})");
}

TEST(ThemeFillTest, PersistsItsMembersInOrder)
{
    const ThemeFill fill = makeFill(3, FillThemeType::BackgroundFill, makeSlotColor(ThemeColorId::Accent2));
    EXPECT_EQ(toJson(fill), R"({"value0":{},"_index":{"hasValue":true,"value":3},"_fillThemeType":1,)"
                            R"("_color":{"hasValue":true,"value":{"_value":{"which":1,"data":9},)"
                            R"("_transforms":[]}}})");
    expectPersists(fill);
    expectPersists(ThemeFill());
}

TEST(ThemeFillTest, AnyIndexAndAnyTypePassThrough)
{
    static_assert(sizeof(FillThemeType) == 1);
    expectRoundTrip(makeFill(std::numeric_limits<std::uint64_t>::max(), static_cast<FillThemeType>(255)));
}

TEST(ThemeFillTest, SettersSetAndClear)
{
    ThemeFill fill = makeFill(3, FillThemeType::BackgroundFill, Color());
    EXPECT_EQ(*fill.getIndex(), 3U);
    EXPECT_EQ(fill.getFillThemeType(), FillThemeType::BackgroundFill);
    EXPECT_EQ(*fill.getColor(), Color());
    fill.setIndex(boost::none);
    fill.setFillThemeType(FillThemeType::Fill);
    fill.setColor(boost::none);
    EXPECT_EQ(fill, ThemeFill());
}

TEST(ThemeFillTest, OrdersByIndexThenByTypeThenByColor)
{
    expectAscending<ThemeFill>({
        ThemeFill(),
        makeFill(boost::none, FillThemeType::Fill, Color()),
        makeFill(boost::none, FillThemeType::BackgroundFill),
        makeFill(0, FillThemeType::Fill),
        makeFill(0, FillThemeType::Fill, Color()),
        makeFill(0, FillThemeType::Fill, makePlaceholder()),
        makeFill(0, FillThemeType::BackgroundFill),
        makeFill(1, FillThemeType::Fill),
    });
}

TEST(ThemeFillTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeFill(3, FillThemeType::BackgroundFill, makePlaceholder({Shade(0.1)})));
}

} // namespace QN::DOM::ThemeFillTest
