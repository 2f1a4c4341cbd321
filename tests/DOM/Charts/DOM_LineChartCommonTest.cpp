#include "DOM/Charts/DOM_LineChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::LineChartCommonTest {
namespace {

using namespace Test;

TEST(LineChartCommon, KeepsGroupingAndDropLines)
{
    static_assert(std::is_abstract_v<LineChartCommon> && sizeof(ChartGrouping) == 1);
    LineChart chart;
    EXPECT_FALSE(chart.getGrouping());
    EXPECT_EQ(chart.getDropLines(), nullptr);
    chart.setGrouping(static_cast<ChartGrouping>(200));
    chart.setDropLines(std::make_unique<ChartLines>());
    EXPECT_EQ(static_cast<int>(*chart.getGrouping()), 200);
    EXPECT_EQ(*std::as_const(chart).getDropLines(), ChartLines());
    expectText(chart, makeChartJson(R"("_grouping":{"hasValue":true,"value":200},"_dropLines":)" +
                                        makePlainJson(R"({"_graphicProps":{"hasValue":false}})"),
                                    R"("_interpolation":{"hasValue":false})"));
    expectEachChangeMatters(
        chart, [](LineChart& changed) { changed.setGrouping(ChartGrouping::Standard); },
        [](LineChart& changed) { changed.setDropLines(nullptr); },
        [](LineChart& changed) { changed.getDropLines()->setGraphicProps(ChartGraphicProps()); });
    LineChart copy(chart);
    EXPECT_NE(copy.getDropLines(), chart.getDropLines());
}

} // namespace
} // namespace QN::DOM::LineChartCommonTest
