#include "DOM/Charts/DOM_AreaChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/GroupedChartChecks.h"

namespace QN::DOM::AreaChartCommonTest {

using namespace Test;

TEST(AreaChartCommon, KeepsGroupingAndDropLines)
{
    expectKeepsGroupingAndDropLines<AreaChartCommon, AreaChart>("");
}

} // namespace QN::DOM::AreaChartCommonTest
