#include "DOM/Charts/DOM_BarChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::BarChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys = R"("_direction":0,"_grouping":2,"_gapWidth":150)";

TEST(BarChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<BarChart>("BarChart", CommonKeys, R"("_overlap":0,"_seriesLines":[])");
}

TEST(BarChart, KeepsOverlapAndSeriesLines)
{
    BarChart chart;
    EXPECT_EQ(chart.getOverlap(), 0);
    EXPECT_TRUE(chart.getSeriesLines().empty());
    chart.setOverlap(-100);
    chart.getSeriesLines().push_back(std::make_unique<ChartLines>());
    chart.getSeriesLines().push_back(nullptr);
    EXPECT_EQ(chart.getOverlap(), -100);
    EXPECT_FALSE(std::as_const(chart).getSeriesLines()[0].getGraphicProps());
    expectText(chart, makeChartJson(CommonKeys, R"("_overlap":-100,"_seriesLines":[)" +
                                                    makePlainJson(R"({"_graphicProps":{"hasValue":false}})") +
                                                    "," + NullPlainJson + "]"));
    expectEachChangeMatters(
        chart, [](BarChart& changed) { changed.setOverlap(127); },
        [](BarChart& changed) { changed.getSeriesLines().pop_back(); },
        [](BarChart& changed) { changed.getSeriesLines()[0]->setGraphicProps(ChartGraphicProps()); });

    BarChart copy(chart);
    EXPECT_NE(copy.getSeriesLines()[0].get(), chart.getSeriesLines()[0].get());
}

TEST(BarChart, RefusesAnOverlapBeyondOneByte)
{
    const std::string text = makeChartJson(CommonKeys, R"("_overlap":-129,"_seriesLines":[])");
    EXPECT_NE(typeError<BarChart>(text), "<loaded>");
    EXPECT_THROW(fromText<BarChart>(text), cereal::RapidJSONException);
}

} // namespace
} // namespace QN::DOM::BarChartTest
