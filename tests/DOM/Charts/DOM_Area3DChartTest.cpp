#include "DOM/Charts/DOM_Area3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::Area3DChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys =
    R"("_grouping":{"hasValue":false},"_dropLines":{"ptr_wrapper":{"valid":0}})";

TEST(Area3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Area3DChart>("Area3DChart", CommonKeys, R"("_gapDepth":150)");
}

TEST(Area3DChart, KeepsItsGapDepth)
{
    Area3DChart chart;
    EXPECT_EQ(chart.getGapDepth(), 150);
    chart.setGapDepth(65535);
    EXPECT_EQ(chart.getGapDepth(), 65535);
    EXPECT_NE(chart, Area3DChart());
    expectText(chart, makeChartJson(CommonKeys, R"("_gapDepth":65535)"));
    expectCopiesAndMoves(chart);
}

} // namespace
} // namespace QN::DOM::Area3DChartTest
