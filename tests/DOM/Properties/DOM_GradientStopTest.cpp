#include "DOM/Properties/DOM_GradientStop.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::GradientStopTest {

using namespace Test;

namespace {

GradientStop makeStop(double position, Color color)
{
    GradientStop stop;
    stop.setPosition(position);
    stop.setColor(std::move(color));
    return stop;
}

} // namespace

TEST(GradientStopTest, IsAtTheStartInTheDefaultColorByDefault)
{
    EXPECT_EQ(GradientStop().getPosition(), 0.0);
    EXPECT_EQ(GradientStop().getColor(), Color());
    EXPECT_EQ(toJson(GradientStop()), R"({"_position":0.0,"_color":)" + std::string(DefaultColorJson) + "}");
}

TEST(GradientStopTest, TakesAnyPosition)
{
    for (const double position : {-1.0, 0.35, 2.0, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(makeStop(position, Color()).getPosition(), position);
    }
}

TEST(GradientStopTest, OrdersByPositionThenByColor)
{
    expectAscending<GradientStop>({makeStop(-1.0, makePlaceholder()), makeStop(0.0, Color()),
                                   makeStop(0.0, makePlaceholder()), makeStop(0.5, Color())});
}

TEST(GradientStopTest, Persists)
{
    expectPersists(GradientStop());
    expectPersists(makeStop(0.35, makePlaceholder({Tint(0.37), SaturationModulation(3.0)})));
}

TEST(GradientStopTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<GradientStop>);
    expectCopiesAndMoves(makeStop(0.35, makePlaceholder({Tint(0.37)})));
}

} // namespace QN::DOM::GradientStopTest
