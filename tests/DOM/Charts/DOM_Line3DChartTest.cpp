#include "DOM/Charts/DOM_Line3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/GroupedChartChecks.h"

namespace QN::DOM::Line3DChartTest {

using namespace Test;

TEST(Line3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Line3DChart>("Line3DChart", DefaultGroupedChartKeys, R"("_gapDepth":150)");
}

TEST(Line3DChart, KeepsItsGapDepth)
{
    expectKeepsGapDepth<Line3DChart>();
}

} // namespace QN::DOM::Line3DChartTest
