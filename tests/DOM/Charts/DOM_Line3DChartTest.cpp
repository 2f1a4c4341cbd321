#include "DOM/Charts/DOM_Line3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::Line3DChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys =
    R"("_grouping":{"hasValue":false},"_dropLines":{"ptr_wrapper":{"valid":0}})";

TEST(Line3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Line3DChart>("Line3DChart", CommonKeys, R"("_gapDepth":150)");
}

TEST(Line3DChart, KeepsItsGapDepth)
{
    Line3DChart chart;
    EXPECT_EQ(chart.getGapDepth(), 150);
    chart.setGapDepth(65535);
    EXPECT_EQ(chart.getGapDepth(), 65535);
    EXPECT_NE(chart, Line3DChart());
    expectText(chart, makeChartJson(CommonKeys, R"("_gapDepth":65535)"));
    expectCopiesAndMoves(chart);
}

} // namespace
} // namespace QN::DOM::Line3DChartTest
