#include "DOM/Charts/DOM_Pie3DChart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::Pie3DChartTest {
namespace {

using namespace Test;

constexpr const char* CommonKeys = R"()";

TEST(Pie3DChart, HasTheDefaultsOfItsKind)
{
    expectDefaultChart<Pie3DChart>("Pie3DChart", CommonKeys, R"()");
}

} // namespace
} // namespace QN::DOM::Pie3DChartTest
