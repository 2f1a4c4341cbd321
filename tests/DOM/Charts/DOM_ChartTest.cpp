#include "DOM/Charts/DOM_Chart.h"

#include <gtest/gtest.h>

#include "DOM/Charts/KindSamples.h"

namespace QN::DOM::ChartTest {
namespace {

using namespace Test;

/// Classes with a getter or a setter of this name.
#define DEFINE_HAS(Member)                                                                                   \
    template <class T>                                                                                       \
    concept Has##Member = requires(T & chart)                                                                \
    {                                                                                                        \
        chart.get##Member();                                                                                 \
    }                                                                                                        \
    || requires(T & chart)                                                                                   \
    {                                                                                                        \
        chart.set##Member({});                                                                               \
    };

DEFINE_HAS(Overlap)
DEFINE_HAS(SeriesLines)
DEFINE_HAS(GapDepth)
DEFINE_HAS(ChartShape)
DEFINE_HAS(FirstSliceAngle)
DEFINE_HAS(Interpolation)
#undef DEFINE_HAS

TEST(Chart, HasTenKindsInTheOrderOfTheFamily)
{
    static_assert(std::is_same_v<Chart::Types,
                                 TypeList<AreaChart, Area3DChart, BarChart, Bar3DChart, LineChart,
                                          Line3DChart, PieChart, Pie3DChart, ScatterChart, Scatter3DChart>>);
    static_assert(std::is_abstract_v<Chart>);
    static_assert(std::is_base_of_v<Clonable<Chart>, Chart>);
    static_assert(!Ordered<Chart>);
}

TEST(Chart, TheFlatAndThe3DChartOfAKindAreSiblings)
{
    static_assert(std::is_base_of_v<AreaChartCommon, Area3DChart> &&
                  !std::is_base_of_v<AreaChart, Area3DChart>);
    static_assert(std::is_base_of_v<BarChartCommon, Bar3DChart> && !std::is_base_of_v<BarChart, Bar3DChart>);
    static_assert(std::is_base_of_v<LineChartCommon, Line3DChart> &&
                  !std::is_base_of_v<LineChart, Line3DChart>);
    static_assert(std::is_base_of_v<PieChartCommon, Pie3DChart> && !std::is_base_of_v<PieChart, Pie3DChart>);
    static_assert(std::is_base_of_v<ScatterChartCommon, Scatter3DChart> &&
                  !std::is_base_of_v<ScatterChart, Scatter3DChart>);
    EXPECT_FALSE(areDeeplyEqual(static_cast<const Chart&>(PieChart()), Pie3DChart()));
    EXPECT_FALSE(areDeeplyEqual(static_cast<const Chart&>(ScatterChart()), Scatter3DChart()));
    EXPECT_TRUE(areDeeplyEqual(static_cast<const Chart&>(ScatterChart()), ScatterChart()));
}

TEST(Chart, TheFlatAndThe3DChartOfAKindAddMembersThatTheOtherLacks)
{
    static_assert(HasOverlap<BarChart> && !HasOverlap<Bar3DChart>);
    static_assert(HasSeriesLines<BarChart> && !HasSeriesLines<Bar3DChart>);
    static_assert(!HasChartShape<BarChart> && HasChartShape<Bar3DChart>);
    static_assert(!HasGapDepth<AreaChart> && HasGapDepth<Area3DChart>);
    static_assert(!HasGapDepth<BarChart> && HasGapDepth<Bar3DChart>);
    static_assert(!HasGapDepth<LineChart> && HasGapDepth<Line3DChart>);
    static_assert(!HasGapDepth<PieChart> && !HasGapDepth<Pie3DChart>);
    static_assert(!HasGapDepth<ScatterChart> && !HasGapDepth<Scatter3DChart>);
    static_assert(HasFirstSliceAngle<PieChart> && !HasFirstSliceAngle<Pie3DChart>);
    static_assert(HasInterpolation<LineChart> && !HasInterpolation<Line3DChart>);
    static_assert(HasInterpolation<ScatterChart> && HasInterpolation<Scatter3DChart>);
}

TEST(Chart, KeepsEveryMember)
{
    Pie3DChart chart;
    chart.getLiveSeries().push_back(std::make_unique<PieSeries>());
    chart.getSeries().getTombstones().replaceWithTombstone(CollaborationUtils::IndexIncludingTombstones(1));
    chart.getAxisIndexes() = {7, 18446744073709551615U};
    chart.setGroupDataLabel(GroupDataLabel());
    chart.setCategories(std::vector<Formula>(1, makeFormula(true)));
    chart.setXValues(std::vector<Formula>());
    chart.setVaryColors(false);
    EXPECT_EQ(std::as_const(chart).getLiveSeries()[0].getIdx(), 0U);
    EXPECT_EQ(std::as_const(chart).getSeries().getElements().size(), 1U);
    EXPECT_EQ(std::as_const(chart).getAxisIndexes(), (std::vector<unsigned long>{7, 18446744073709551615U}));
    EXPECT_TRUE(chart.getGroupDataLabel() == GroupDataLabel());
    EXPECT_EQ(std::as_const(chart).getCategories()->size(), 1U);
    EXPECT_TRUE(std::as_const(chart).getXValues()->empty());
    EXPECT_EQ(chart.getVaryColors(), BoolOpt(false));
    chart.getCategories()->push_back(makeFormula(false));
    chart.getXValues()->push_back(makeFormula(true));

    const std::string series =
        makePolymorphicJson("QN::DOM::PieSeries", std::string(R"({"value0":)") + DefaultSeriesJson +
                                                      R"(,"_explosion":{"hasValue":false}})");
    expectText(
        chart,
        R"({"value0":{"value0":{"_series":{"_elements":[)" + series +
            R"(],"_tombstones":{"_tombstones":[{"_begin":{"_value":1},"_end":{"_value":2}}]}},)"
            R"("_axesIndexes":[7,18446744073709551615],"_groupDataLabel":)" +
            makePresentJson(
                R"({"_deleted":false,"_position":{"hasValue":false},"_graphicProps":{"hasValue":false}})") +
            R"(,"_categories":)" +
            makePresentJson("[" + makeFormulaJson(true) + "," + makeFormulaJson(false) + "]") +
            R"(,"_xValues":)" + makePresentJson("[" + makeFormulaJson(true) + "]") +
            R"(,"_varyColors":{"value":0}}}})");
    expectPersists(makeChart<BarChart, BarSeries>());
    expectCopiesAndMoves(makeChart<BarChart, BarSeries>());
}

TEST(Chart, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectEachChangeMatters(
        makeChart<PieChart, PieSeries>(), [](PieChart& chart) { chart.getLiveSeries().pop_back(); },
        [](PieChart& chart) { chart.getLiveSeries()[0]->setIdx(9); },
        [](PieChart& chart) { chart.getLiveSeries()[1] = nullptr; },
        [](PieChart& chart) { chart.getLiveSeries()[1] = std::make_unique<LineSeries>(); },
        [](PieChart& chart) { chart.getSeries().getTombstones().clear(); },
        [](PieChart& chart) {
            chart.getAxisIndexes() = {0, 1};
        },
        [](PieChart& chart) { chart.setGroupDataLabel(boost::none); },
        [](PieChart& chart) { chart.setCategories(boost::none); },
        [](PieChart& chart) { chart.getCategories()->clear(); },
        [](PieChart& chart) { chart.setXValues(boost::none); },
        [](PieChart& chart) { chart.setVaryColors(false); });
}

TEST(Chart, AChangedCopyLeavesItsSourceAsItWas)
{
    const auto source = makeChart<BarChart, BarSeries>();
    const std::string json = toJson(source);
    auto copy = source;
    EXPECT_NE(&std::as_const(copy).getLiveSeries()[0], &source.getLiveSeries()[0]);
    EXPECT_EQ(copy.getLiveSeries()[0]->getRunProps(), source.getLiveSeries()[0].getRunProps());
    copy.getLiveSeries()[0]->setIdx(9);
    copy.getCategories()->clear();
    copy.getSeries().getTombstones().clear();
    EXPECT_EQ(toJson(source), json);
}

TEST(Chart, OfAnotherKindTakesOverTheBaseWithSeriesOfItsOwnClass)
{
    auto source = makeChart<BarChart, BarSeries>();
    source.setGapWidth(77);
    const std::string json = toJson(source);
    LineChart target;
    target.setInterpolation(true);
    target.getLiveSeries().push_back(std::make_unique<LineSeries>());
    target.getSeries().getTombstones().replaceWithTombstone(CollaborationUtils::IndexIncludingTombstones(0));
    target.copyBaseProperties(source);

    ASSERT_EQ(target.getLiveSeries().size(), 2U);
    for (std::size_t index = 0; index < 2; ++index) {
        const Series& copied = *target.getLiveSeries()[index];
        EXPECT_EQ(typeid(copied), typeid(LineSeries));
        EXPECT_TRUE(copied == *source.getLiveSeries()[index]);
        EXPECT_EQ(dynamic_cast<const LineSeries&>(copied).getMarker(), ChartMarker());
    }
    EXPECT_EQ(target.getLiveSeries()[0]->getIdx(), 3U);
    EXPECT_EQ(target.getLiveSeries()[0]->getValues().size(), 1U);
    EXPECT_EQ(target.getSeries().getTombstones().getTombstonesCount(), 0U);
    EXPECT_EQ(target.getAxisIndexes(), source.getAxisIndexes());
    EXPECT_TRUE(target.getGroupDataLabel() == source.getGroupDataLabel());
    EXPECT_TRUE(target.getCategories() == source.getCategories());
    EXPECT_TRUE(target.getXValues() == source.getXValues());
    EXPECT_EQ(target.getVaryColors(), BoolOpt(true));
    EXPECT_EQ(target.getInterpolation(), true);
    EXPECT_EQ(toJson(target).find("_gapWidth"), std::string::npos);

    EXPECT_NE(target.getLiveSeries()[0]->getRunProps(), source.getLiveSeries()[0]->getRunProps());
    EXPECT_EQ(toJson(source), json);
}

TEST(Chart, OfTheSameKindDoesNotTakeOverWhatItsSeriesAdd)
{
    LineChart source;
    ChartMarker marker;
    marker.setSize(9.0F);
    auto series = std::make_unique<LineSeries>();
    series->setMarker(marker);
    series->setOrder(5);
    source.getLiveSeries().push_back(std::move(series));
    Line3DChart target;
    target.setGapDepth(33);
    target.copyBaseProperties(source);
    EXPECT_EQ(dynamic_cast<const LineSeries&>(*target.getLiveSeries()[0]).getMarker(), ChartMarker());
    EXPECT_EQ(target.getLiveSeries()[0]->getOrder(), 5U);
    EXPECT_EQ(target.getGapDepth(), 33);
}

TEST(Chart, TakesOverAbsence)
{
    auto target = makeChart<PieChart, PieSeries>();
    target.copyBaseProperties(AreaChart());
    EXPECT_EQ(target, PieChart());
}

TEST(Chart, TakingOverItsOwnBaseKeepsItsSeriesButNotWhatTheirClassAddsNorTheTombstones)
{
    auto chart = makeChart<BarChart, BarSeries>();
    chart.setOverlap(-5);
    dynamic_cast<BarSeries&>(*chart.getLiveSeries()[1]).setInvertIfNegative(true);
    chart.copyBaseProperties(chart);
    auto expected = makeChart<BarChart, BarSeries>();
    expected.setOverlap(-5);
    expected.getSeries().getTombstones().clear();
    EXPECT_EQ(chart, expected);
}

TEST(ChartDeathTest, TakingOverANullSeriesFailsTheContract)
{
    PieChart source;
    source.getLiveSeries().push_back(nullptr);
    PieChart target;
    EXPECT_DEATH(target.copyBaseProperties(source), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

TEST(ChartDeathTest, ReadingANullSeriesFailsTheContract)
{
    PieChart chart;
    chart.getLiveSeries().push_back(nullptr);
    expectPersists(chart);
    EXPECT_DEATH(std::as_const(chart).getLiveSeries()[0], "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

} // namespace
} // namespace QN::DOM::ChartTest
