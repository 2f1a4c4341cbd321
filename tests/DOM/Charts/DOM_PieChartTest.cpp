#include "DOM/Charts/DOM_PieChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::PieChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys = R"()";

TEST(PieChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<PieChart>("PieChart", CommonKeys, R"("_firstSliceAng":{"hasValue":false})");
}

TEST(PieChart, KeepsTheAngleOfItsFirstSlice)
{
    PieChart chart;
    EXPECT_EQ(chart.getFirstSliceAngle(), boost::none);
    chart.setFirstSliceAngle(-30.5);
    EXPECT_EQ(chart.getFirstSliceAngle(), -30.5);
    EXPECT_NE(chart, PieChart());
    expectText(chart, makeChartJson(CommonKeys, R"("_firstSliceAng":{"hasValue":true,"value":-30.5})"));
    expectCopiesAndMoves(chart);
}

} // namespace
} // namespace QN::DOM::PieChartTest
