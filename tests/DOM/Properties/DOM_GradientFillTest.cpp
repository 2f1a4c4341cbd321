#include "DOM/Properties/DOM_GradientFill.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::GradientFillTest {

using namespace Test;

namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();

GradientFill makeFill(std::initializer_list<double> positions, boost::optional<float> angle = boost::none,
                      boost::optional<GradientType> type = boost::none)
{
    GradientFill fill;
    for (const double position : positions) {
        GradientStop stop;
        stop.setPosition(position);
        fill.getGradientStops().push_back(stop);
    }
    fill.setRotationAngle(angle);
    fill.setGradientType(type);
    return fill;
}

} // namespace

TEST(GradientFillTest, IsEmptyByDefault)
{
    const GradientFill fill;
    EXPECT_TRUE(fill.getGradientStops().empty());
    EXPECT_FALSE(fill.getRotationAngle());
    EXPECT_FALSE(fill.getGradientType());
    EXPECT_EQ(toJson(fill), R"({"value0":{},"_gradientStops":[],"_rotationAngle":{"hasValue":false},)"
                            R"("_gradientType":{"hasValue":false}})");
}

TEST(GradientFillTest, PersistsItsMembersInOrder)
{
    GradientFill fill = makeFill({}, 90.5F, GradientType::Rectangle);
    fill.getGradientStops().emplace_back().setColor(makePlaceholder());
    EXPECT_EQ(
        toJson(fill),
        R"({"value0":{},"_gradientStops":[{"_position":0.0,)"
        R"("_color":{"_value":{"which":2,"data":{}},"_transforms":[]}}],)"
        R"("_rotationAngle":{"hasValue":true,"value":90.5},"_gradientType":{"hasValue":true,"value":2}})");
    expectPersists(fill);
    expectPersists(GradientFill());
}

TEST(GradientFillTest, StopsOutOfPositionOrderStaySo)
{
    const GradientFill fill = makeFill({1.0, 0.0, 0.5, 0.0});
    const auto loaded = fromJson<GradientFill>(toJson(fill));
    ASSERT_EQ(loaded.getGradientStops().size(), 4U);
    EXPECT_EQ(loaded.getGradientStops()[0].getPosition(), 1.0);
    EXPECT_EQ(loaded.getGradientStops()[1].getPosition(), 0.0);
    EXPECT_EQ(loaded.getGradientStops()[2].getPosition(), 0.5);
    EXPECT_EQ(loaded.getGradientStops()[3].getPosition(), 0.0);
    EXPECT_EQ(loaded, fill);
}

TEST(GradientFillTest, AnyTypePassesThrough)
{
    static_assert(sizeof(GradientType) == 1);
    const GradientFill fill = makeFill({}, boost::none, static_cast<GradientType>(250));
    EXPECT_EQ(*fromJson<GradientFill>(toJson(fill)).getGradientType(), static_cast<GradientType>(250));
}

TEST(GradientFillTest, OrdersByStopsThenByAngleThenByType)
{
    expectAscending<GradientFill>({
        makeFill({}),
        makeFill({}, boost::none, GradientType::Linear),
        makeFill({}, boost::none, GradientType::Circle),
        makeFill({}, -5.0F),
        makeFill({}, 0.0F),
        makeFill({}, 0.0F, GradientType::Linear),
        makeFill({}, 45.0F),
        makeFill({0.0}),
        makeFill({0.0}, 1.0F),
        makeFill({0.0, -1.0}),
        makeFill({0.5}),
    });
}

TEST(GradientFillTest, ANanAngleEndsTheComparisonAsNotLess)
{
    const GradientFill nan = makeFill({}, NaN, GradientType::Linear);
    const GradientFill number = makeFill({}, 1.0F, GradientType::Circle);
    const GradientFill otherNan = makeFill({}, NaN, GradientType::Circle);
    EXPECT_FALSE(nan < number);
    EXPECT_FALSE(number < nan);
    EXPECT_FALSE(nan < otherNan) << "the type is not looked at";
    EXPECT_FALSE(otherNan < nan);
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(GradientFill() < nan) << "an absent angle is less than any that is present";
    EXPECT_TRUE(nan < makeFill({0.0}, NaN)) << "the stops come first";
}

TEST(GradientFillTest, ANanAngleIsLastInTheOrderOfPools)
{
    const GradientFill nan = makeFill({}, NaN, GradientType::Linear);
    EXPECT_TRUE(nan.compare(makeFill({}, 1.0F, GradientType::Circle), NanOrder::Last) > 0);
    EXPECT_TRUE(nan.compare(makeFill({}, NaN, GradientType::Circle), NanOrder::Last) < 0);
    EXPECT_TRUE(nan.compare(makeFill({}, -NaN, GradientType::Linear), NanOrder::Last) == 0);
}

TEST(GradientFillTest, ACopySharesNoStops)
{
    const GradientFill source = makeFill({0.0, 1.0}, 30.0F, GradientType::Shape);
    expectCopiesAndMoves(source);
    GradientFill copy(source);
    copy.getGradientStops().front().setPosition(0.25);
    EXPECT_EQ(source, makeFill({0.0, 1.0}, 30.0F, GradientType::Shape));
}

} // namespace QN::DOM::GradientFillTest
