#include "DOM/Charts/DOM_LineChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::LineChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys =
    R"("_grouping":{"hasValue":false},"_dropLines":{"ptr_wrapper":{"valid":0}})";

TEST(LineChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<LineChart>("LineChart", CommonKeys, R"("_interpolation":{"hasValue":false})");
}

TEST(LineChart, KeepsItsInterpolation)
{
    LineChart chart;
    EXPECT_EQ(chart.getInterpolation(), boost::none);
    chart.setInterpolation(false);
    EXPECT_EQ(chart.getInterpolation(), false);
    EXPECT_NE(chart, LineChart());
    expectText(chart, makeChartJson(CommonKeys, R"("_interpolation":{"hasValue":true,"value":false})"));
    expectCopiesAndMoves(chart);
}

} // namespace
} // namespace QN::DOM::LineChartTest
