#include "DOM/Charts/DOM_ScatterChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::ScatterChartCommonTest {
namespace {

using namespace Test;

template <class T>
void expectScatter()
{
    T chart;
    EXPECT_EQ(static_cast<int>(chart.getType()), 3);
    EXPECT_EQ(chart.getInterpolation(), boost::none);
    chart.setType(static_cast<ChartScatterType>(200));
    chart.setInterpolation(true);
    EXPECT_EQ(static_cast<int>(chart.getType()), 200);
    EXPECT_EQ(chart.getInterpolation(), true);
    expectText(chart, makeChartJson(R"("_type":200,"_interpolation":{"hasValue":true,"value":true})", ""));
    expectEachChangeMatters(
        chart, [](T& changed) { changed.setType(ChartScatterType::None); },
        [](T& changed) { changed.setInterpolation(boost::none); });
}

TEST(ScatterChartCommon, KeepsTypeAndInterpolationOfBothCharts)
{
    static_assert(std::is_abstract_v<ScatterChartCommon> && sizeof(ChartScatterType) == 1);
    expectScatter<ScatterChart>();
    expectScatter<Scatter3DChart>();
}

} // namespace
} // namespace QN::DOM::ScatterChartCommonTest
