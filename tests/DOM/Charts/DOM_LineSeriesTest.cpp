#include "DOM/Charts/DOM_LineSeries.h"

#include <gtest/gtest.h>

#include "DOM/Charts/MarkedSeriesChecks.h"

namespace QN::DOM::LineSeriesTest {

using namespace Test;

TEST(LineSeries, HasTheDefaultsOfASeries)
{
    expectDefaultMarkedSeries<LineSeries>("LineSeries");
}

TEST(LineSeries, KeepsInterpolationAndMarker)
{
    expectKeepsInterpolationAndMarker<LineSeries>();
}

} // namespace QN::DOM::LineSeriesTest
