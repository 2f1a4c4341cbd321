#include "DOM/Charts/DOM_SeriesAxis.h"

#include <gtest/gtest.h>

#include "DOM/Charts/AxisSamples.h"

namespace QN::DOM::SeriesAxisTest {
namespace {

using namespace Test;

TEST(SeriesAxis, AddsNothingToAnAxis)
{
    expectDefaultAxis<SeriesAxis>("SeriesAxis", "");
}

} // namespace
} // namespace QN::DOM::SeriesAxisTest
