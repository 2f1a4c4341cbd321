#include "DOM/Charts/DOM_Series.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Charts/SeriesSamples.h"

namespace QN::DOM::SeriesTest {
namespace {

using namespace Test;

template <class T>
concept HasSetRunProps = requires(T& series)
{
    series.setRunProps(nullptr);
};

template <class T>
concept HasSetRunPorps = requires(T& series)
{
    series.setRunPorps(nullptr);
};

TEST(Series, HasFiveKindsInTheOrderOfTheFamily)
{
    static_assert(
        std::is_same_v<Series::Types, TypeList<AreaSeries, BarSeries, LineSeries, PieSeries, ScatterSeries>>);
    static_assert(std::is_abstract_v<Series>);
    static_assert(std::is_base_of_v<Clonable<Series>, Series>);
    static_assert(!Ordered<Series>);
}

TEST(Series, TheSetterOfItsRunPropertiesIsSpeltSetRunPorps)
{
    static_assert(HasSetRunPorps<BarSeries> && !HasSetRunProps<BarSeries>);
    BarSeries series;
    const auto props = makeRunProps(true);
    series.setRunPorps(props);
    EXPECT_EQ(series.getRunProps(), props);
}

TEST(Series, KeepsEveryMember)
{
    BarSeries series;
    series.setIdx(std::numeric_limits<unsigned long>::max());
    series.setOrder(7);
    series.setName(makeFormula(true));
    series.setValues(std::vector<Formula>(2, makeFormula(false)));
    series.setGroupDataLabel(GroupDataLabel());
    series.getDataLabels().push_back(nullptr);
    series.getDataPoints().push_back(std::make_unique<DataPoint>());
    series.setGraphicProps(ChartGraphicProps());
    EXPECT_EQ(series.getIdx(), std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(series.getOrder(), 7U);
    EXPECT_TRUE(std::as_const(series).getName() == makeFormula(true));
    EXPECT_EQ(std::as_const(series).getValues().size(), 2U);
    EXPECT_TRUE(series.getGroupDataLabel() == GroupDataLabel());
    EXPECT_EQ(std::as_const(series).getDataPoints()[0].getIdx(), 0U);
    EXPECT_TRUE(series.getGraphicProps() == ChartGraphicProps());
    const std::string label =
        R"({"_deleted":false,"_position":{"hasValue":false},"_graphicProps":{"hasValue":false}})";
    expectText(series, R"({"value0":{"_idx":18446744073709551615,"_order":7,"_name":)" +
                           makePresentJson(makeFormulaJson(true)) + R"(,"_values":[)" +
                           makeFormulaJson(false) + "," + makeFormulaJson(false) + R"(],"_groupDataLabel":)" +
                           makePresentJson(label) +
                           R"(,"_dataLabels":[{"ptr_wrapper":{"valid":0}}],"_dataPoints":[)" +
                           makePlainJson(R"({"_idx":0,"_graphicProps":{"hasValue":false}})") +
                           R"(],"_graphicProps":)" + makePresentJson(EmptyPaintJson) +
                           R"(,"_runProps":{"ptr_wrapper":{"id":0}}},"_invertIfNegative":{"value":-1}})");
    expectPersists(makeSeries<BarSeries>());
    expectCopiesAndMoves(makeSeries<BarSeries>());
}

TEST(Series, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectEachChangeMatters(
        makeSeries<PieSeries>(), [](PieSeries& series) { series.setIdx(0); },
        [](PieSeries& series) { series.setOrder(0); }, [](PieSeries& series) { series.setName(boost::none); },
        [](PieSeries& series) { series.getName() = makeFormula(false); },
        [](PieSeries& series) { series.getValues().clear(); },
        [](PieSeries& series) { series.setGroupDataLabel(boost::none); },
        [](PieSeries& series) { series.getDataLabels()[0]->setIdx(9); },
        [](PieSeries& series) { series.getDataLabels().pop_back(); },
        [](PieSeries& series) { series.getDataPoints()[0]->setIdx(9); },
        [](PieSeries& series) { series.setGraphicProps(boost::none); },
        [](PieSeries& series) { series.setRunPorps(makeRunProps(false)); },
        [](PieSeries& series) { series.setRunPorps(nullptr); });
}

TEST(Series, ComparesItsRunPropertiesByContent)
{
    BarSeries left;
    BarSeries right;
    left.setRunPorps(makeRunProps(true));
    right.setRunPorps(makeRunProps(true));
    EXPECT_NE(left.getRunProps(), right.getRunProps());
    EXPECT_EQ(left, right);
}

TEST(Series, OfEqualMembersAreUnequalInAnotherClass)
{
    EXPECT_FALSE(areDeeplyEqual(static_cast<const Series&>(LineSeries()), ScatterSeries()));
    EXPECT_TRUE(areDeeplyEqual(static_cast<const Series&>(LineSeries()), LineSeries()));
}

TEST(Series, AChangedCopyLeavesItsSourceAsItWas)
{
    const auto source = makeSeries<BarSeries>();
    const std::string json = toJson(source);
    auto copy = source;
    EXPECT_NE(&std::as_const(copy).getDataLabels()[0], &source.getDataLabels()[0]);
    copy.getDataLabels()[0]->setIdx(9);
    copy.getDataPoints()[0]->setIdx(9);
    copy.getValues().clear();
    copy.setRunPorps(nullptr);
    EXPECT_EQ(toJson(source), json);
}

TEST(Series, TakesOverTheBaseOfAnotherClassAndSharesNothingWithIt)
{
    const auto source = makeSeries<BarSeries>();
    const std::string json = toJson(source);
    LineSeries target;
    target.setIdx(99);
    ChartMarker marker;
    marker.setSize(5.0F);
    target.setMarker(marker);
    target.getDataLabels().push_back(std::make_unique<DataLabel>());
    target.copyBaseProperties(source);

    EXPECT_TRUE(static_cast<const Series&>(target) == source);
    EXPECT_EQ(target.getMarker(), marker);
    EXPECT_NE(target.getRunProps(), source.getRunProps());
    EXPECT_TRUE(*target.getRunProps() == *source.getRunProps());
    EXPECT_EQ(target.getRunProps().use_count(), 2) << "its own handle and the one asked for";
    ASSERT_EQ(target.getDataLabels().size(), 2U);
    EXPECT_NE(target.getDataLabels()[0].get(), &source.getDataLabels()[0]);
    EXPECT_EQ(target.getDataLabels()[1], nullptr);
    EXPECT_NE(target.getDataPoints()[0].get(), &source.getDataPoints()[0]);
    EXPECT_EQ(toJson(source), json);
}

TEST(Series, TakesOverAbsence)
{
    auto target = makeSeries<BarSeries>();
    target.copyBaseProperties(PieSeries());
    EXPECT_EQ(target, BarSeries());
}

TEST(Series, TakingOverItsOwnBaseChangesNothing)
{
    auto series = makeSeries<BarSeries>();
    series.setInvertIfNegative(true);
    series.copyBaseProperties(series);
    auto expected = makeSeries<BarSeries>();
    expected.setInvertIfNegative(true);
    EXPECT_EQ(series, expected);
}

} // namespace
} // namespace QN::DOM::SeriesTest
