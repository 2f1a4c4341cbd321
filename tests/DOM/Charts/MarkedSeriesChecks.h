#pragma once

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include <string>

#include "DOM/Charts/SeriesSamples.h"

/// What the kinds of series that have an interpolation and a marker go through in their tests.

namespace QN::Test {

template <class T>
void expectDefaultMarkedSeries(const std::string& name)
{
    EXPECT_EQ(T().getInterpolation(), boost::none);
    EXPECT_EQ(T().getMarker(), DOM::ChartMarker());
    expectDefaultSeries<T>(
        name, R"("_interpolation":{"hasValue":false},)"
              R"("_marker":{"_symbol":12,"_graphicProps":{"hasValue":false},"_size":{"hasValue":false}})");
}

template <class T>
void expectKeepsInterpolationAndMarker()
{
    T series;
    series.setInterpolation(false);
    DOM::ChartMarker marker;
    marker.setSymbol(DOM::ChartMarkerSymbol::None);
    series.setMarker(marker);
    EXPECT_EQ(series.getInterpolation(), false);
    EXPECT_EQ(series.getMarker(), marker);
    expectText(
        series,
        std::string(R"({"value0":)") + DefaultSeriesJson +
            R"(,"_interpolation":{"hasValue":true,"value":false},)"
            R"("_marker":{"_symbol":0,"_graphicProps":{"hasValue":false},"_size":{"hasValue":false}}})");
    expectEachChangeMatters(
        series, [](T& changed) { changed.setInterpolation(true); },
        [](T& changed) { changed.setMarker(DOM::ChartMarker()); });
}

} // namespace QN::Test
