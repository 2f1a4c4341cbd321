#include "DOM/Charts/DOM_LineSeries.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include "DOM/Charts/SeriesSamples.h"

namespace QN::DOM::LineSeriesTest {
namespace {

using namespace Test;

TEST(LineSeries, HasTheDefaultsOfASeries)
{
    EXPECT_EQ(LineSeries().getInterpolation(), boost::none);
    EXPECT_EQ(LineSeries().getMarker(), ChartMarker());
    expectDefaultSeries<LineSeries>(
        "LineSeries",
        R"("_interpolation":{"hasValue":false},)"
        R"("_marker":{"_symbol":12,"_graphicProps":{"hasValue":false},"_size":{"hasValue":false}})");
}

TEST(LineSeries, KeepsInterpolationAndMarker)
{
    LineSeries series;
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
        series, [](LineSeries& changed) { changed.setInterpolation(true); },
        [](LineSeries& changed) { changed.setMarker(ChartMarker()); });
}

} // namespace
} // namespace QN::DOM::LineSeriesTest
