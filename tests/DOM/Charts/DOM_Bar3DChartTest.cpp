#include "DOM/Charts/DOM_Bar3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::Bar3DChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys = R"("_direction":0,"_grouping":2,"_gapWidth":150)";

TEST(Bar3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Bar3DChart>("Bar3DChart", CommonKeys,
                                   R"("_gapDepth":150,"_chartShape":{"hasValue":false})");
}

TEST(Bar3DChart, KeepsGapDepthAndShape)
{
    static_assert(sizeof(ChartShape) == 1);
    Bar3DChart chart;
    EXPECT_EQ(chart.getGapDepth(), 150);
    EXPECT_FALSE(chart.getChartShape());
    chart.setGapDepth(0);
    chart.setChartShape(static_cast<ChartShape>(200));
    EXPECT_EQ(chart.getGapDepth(), 0);
    EXPECT_EQ(static_cast<int>(*chart.getChartShape()), 200);
    expectText(chart,
               makeChartJson(CommonKeys, R"("_gapDepth":0,"_chartShape":{"hasValue":true,"value":200})"));
    expectEachChangeMatters(
        chart, [](Bar3DChart& changed) { changed.setGapDepth(1); },
        [](Bar3DChart& changed) { changed.setChartShape(boost::none); });
}

} // namespace
} // namespace QN::DOM::Bar3DChartTest
