#include "DOM/Charts/DOM_CategoryAxis.h"

#include <gtest/gtest.h>

#include "DOM/Charts/AxisSamples.h"

namespace QN::DOM::CategoryAxisTest {
namespace {

using namespace Test;

TEST(CategoryAxis, AddsNothingToAnAxis)
{
    expectDefaultAxis<CategoryAxis>("CategoryAxis", "");
}

} // namespace
} // namespace QN::DOM::CategoryAxisTest
