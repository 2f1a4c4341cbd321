#include "DOM/Charts/DOM_ScatterChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::ScatterChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys = R"("_type":3,"_interpolation":{"hasValue":false})";

TEST(ScatterChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<ScatterChart>("ScatterChart", CommonKeys, R"()");
}

} // namespace
} // namespace QN::DOM::ScatterChartTest
