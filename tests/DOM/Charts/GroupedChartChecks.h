#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "DOM/Charts/KindSamples.h"

/// What area and line charts, which both have a grouping and drop lines, go through in their tests.

namespace QN::Test {

inline constexpr const char* DefaultGroupedChartKeys =
    R"("_grouping":{"hasValue":false},"_dropLines":{"ptr_wrapper":{"valid":0}})";

/// `Common` is the base of `T`, which adds `keys` of its own.
template <class Common, class T>
void expectKeepsGroupingAndDropLines(const std::string& keys)
{
    using DOM::ChartGrouping;
    using DOM::ChartLines;
    static_assert(std::is_abstract_v<Common> && std::is_base_of_v<Common, T> && sizeof(ChartGrouping) == 1);
    T chart;
    EXPECT_FALSE(chart.getGrouping());
    EXPECT_EQ(chart.getDropLines(), nullptr);
    chart.setGrouping(static_cast<ChartGrouping>(200));
    chart.setDropLines(std::make_unique<ChartLines>());
    EXPECT_EQ(static_cast<int>(*chart.getGrouping()), 200);
    EXPECT_EQ(*std::as_const(chart).getDropLines(), ChartLines());
    expectText(chart, makeChartJson(R"("_grouping":{"hasValue":true,"value":200},"_dropLines":)" +
                                        makePlainJson(R"({"_graphicProps":{"hasValue":false}})"),
                                    keys));
    expectEachChangeMatters(
        chart, [](T& changed) { changed.setGrouping(ChartGrouping::Standard); },
        [](T& changed) { changed.setDropLines(nullptr); },
        [](T& changed) { changed.getDropLines()->setGraphicProps(DOM::ChartGraphicProps()); });
    T copy(chart);
    EXPECT_NE(copy.getDropLines(), chart.getDropLines());
}

template <class T>
void expectKeepsGapDepth()
{
    T chart;
    EXPECT_EQ(chart.getGapDepth(), 150);
    chart.setGapDepth(65535);
    EXPECT_EQ(chart.getGapDepth(), 65535);
    EXPECT_NE(chart, T());
    expectText(chart, makeChartJson(DefaultGroupedChartKeys, R"("_gapDepth":65535)"));
    expectCopiesAndMoves(chart);
}

} // namespace QN::Test
