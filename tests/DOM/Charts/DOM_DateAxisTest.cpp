#include "DOM/Charts/DOM_DateAxis.h"

#include <gtest/gtest.h>

#include "DOM/Charts/AxisSamples.h"

namespace QN::DOM::DateAxisTest {
namespace {

using namespace Test;

TEST(DateAxis, HasNoUnitsByDefault)
{
    static_assert(sizeof(ChartTimeUnit) == 1);
    const DateAxis axis;
    EXPECT_EQ(axis.getMajorUnit(), boost::none);
    EXPECT_EQ(axis.getMinorUnit(), boost::none);
    EXPECT_FALSE(axis.getBaseTimeUnit());
    EXPECT_FALSE(axis.getMajorTimeUnit());
    EXPECT_FALSE(axis.getMinorTimeUnit());
    expectDefaultAxis<DateAxis>("DateAxis",
                                R"(,"_majorUnit":{"hasValue":false},"_minorUnit":{"hasValue":false},)"
                                R"("_baseTimeUnit":{"hasValue":false},"_majorTimeUnit":{"hasValue":false},)"
                                R"("_minorTimeUnit":{"hasValue":false})");
}

TEST(DateAxis, KeepsItsUnits)
{
    DateAxis axis;
    axis.setMajorUnit(10.5);
    axis.setMinorUnit(-2.5);
    axis.setBaseTimeUnit(static_cast<ChartTimeUnit>(0));
    axis.setMajorTimeUnit(static_cast<ChartTimeUnit>(200));
    axis.setMinorTimeUnit(static_cast<ChartTimeUnit>(1));
    EXPECT_EQ(axis.getMajorUnit(), 10.5);
    EXPECT_EQ(axis.getMinorUnit(), -2.5);
    EXPECT_EQ(static_cast<int>(*axis.getBaseTimeUnit()), 0);
    EXPECT_EQ(static_cast<int>(*axis.getMajorTimeUnit()), 200);
    EXPECT_EQ(static_cast<int>(*axis.getMinorTimeUnit()), 1);
    expectText(
        axis,
        R"({"value0":)" + makeAxisBaseJson() +
            R"(,"_majorUnit":{"hasValue":true,"value":10.5},"_minorUnit":{"hasValue":true,"value":-2.5},)"
            R"("_baseTimeUnit":{"hasValue":true,"value":0},"_majorTimeUnit":{"hasValue":true,"value":200},)"
            R"("_minorTimeUnit":{"hasValue":true,"value":1}})");
    expectEachChangeMatters(
        axis, [](DateAxis& changed) { changed.setMajorUnit(boost::none); },
        [](DateAxis& changed) { changed.setMinorUnit(boost::none); },
        [](DateAxis& changed) { changed.setBaseTimeUnit(boost::none); },
        [](DateAxis& changed) { changed.setMajorTimeUnit(boost::none); },
        [](DateAxis& changed) { changed.setMinorTimeUnit(boost::none); });
}

} // namespace
} // namespace QN::DOM::DateAxisTest
