#include "DOM/Charts/DOM_AreaChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::AreaChartCommonTest {
namespace {

using namespace Test;

TEST(AreaChartCommon, KeepsGroupingAndDropLines)
{
    static_assert(std::is_abstract_v<AreaChartCommon> && sizeof(ChartGrouping) == 1);
    AreaChart chart;
    EXPECT_FALSE(chart.getGrouping());
    EXPECT_EQ(chart.getDropLines(), nullptr);
    chart.setGrouping(static_cast<ChartGrouping>(200));
    chart.setDropLines(std::make_unique<ChartLines>());
    EXPECT_EQ(static_cast<int>(*chart.getGrouping()), 200);
    EXPECT_EQ(*std::as_const(chart).getDropLines(), ChartLines());
    expectText(chart, makeChartJson(R"("_grouping":{"hasValue":true,"value":200},"_dropLines":)" +
                                        makePlainJson(R"({"_graphicProps":{"hasValue":false}})"),
                                    ""));
    expectEachChangeMatters(
        chart, [](AreaChart& changed) { changed.setGrouping(ChartGrouping::Standard); },
        [](AreaChart& changed) { changed.setDropLines(nullptr); },
        [](AreaChart& changed) { changed.getDropLines()->setGraphicProps(ChartGraphicProps()); });
    AreaChart copy(chart);
    EXPECT_NE(copy.getDropLines(), chart.getDropLines());
}

} // namespace
} // namespace QN::DOM::AreaChartCommonTest
