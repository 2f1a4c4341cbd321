#include "DOM/Charts/DOM_ChartSurface.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartSurfaceTest {
namespace {

using namespace Test;

TEST(ChartSurface, HasNoPaintByDefault)
{
    EXPECT_FALSE(ChartSurface().getGraphicProps());
    expectText(ChartSurface(), R"({"_graphicProps":{"hasValue":false}})");
    static_assert(!Ordered<ChartSurface>);
}

TEST(ChartSurface, KeepsItsPaint)
{
    ChartSurface painted;
    painted.setGraphicProps(ChartGraphicProps());
    EXPECT_TRUE(painted.getGraphicProps() == ChartGraphicProps());
    EXPECT_NE(painted, ChartSurface());
    expectText(painted, std::string(R"({"_graphicProps":)") + makePresentJson(EmptyPaintJson) + "}");
    expectCopiesAndMoves(painted);
    painted.setGraphicProps(boost::none);
    EXPECT_EQ(painted, ChartSurface());
}

} // namespace
} // namespace QN::DOM::ChartSurfaceTest
