#include "DOM/Charts/DOM_LineChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/GroupedChartChecks.h"

namespace QN::DOM::LineChartCommonTest {

using namespace Test;

TEST(LineChartCommon, KeepsGroupingAndDropLines)
{
    expectKeepsGroupingAndDropLines<LineChartCommon, LineChart>(R"("_interpolation":{"hasValue":false})");
}

} // namespace QN::DOM::LineChartCommonTest
