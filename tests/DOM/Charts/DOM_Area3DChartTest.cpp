#include "DOM/Charts/DOM_Area3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/GroupedChartChecks.h"

namespace QN::DOM::Area3DChartTest {

using namespace Test;

TEST(Area3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Area3DChart>("Area3DChart", DefaultGroupedChartKeys, R"("_gapDepth":150)");
}

TEST(Area3DChart, KeepsItsGapDepth)
{
    expectKeepsGapDepth<Area3DChart>();
}

} // namespace QN::DOM::Area3DChartTest
