#include "DOM/Charts/DOM_ScatterSeries.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include "DOM/Charts/SeriesSamples.h"

namespace QN::DOM::ScatterSeriesTest {
namespace {

using namespace Test;

TEST(ScatterSeries, HasTheDefaultsOfASeries)
{
    EXPECT_EQ(ScatterSeries().getInterpolation(), boost::none);
    EXPECT_EQ(ScatterSeries().getMarker(), ChartMarker());
    expectDefaultSeries<ScatterSeries>(
        "ScatterSeries",
        R"("_interpolation":{"hasValue":false},)"
        R"("_marker":{"_symbol":12,"_graphicProps":{"hasValue":false},"_size":{"hasValue":false}})");
}

TEST(ScatterSeries, KeepsInterpolationAndMarker)
{
    ScatterSeries series;
    series.setInterpolation(false);
    ChartMarker marker;
    marker.setSymbol(ChartMarkerSymbol::None);
    series.setMarker(marker);
    EXPECT_EQ(series.getInterpolation(), false);
    EXPECT_EQ(series.getMarker(), marker);
    expectText(
        series,
        std::string(R"({"value0":)") + DefaultSeriesJson +
            R"(,"_interpolation":{"hasValue":true,"value":false},)"
            R"("_marker":{"_symbol":0,"_graphicProps":{"hasValue":false},"_size":{"hasValue":false}}})");
    expectEachChangeMatters(
        series, [](ScatterSeries& changed) { changed.setInterpolation(true); },
        [](ScatterSeries& changed) { changed.setMarker(ChartMarker()); });
}

} // namespace
} // namespace QN::DOM::ScatterSeriesTest
