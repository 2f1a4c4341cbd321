#include "DOM/Charts/DOM_ChartLines.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartLinesTest {
namespace {

using namespace Test;

TEST(ChartLines, HaveNoPaintByDefault)
{
    EXPECT_FALSE(ChartLines().getGraphicProps());
    expectText(ChartLines(), R"({"_graphicProps":{"hasValue":false}})");
    static_assert(!Ordered<ChartLines>);
}

TEST(ChartLines, KeepTheirPaint)
{
    ChartLines painted;
    painted.setGraphicProps(ChartGraphicProps());
    EXPECT_TRUE(painted.getGraphicProps() == ChartGraphicProps());
    EXPECT_NE(painted, ChartLines());
    expectText(painted, std::string(R"({"_graphicProps":)") + makePresentJson(EmptyPaintJson) + "}");
    expectCopiesAndMoves(painted);
    painted.setGraphicProps(boost::none);
    EXPECT_EQ(painted, ChartLines());
}

} // namespace
} // namespace QN::DOM::ChartLinesTest
