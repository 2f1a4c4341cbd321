#include "DOM/Charts/DOM_ChartSpace.h"

#include <gtest/gtest.h>

#include "DOM/Charts/AxisSamples.h"
#include "DOM/Charts/KindSamples.h"
#include "DOM/Charts/NestedSamples.h"
#include "DOM/Shapes/DOM_Picture.h"
#include "Support/SmallStack.h"

namespace QN::DOM::ChartSpaceTest {
namespace {

using namespace Test;

constexpr const char* DefaultKeys =
    R"({"value0":{},"_autoTitleDeleted":false,"_title":{"ptr_wrapper":{"valid":0}},)"
    R"("_legend":{"ptr_wrapper":{"valid":0}},"_plotArea":{"_charts":[],"_layout":{"hasValue":false},)"
    R"("_wall":{"hasValue":false},"_graphicProps":{"hasValue":false},"_axes":[]},)"
    R"("_graphicProps":{"hasValue":false},"_extent":{"_width":0.0,"_height":0.0},)"
    R"("_transform3DProps":{"ptr_wrapper":{"valid":0}},"_runProps":{"ptr_wrapper":{"id":0}}})";

ChartSpace makeChartSpace()
{
    ChartSpace space;
    space.setAutoTitleDeleted(true);
    space.setTitle(std::make_unique<ChartTitle>());
    space.setLegend(std::make_unique<ChartLegend>());
    space.getPlotArea().getCharts().push_back(std::make_unique<BarChart>(makeChart<BarChart, BarSeries>()));
    space.getPlotArea().getAxes().push_back(std::make_unique<ValueAxis>());
    space.setGraphicProps(makePaint());
    space.setExtent(Size2D<float>(1.5F, 2.5F));
    space.setTransform3DProps(std::make_unique<Transform3DProps>());
    space.setRunProps(makeRunProps(true));
    return space;
}

TEST(ChartSpace, IsEmptyByDefault)
{
    const ChartSpace space;
    EXPECT_FALSE(space.getAutoTitleDeleted());
    EXPECT_EQ(space.getTitle(), nullptr);
    EXPECT_EQ(space.getLegend(), nullptr);
    EXPECT_EQ(space.getPlotArea(), PlotArea());
    EXPECT_FALSE(space.getGraphicProps());
    EXPECT_EQ(space.getExtent(), Size2D<float>(0.0F, 0.0F));
    EXPECT_EQ(space.getTransform3DProps(), nullptr);
    EXPECT_EQ(space.getRunProps(), nullptr);
    expectInFamily<GraphicalObject>(space, "QN::DOM::ChartSpace", DefaultKeys);
}

TEST(ChartSpace, KeepsEveryMember)
{
    const ChartSpace space = makeChartSpace();
    EXPECT_TRUE(space.getAutoTitleDeleted());
    EXPECT_EQ(*space.getTitle(), ChartTitle());
    EXPECT_EQ(*space.getLegend(), ChartLegend());
    EXPECT_EQ(space.getPlotArea().getCharts().size(), 1U);
    EXPECT_TRUE(space.getGraphicProps() == makePaint());
    EXPECT_EQ(space.getExtent(), Size2D<float>(1.5F, 2.5F));
    EXPECT_EQ(*space.getTransform3DProps(), Transform3DProps());
    EXPECT_TRUE(*space.getRunProps() == *makeRunProps(true));
    expectPersists(space);
    expectCopiesAndMoves(space);
}

TEST(ChartSpace, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectSharesRunProps(ChartSpace());
    expectEachChangeMatters(
        makeChartSpace(), [](ChartSpace& space) { space.setAutoTitleDeleted(false); },
        [](ChartSpace& space) { space.getTitle()->setX(0.0F); },
        [](ChartSpace& space) { space.setTitle(nullptr); },
        [](ChartSpace& space) { space.getLegend()->setOverlay(true); },
        [](ChartSpace& space) { space.setLegend(nullptr); },
        [](ChartSpace& space) { space.getPlotArea().getCharts()[0]->setVaryColors(false); },
        [](ChartSpace& space) { space.getPlotArea().getAxes().clear(); },
        [](ChartSpace& space) { space.setGraphicProps(boost::none); },
        [](ChartSpace& space) { space.setExtent(Size2D<float>(1.5F, 2.0F)); },
        [](ChartSpace& space) { space.getTransform3DProps()->setRotationX(1); },
        [](ChartSpace& space) { space.setTransform3DProps(nullptr); },
        [](ChartSpace& space) { space.setRunProps(nullptr); });
}

TEST(ChartSpace, IsUnequalToAPicture)
{
    EXPECT_FALSE(areDeeplyEqual(static_cast<const GraphicalObject&>(ChartSpace()), Picture()));
}

TEST(ChartSpace, AChangedCopyLeavesItsSourceAsItWasAndKeepsItsIdentity)
{
    const ChartSpace source = makeChartSpace();
    const std::string json = toJson(source);
    ChartSpace copy(source);
    EXPECT_NE(copy.getTitle(), source.getTitle());
    EXPECT_NE(copy.getLegend(), source.getLegend());
    EXPECT_NE(copy.getTransform3DProps(), source.getTransform3DProps());
    EXPECT_NE(copy.getPlotArea().getCharts()[0].get(), &source.getPlotArea().getCharts()[0]);
    EXPECT_EQ(copy.getID(), source.getID());
    copy.getTitle()->setX(1.0F);
    copy.getLegend()->setOverlay(true);
    copy.getTransform3DProps()->setRotationX(1);
    copy.getPlotArea().getCharts()[0]->getLiveSeries().clear();
    copy.getPlotArea().getAxes().clear();
    copy.setRunProps(nullptr);
    EXPECT_EQ(toJson(source), json);
}

TEST(ChartSpace, NestedInItsOwnTextsToTheLimitOfAFileIsDestroyedOnASmallStack)
{
    for (const auto putInto : {&putIntoTitle, &putIntoLabel}) {
        std::string json;
        int depth = 0;
        try {
            for (std::unique_ptr<ChartSpace> space = std::make_unique<ChartSpace>();; ++depth) {
                json = toJson(*space);
                space = putInto(std::move(space));
            }
        } catch (const cereal::Exception&) {
            EXPECT_GT(depth, 50);
        }
        auto loaded = std::make_unique<ChartSpace>(fromJson<ChartSpace>(json));
        runOnSmallStack([&loaded] { loaded.reset(); });
        EXPECT_EQ(loaded, nullptr);
    }
}

} // namespace
} // namespace QN::DOM::ChartSpaceTest
