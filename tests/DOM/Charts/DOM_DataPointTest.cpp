#include "DOM/Charts/DOM_DataPoint.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::DataPointTest {
namespace {

using namespace Test;

TEST(DataPoint, StandsForTheFirstPointByDefault)
{
    static_assert(!Ordered<DataPoint>);
    const DataPoint point;
    EXPECT_EQ(point.getIdx(), 0U);
    EXPECT_FALSE(point.getGraphicProps());
    expectText(point, R"({"_idx":0,"_graphicProps":{"hasValue":false}})");
}

TEST(DataPoint, KeepsEveryMember)
{
    DataPoint point;
    point.setIdx(4000000000U);
    point.setGraphicProps(ChartGraphicProps());
    EXPECT_EQ(point.getIdx(), 4000000000U);
    EXPECT_TRUE(point.getGraphicProps());
    expectText(point, R"({"_idx":4000000000,"_graphicProps":)" + makePresentJson(EmptyPaintJson) + "}");
    expectEachChangeMatters(
        point, [](DataPoint& changed) { changed.setIdx(1); },
        [](DataPoint& changed) { changed.setGraphicProps(boost::none); });
}

} // namespace
} // namespace QN::DOM::DataPointTest
