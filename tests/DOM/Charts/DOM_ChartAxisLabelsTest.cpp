#include "DOM/Charts/DOM_ChartAxisLabels.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartAxisLabelsTest {
namespace {

using namespace Test;

TEST(ChartAxisLabels, KeepTheirPosition)
{
    static_assert(sizeof(ChartAxisLabelsPosition) == 1);
    static_assert(!Ordered<ChartAxisLabels>);
    ChartAxisLabels labels;
    EXPECT_EQ(labels.getPosition(), ChartAxisLabelsPosition{0});
    expectText(labels, R"({"_position":0})");
    labels.setPosition(static_cast<ChartAxisLabelsPosition>(200));
    EXPECT_EQ(static_cast<int>(labels.getPosition()), 200);
    EXPECT_NE(labels, ChartAxisLabels());
    expectText(labels, R"({"_position":200})");
    expectCopiesAndMoves(labels);
}

} // namespace
} // namespace QN::DOM::ChartAxisLabelsTest
