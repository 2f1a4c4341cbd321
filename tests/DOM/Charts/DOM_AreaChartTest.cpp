#include "DOM/Charts/DOM_AreaChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::AreaChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys =
    R"("_grouping":{"hasValue":false},"_dropLines":{"ptr_wrapper":{"valid":0}})";

TEST(AreaChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<AreaChart>("AreaChart", CommonKeys, R"()");
}

} // namespace
} // namespace QN::DOM::AreaChartTest
