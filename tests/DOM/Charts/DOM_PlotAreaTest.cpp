#include "DOM/Charts/DOM_PlotArea.h"

#include <gtest/gtest.h>

#include "DOM/Charts/AxisSamples.h"
#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::PlotAreaTest {
namespace {

using namespace Test;

PlotArea makePlotArea()
{
    PlotArea area;
    area.getCharts().push_back(std::make_unique<BarChart>());
    area.getCharts().push_back(std::make_unique<LineChart>());
    area.getAxes().push_back(std::make_unique<CategoryAxis>());
    area.getAxes().push_back(std::make_unique<ValueAxis>());
    area.getAxes().push_back(std::make_unique<ValueAxis>());
    return area;
}

TEST(PlotArea, IsEmptyByDefault)
{
    static_assert(!std::is_polymorphic_v<PlotArea>);
    static_assert(!Ordered<PlotArea>);
    const PlotArea area;
    EXPECT_TRUE(area.getCharts().empty());
    EXPECT_FALSE(area.getLayout());
    EXPECT_FALSE(area.getWall());
    EXPECT_FALSE(area.getGraphicProps());
    EXPECT_TRUE(area.getAxes().empty());
    expectText(area, R"({"_charts":[],"_layout":{"hasValue":false},"_wall":{"hasValue":false},)"
                     R"("_graphicProps":{"hasValue":false},"_axes":[]})");
}

TEST(PlotArea, HoldsChartsOfSeveralKindsAndTheirAxes)
{
    PlotArea area;
    area.getCharts().push_back(std::make_unique<Pie3DChart>());
    area.getCharts().push_back(nullptr);
    area.setWall(ChartSurface());
    area.setGraphicProps(ChartGraphicProps());
    area.getAxes().push_back(std::make_unique<SeriesAxis>());
    area.getAxes().push_back(std::make_unique<SeriesAxis>());
    EXPECT_EQ(std::as_const(area).getCharts().size(), 2U);
    EXPECT_TRUE(area.getWall() == ChartSurface());
    EXPECT_TRUE(area.getGraphicProps() == ChartGraphicProps());
    EXPECT_EQ(std::as_const(area).getAxes()[1].isVisible(), true);
    const std::string axis = R"({"value0":)" + makeAxisBaseJson() + "}";
    expectText(area, R"({"_charts":[)" + makePolymorphicJson("QN::DOM::Pie3DChart", makeChartJson("", "")) +
                         R"(,{"polymorphic_id":0}],"_layout":{"hasValue":false},"_wall":)" +
                         makePresentJson(R"({"_graphicProps":{"hasValue":false}})") + R"(,"_graphicProps":)" +
                         makePresentJson(EmptyPaintJson) + R"(,"_axes":[)" +
                         makePolymorphicJson("QN::DOM::SeriesAxis", axis, 2) + "," +
                         makeLaterPolymorphicJson(axis, 2) + "]}");
    area.setLayout(ChartLayout());
    EXPECT_TRUE(area.getLayout() == ChartLayout());
    expectPersists(area);
    expectCopiesAndMoves(area);
}

TEST(PlotArea, IsUnequalAsSoonAsOneMemberDiffersTheOrderOfItsPartsIncluded)
{
    expectEachChangeMatters(
        makePlotArea(), [](PlotArea& area) { std::swap(area.getCharts()[0], area.getCharts()[1]); },
        [](PlotArea& area) { area.getCharts().pop_back(); },
        [](PlotArea& area) { area.getCharts()[0]->setVaryColors(true); },
        [](PlotArea& area) { area.setLayout(ChartLayout()); },
        [](PlotArea& area) { area.setWall(ChartSurface()); },
        [](PlotArea& area) { area.setGraphicProps(ChartGraphicProps()); },
        [](PlotArea& area) { std::swap(area.getAxes()[0], area.getAxes()[1]); },
        [](PlotArea& area) { area.getAxes()[2]->setVisible(false); },
        [](PlotArea& area) { area.getAxes().pop_back(); },
        [](PlotArea& area) { area.getAxes()[0] = nullptr; });
}

TEST(PlotArea, CopiesChartsAndAxes)
{
    const PlotArea source = makePlotArea();
    const std::string json = toJson(source);
    PlotArea copy(source);
    for (std::size_t index = 0; index < 2; ++index) {
        EXPECT_NE(copy.getCharts()[index].get(), &source.getCharts()[index]);
        EXPECT_NE(copy.getAxes()[index].get(), &source.getAxes()[index]);
    }
    copy.getCharts()[0]->setVaryColors(true);
    copy.getAxes().clear();
    EXPECT_EQ(toJson(source), json);
}

TEST(PlotArea, AcceptsReferencesToAxesThatAreNotThere)
{
    PlotArea area = makePlotArea();
    area.getCharts()[0]->getAxisIndexes() = {99};
    area.getAxes()[0]->setCrossingAxisIndex(99);
    expectRoundTrip(area);
}

} // namespace
} // namespace QN::DOM::PlotAreaTest
