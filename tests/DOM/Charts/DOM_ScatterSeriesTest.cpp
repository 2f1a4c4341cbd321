#include "DOM/Charts/DOM_ScatterSeries.h"

#include <gtest/gtest.h>

#include "DOM/Charts/MarkedSeriesChecks.h"

namespace QN::DOM::ScatterSeriesTest {

using namespace Test;

TEST(ScatterSeries, HasTheDefaultsOfASeries)
{
    expectDefaultMarkedSeries<ScatterSeries>("ScatterSeries");
}

TEST(ScatterSeries, KeepsInterpolationAndMarker)
{
    expectKeepsInterpolationAndMarker<ScatterSeries>();
}

} // namespace QN::DOM::ScatterSeriesTest
