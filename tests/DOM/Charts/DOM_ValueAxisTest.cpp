#include "DOM/Charts/DOM_ValueAxis.h"

#include <gtest/gtest.h>

#include "DOM/Charts/AxisSamples.h"

namespace QN::DOM::ValueAxisTest {
namespace {

using namespace Test;

TEST(ValueAxis, HasNoUnitsByDefault)
{
    EXPECT_EQ(ValueAxis().getMajorUnit(), boost::none);
    EXPECT_EQ(ValueAxis().getMinorUnit(), boost::none);
    expectDefaultAxis<ValueAxis>("ValueAxis",
                                 R"(,"_majorUnit":{"hasValue":false},"_minorUnit":{"hasValue":false})");
}

TEST(ValueAxis, KeepsItsUnits)
{
    ValueAxis axis;
    axis.setMajorUnit(10.5);
    axis.setMinorUnit(-2.5);
    EXPECT_EQ(axis.getMajorUnit(), 10.5);
    EXPECT_EQ(axis.getMinorUnit(), -2.5);
    expectText(
        axis,
        R"({"value0":)" + makeAxisBaseJson() +
            R"(,"_majorUnit":{"hasValue":true,"value":10.5},"_minorUnit":{"hasValue":true,"value":-2.5}})");
    expectEachChangeMatters(
        axis, [](ValueAxis& changed) { changed.setMajorUnit(boost::none); },
        [](ValueAxis& changed) { changed.setMinorUnit(boost::none); });
}

} // namespace
} // namespace QN::DOM::ValueAxisTest
