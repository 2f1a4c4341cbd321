#include "DOM/Charts/DOM_Scatter3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::Scatter3DChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys = R"("_type":3,"_interpolation":{"hasValue":false})";

TEST(Scatter3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Scatter3DChart>("Scatter3DChart", CommonKeys, R"()");
}

} // namespace
} // namespace QN::DOM::Scatter3DChartTest
