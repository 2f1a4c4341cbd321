#include "DOM/Charts/DOM_PieSeries.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include "DOM/Charts/SeriesSamples.h"

namespace QN::DOM::PieSeriesTest {
namespace {

using namespace Test;

TEST(PieSeries, HasTheDefaultsOfASeries)
{
    EXPECT_EQ(PieSeries().getExplosion(), boost::none);
    expectDefaultSeries<PieSeries>("PieSeries", R"("_explosion":{"hasValue":false})");
}

TEST(PieSeries, KeepsItsExplosion)
{
    PieSeries series;
    series.setExplosion(4000000000U);
    EXPECT_EQ(series.getExplosion(), 4000000000U);
    EXPECT_NE(series, PieSeries());
    expectText(series, std::string(R"({"value0":)") + DefaultSeriesJson +
                           R"(,"_explosion":{"hasValue":true,"value":4000000000}})");
    expectCopiesAndMoves(series);
}

} // namespace
} // namespace QN::DOM::PieSeriesTest
