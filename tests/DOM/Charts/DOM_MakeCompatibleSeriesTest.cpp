#include "DOM/Charts/DOM_MakeCompatibleSeries.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::MakeCompatibleSeriesTest {
namespace {

using namespace Test;

template <class ChartClass, class SeriesClass>
void expectSeries()
{
    const std::unique_ptr<Series> series = makeCompatibleSeries(ChartClass());
    ASSERT_NE(series, nullptr);
    EXPECT_TRUE(areDeeplyEqual(*series, SeriesClass())) << typeid(ChartClass).name();
}

TEST(MakeCompatibleSeries, GivesADefaultSeriesOfTheClassThatSuitsTheChart)
{
    expectSeries<AreaChart, AreaSeries>();
    expectSeries<Area3DChart, AreaSeries>();
    expectSeries<BarChart, BarSeries>();
    expectSeries<Bar3DChart, BarSeries>();
    expectSeries<LineChart, LineSeries>();
    expectSeries<Line3DChart, LineSeries>();
    expectSeries<PieChart, PieSeries>();
    expectSeries<Pie3DChart, PieSeries>();
    expectSeries<ScatterChart, ScatterSeries>();
    expectSeries<Scatter3DChart, ScatterSeries>();
}

TEST(MakeCompatibleSeriesDeathTest, AVisitWithoutAResultFailsTheContract)
{
    const PieChart pie;
    const Chart& chart = pie;
    EXPECT_DEATH(visit<int>(chart, [](const AreaChart&) { return 1; }), "Utils/Public/Visitor:194: result");
}

} // namespace
} // namespace QN::DOM::MakeCompatibleSeriesTest
