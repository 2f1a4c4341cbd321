#include "DOM/Charts/DOM_ChartLayout.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartLayoutTest {
namespace {

using namespace Test;

TEST(ChartLayout, SaysNothingByDefault)
{
    static_assert(sizeof(ChartLayoutTarget) == 1 && sizeof(ChartLayoutPositionUnitType) == 1 &&
                  sizeof(ChartLayoutSizeUnitType) == 1);
    static_assert(!Ordered<ChartLayout>);
    const ChartLayout layout;
    EXPECT_FALSE(layout.getLayoutTarget());
    EXPECT_EQ(layout.getXType(), ChartLayoutPositionUnitType{0});
    EXPECT_EQ(layout.getYType(), ChartLayoutPositionUnitType{0});
    EXPECT_EQ(layout.getWidthType(), ChartLayoutSizeUnitType{0});
    EXPECT_EQ(layout.getHeightType(), ChartLayoutSizeUnitType{0});
    EXPECT_EQ(layout.getX(), boost::none);
    EXPECT_EQ(layout.getY(), boost::none);
    EXPECT_EQ(layout.getWidth(), boost::none);
    EXPECT_EQ(layout.getHeight(), boost::none);
    expectText(layout, R"({"_layoutTarget":{"hasValue":false},"_xType":0,"_yType":0,"_widthType":0,)"
                       R"("_heightType":0,"_x":{"hasValue":false},"_y":{"hasValue":false},)"
                       R"("_width":{"hasValue":false},"_height":{"hasValue":false}})");
}

TEST(ChartLayout, KeepsEveryMember)
{
    ChartLayout layout;
    layout.setLayoutTarget(static_cast<ChartLayoutTarget>(200));
    layout.setXType(static_cast<ChartLayoutPositionUnitType>(1));
    layout.setYType(static_cast<ChartLayoutPositionUnitType>(2));
    layout.setWidthType(static_cast<ChartLayoutSizeUnitType>(3));
    layout.setHeightType(static_cast<ChartLayoutSizeUnitType>(4));
    layout.setX(0.5);
    layout.setY(-1.5);
    layout.setWidth(2.5);
    layout.setHeight(3.5);
    EXPECT_EQ(static_cast<int>(*layout.getLayoutTarget()), 200);
    EXPECT_EQ(static_cast<int>(layout.getXType()), 1);
    EXPECT_EQ(static_cast<int>(layout.getYType()), 2);
    EXPECT_EQ(static_cast<int>(layout.getWidthType()), 3);
    EXPECT_EQ(static_cast<int>(layout.getHeightType()), 4);
    EXPECT_EQ(layout.getX(), 0.5);
    EXPECT_EQ(layout.getY(), -1.5);
    EXPECT_EQ(layout.getWidth(), 2.5);
    EXPECT_EQ(layout.getHeight(), 3.5);
    expectText(layout,
               R"({"_layoutTarget":{"hasValue":true,"value":200},"_xType":1,"_yType":2,"_widthType":3,)"
               R"("_heightType":4,"_x":{"hasValue":true,"value":0.5},"_y":{"hasValue":true,"value":-1.5},)"
               R"("_width":{"hasValue":true,"value":2.5},"_height":{"hasValue":true,"value":3.5}})");
    expectCopiesAndMoves(layout);
}

TEST(ChartLayout, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectEachChangeMatters(
        ChartLayout(), [](ChartLayout& layout) { layout.setLayoutTarget(ChartLayoutTarget::Outer); },
        [](ChartLayout& layout) { layout.setXType(ChartLayoutPositionUnitType::Edge); },
        [](ChartLayout& layout) { layout.setYType(ChartLayoutPositionUnitType::Edge); },
        [](ChartLayout& layout) { layout.setWidthType(ChartLayoutSizeUnitType::Edge); },
        [](ChartLayout& layout) { layout.setHeightType(ChartLayoutSizeUnitType::Edge); },
        [](ChartLayout& layout) { layout.setX(0.0); }, [](ChartLayout& layout) { layout.setY(0.0); },
        [](ChartLayout& layout) { layout.setWidth(0.0); },
        [](ChartLayout& layout) { layout.setHeight(0.0); });
}

} // namespace
} // namespace QN::DOM::ChartLayoutTest
