#include "DOM/Charts/DOM_BarChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::BarChartCommonTest {
namespace {

using namespace Test;

template <class T>
void expectBars(const std::string& keys)
{
    T chart;
    EXPECT_EQ(chart.getDirection(), BarChartDirection{0});
    EXPECT_EQ(static_cast<int>(chart.getGrouping()), 2);
    EXPECT_EQ(chart.getGapWidth(), 150);
    chart.setDirection(static_cast<BarChartDirection>(200));
    chart.setGrouping(static_cast<BarChartGrouping>(0));
    chart.setGapWidth(65535);
    EXPECT_EQ(static_cast<int>(chart.getDirection()), 200);
    EXPECT_EQ(static_cast<int>(chart.getGrouping()), 0);
    EXPECT_EQ(chart.getGapWidth(), 65535);
    expectText(chart, makeChartJson(R"("_direction":200,"_grouping":0,"_gapWidth":65535)", keys));
    expectEachChangeMatters(
        chart, [](T& changed) { changed.setDirection(BarChartDirection{}); },
        [](T& changed) { changed.setGrouping(BarChartGrouping::Clustered); },
        [](T& changed) { changed.setGapWidth(0); });
}

TEST(BarChartCommon, KeepsDirectionGroupingAndGapWidth)
{
    static_assert(std::is_abstract_v<BarChartCommon>);
    static_assert(sizeof(BarChartDirection) == 1 && sizeof(BarChartGrouping) == 1);
    expectBars<BarChart>(R"("_overlap":0,"_seriesLines":[])");
    expectBars<Bar3DChart>(R"("_gapDepth":150,"_chartShape":{"hasValue":false})");
}

} // namespace
} // namespace QN::DOM::BarChartCommonTest
