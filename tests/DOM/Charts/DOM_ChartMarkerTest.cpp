#include "DOM/Charts/DOM_ChartMarker.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartMarkerTest {
namespace {

using namespace Test;

TEST(ChartMarker, IsSymbolTwelveWithoutASizeByDefault)
{
    static_assert(sizeof(ChartMarkerSymbol) == 1);
    static_assert(!Ordered<ChartMarker>);
    const ChartMarker marker;
    EXPECT_EQ(static_cast<int>(marker.getSymbol()), 12);
    EXPECT_FALSE(marker.getGraphicProps());
    EXPECT_EQ(marker.getSize(), boost::none);
    expectText(marker, R"({"_symbol":12,"_graphicProps":{"hasValue":false},"_size":{"hasValue":false}})");
}

TEST(ChartMarker, KeepsEveryMember)
{
    ChartMarker marker;
    marker.setSymbol(static_cast<ChartMarkerSymbol>(255));
    marker.setGraphicProps(ChartGraphicProps());
    marker.setSize(7.5F);
    EXPECT_EQ(static_cast<int>(marker.getSymbol()), 255);
    EXPECT_TRUE(marker.getGraphicProps());
    EXPECT_EQ(marker.getSize(), 7.5F);
    expectText(marker, R"({"_symbol":255,"_graphicProps":)" + makePresentJson(EmptyPaintJson) +
                           R"(,"_size":{"hasValue":true,"value":7.5}})");
    expectEachChangeMatters(
        marker, [](ChartMarker& changed) { changed.setSymbol(ChartMarkerSymbol::None); },
        [](ChartMarker& changed) { changed.setGraphicProps(makePaint()); },
        [](ChartMarker& changed) { changed.setSize(boost::none); });
}

} // namespace
} // namespace QN::DOM::ChartMarkerTest
