#include "DOM/Charts/DOM_PieChartCommon.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::PieChartCommonTest {
namespace {

using namespace Test;

TEST(PieChartCommon, AddsNothingToAChart)
{
    static_assert(std::is_abstract_v<PieChartCommon>);
    expectText(Pie3DChart(), std::string(R"({"value0":{"value0":)") + DefaultChartJson + "}}");
}

} // namespace
} // namespace QN::DOM::PieChartCommonTest
