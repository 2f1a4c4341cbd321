#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "DOM/Charts/KindSamples.h"
#include "DOM/Charts/NestedSamples.h"
#include "DOM/Charts/UncopyablePaint.h"
#include "DOM/FormulaSyntaxTree/DOM_Number.h"

/// What `copyBaseProperties` of charts and series leaves alone, does not share, and survives.

namespace QN::DOM::CopyBasePropertiesTest {
namespace {

using namespace Test;

/// The target takes over the axis indexes of the source, here all that the root has set, and keeps the rest of its own.
template <class Target, class Source>
void expectTakesOverTheRootAlone(Target target, Source source)
{
    source.getAxisIndexes() = {7};
    Target expected(target);
    expected.getAxisIndexes() = {7};
    target.copyBaseProperties(source);
    EXPECT_EQ(target, expected);
}

/// The same for what the flat and the 3D chart of a kind share, between all pairs of these two.
template <class Flat, class Solid>
void expectCommonMembersStay(const Flat& flat, const Solid& solid)
{
    expectTakesOverTheRootAlone(Flat(), flat);
    expectTakesOverTheRootAlone(Solid(), flat);
    expectTakesOverTheRootAlone(Flat(), solid);
    expectTakesOverTheRootAlone(Solid(), solid);
    expectTakesOverTheRootAlone(flat, Flat());
    expectTakesOverTheRootAlone(solid, Flat());
    expectTakesOverTheRootAlone(flat, Solid());
    expectTakesOverTheRootAlone(solid, Solid());
}

template <class T>
T makeGroupedChart()
{
    T chart;
    chart.setGrouping(ChartGrouping::PercentStacked);
    chart.setDropLines(std::make_unique<ChartLines>());
    return chart;
}

template <class T>
T makeBarChart()
{
    T chart;
    chart.setDirection(BarChartDirection::Bar);
    chart.setGrouping(BarChartGrouping::PercentStacked);
    chart.setGapWidth(77);
    return chart;
}

template <class T>
T makeScatterChart()
{
    T chart;
    chart.setType(ChartScatterType::Line);
    chart.setInterpolation(true);
    return chart;
}

TEST(CopyBaseProperties, OfAnAreaChartLeavesGroupingDropLinesAndDepthAlone)
{
    auto solid = makeGroupedChart<Area3DChart>();
    solid.setGapDepth(33);
    expectCommonMembersStay(makeGroupedChart<AreaChart>(), solid);
}

TEST(CopyBaseProperties, OfABarChartLeavesDirectionGroupingAndGapsAlone)
{
    auto flat = makeBarChart<BarChart>();
    flat.setOverlap(-5);
    flat.getSeriesLines().push_back(std::make_unique<ChartLines>());
    auto solid = makeBarChart<Bar3DChart>();
    solid.setGapDepth(33);
    solid.setChartShape(ChartShape::Pyramid);
    expectCommonMembersStay(flat, solid);
}

TEST(CopyBaseProperties, OfALineChartLeavesGroupingDropLinesAndInterpolationAlone)
{
    auto flat = makeGroupedChart<LineChart>();
    flat.setInterpolation(true);
    auto solid = makeGroupedChart<Line3DChart>();
    solid.setGapDepth(33);
    expectCommonMembersStay(flat, solid);
}

TEST(CopyBaseProperties, OfAPieChartLeavesTheAngleOfItsFirstSliceAlone)
{
    PieChart flat;
    flat.setFirstSliceAngle(90.0);
    expectCommonMembersStay(flat, Pie3DChart());
}

TEST(CopyBaseProperties, OfAScatterChartLeavesTypeAndInterpolationAlone)
{
    expectCommonMembersStay(makeScatterChart<ScatterChart>(), makeScatterChart<Scatter3DChart>());
}

Formula makeTree()
{
    return {std::make_unique<FormulaSyntaxTree::Number>(4.5), false};
}

void expectSharesNoTree(const Formula& left, const Formula& right)
{
    EXPECT_EQ(left, right);
    EXPECT_NE(left.getSyntaxTree().get(), right.getSyntaxTree().get());
}

/// For paint with a fill.
template <class T>
void expectSharesNoPaint(const T& left, const T& right)
{
    EXPECT_TRUE(left->getGraphicProps() == right->getGraphicProps());
    EXPECT_NE(left->getGraphicProps()->getFill(), right->getGraphicProps()->getFill());
}

GroupDataLabel makePaintedLabels()
{
    GroupDataLabel labels;
    labels.setGraphicProps(makePaint());
    return labels;
}

TEST(CopyBaseProperties, OfASeriesSharesNeitherFormulasNorTextsNorPaint)
{
    BarSeries original;
    original.setName(makeTree());
    original.getValues().push_back(makeTree());
    original.setGroupDataLabel(makePaintedLabels());
    auto label = std::make_unique<DataLabel>();
    label->setText(std::make_unique<TextWithTombstones>());
    label->getText()->getBlocks().push_back(std::make_unique<Paragraph>());
    label->setGraphicProps(makePaint());
    original.getDataLabels().push_back(std::move(label));
    original.getDataPoints().push_back(std::make_unique<DataPoint>());
    original.getDataPoints()[0]->setGraphicProps(makePaint());
    original.setGraphicProps(makePaint());
    LineSeries converted;
    converted.copyBaseProperties(original);

    const BarSeries& source = original;
    const LineSeries& target = converted;
    EXPECT_TRUE(static_cast<const Series&>(target) == source);
    expectSharesNoTree(*target.getName(), *source.getName());
    expectSharesNoTree(target.getValues()[0], source.getValues()[0]);
    expectSharesNoPaint(target.getGroupDataLabel(), source.getGroupDataLabel());
    expectSharesNoPaint(&target.getDataLabels()[0], &source.getDataLabels()[0]);
    EXPECT_NE(target.getDataLabels()[0].getText(), source.getDataLabels()[0].getText());
    EXPECT_NE(&target.getDataLabels()[0].getText()->getBlocks()[0],
              &source.getDataLabels()[0].getText()->getBlocks()[0]);
    expectSharesNoPaint(&target.getDataPoints()[0], &source.getDataPoints()[0]);
    expectSharesNoPaint<const Series*>(&target, &source);
}

TEST(CopyBaseProperties, OfAChartSharesNeitherFormulasNorPaint)
{
    BarChart source;
    source.setGroupDataLabel(makePaintedLabels());
    source.setCategories(std::vector<Formula>(1, makeTree()));
    source.setXValues(std::vector<Formula>(1, makeTree()));
    PieChart target;
    target.copyBaseProperties(source);
    expectSharesNoPaint(target.getGroupDataLabel(), source.getGroupDataLabel());
    expectSharesNoTree((*target.getCategories())[0], (*source.getCategories())[0]);
    expectSharesNoTree((*target.getXValues())[0], (*source.getXValues())[0]);
}

TEST(CopyBaseProperties, OfAChartShownInALabelOfTheTargetIsDoneBeforeThatLabelGoes)
{
    auto inner = std::make_unique<PieChart>(makeChart<PieChart, PieSeries>());
    const Chart& source = *inner;
    auto space = std::make_unique<ChartSpace>();
    space->getPlotArea().getCharts().push_back(std::move(inner));
    space = putIntoLabel(std::move(space));
    Chart& target = *space->getPlotArea().getCharts()[0];
    target.copyBaseProperties(source);

    auto expected = makeChart<PieChart, PieSeries>();
    expected.getSeries().getTombstones().clear();
    EXPECT_TRUE(areDeeplyEqual(target, expected)) << toJson(space);
}

TEST(CopyBaseProperties, OfASeriesShownInALabelOfTheTargetIsDoneBeforeThatLabelGoes)
{
    auto inner = std::make_unique<PieChart>();
    inner->getLiveSeries().push_back(std::make_unique<PieSeries>(makeSeries<PieSeries>()));
    const Series& source = *inner->getLiveSeries()[0];
    auto space = std::make_unique<ChartSpace>();
    space->getPlotArea().getCharts().push_back(std::move(inner));
    space = putIntoLabel(std::move(space));
    Series& target = *space->getPlotArea().getCharts()[0]->getLiveSeries()[0];
    target.copyBaseProperties(source);
    EXPECT_TRUE(areDeeplyEqual(target, makeSeries<PieSeries>())) << toJson(space);
}

TEST(CopyBaseProperties, OfAChartChangesNothingWhenItFails)
{
    BarChart source;
    source.getAxisIndexes() = {7};
    source.setVaryColors(false);
    GroupDataLabel labels;
    labels.setGraphicProps(makeUncopyablePaint());
    source.setGroupDataLabel(std::move(labels));
    auto target = makeChart<PieChart, PieSeries>();
    EXPECT_THROW(target.copyBaseProperties(source), std::bad_alloc);
    EXPECT_EQ(target, (makeChart<PieChart, PieSeries>()));
}

TEST(CopyBaseProperties, OfASeriesChangesNothingWhenItFails)
{
    BarSeries source;
    source.setIdx(99);
    source.setGraphicProps(makeUncopyablePaint());
    auto target = makeSeries<LineSeries>();
    EXPECT_THROW(target.copyBaseProperties(source), std::bad_alloc);
    EXPECT_EQ(target, makeSeries<LineSeries>());
}

} // namespace
} // namespace QN::DOM::CopyBasePropertiesTest
