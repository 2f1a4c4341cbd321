#include "DOM/Charts/DOM_BarSeries.h"

#include <gtest/gtest.h>

#include "DOM/Charts/SeriesSamples.h"

namespace QN::DOM::BarSeriesTest {
namespace {

using namespace Test;

TEST(BarSeries, HasTheDefaultsOfASeries)
{
    EXPECT_FALSE(BarSeries().getInvertIfNegative());
    expectDefaultSeries<BarSeries>("BarSeries", R"("_invertIfNegative":{"value":-1})");
}

TEST(BarSeries, InversionSetToFalseIsSet)
{
    BarSeries series;
    series.setInvertIfNegative(false);
    EXPECT_TRUE(series.getInvertIfNegative());
    EXPECT_FALSE(*series.getInvertIfNegative());
    EXPECT_NE(series, BarSeries());
    expectText(series,
               std::string(R"({"value0":)") + DefaultSeriesJson + R"(,"_invertIfNegative":{"value":0}})");
    BarSeries inverted;
    inverted.setInvertIfNegative(true);
    EXPECT_EQ(inverted.getInvertIfNegative(), BoolOpt(true));
    EXPECT_NE(inverted, series);
    expectText(inverted,
               std::string(R"({"value0":)") + DefaultSeriesJson + R"(,"_invertIfNegative":{"value":1}})");
}

} // namespace
} // namespace QN::DOM::BarSeriesTest
