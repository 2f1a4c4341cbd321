#include "DOM/Charts/DOM_ChartAxis.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Charts/AxisSamples.h"

namespace QN::DOM::ChartAxisTest {
namespace {

using namespace Test;

ValueAxis makeAxis()
{
    ValueAxis axis;
    axis.setLogBase(-1.0);
    axis.setOrientation(static_cast<ChartAxisOrientation>(200));
    axis.setMin(10.5);
    axis.setMax(-10.5);
    axis.setMajorGridLines(std::make_unique<ChartLines>());
    axis.setMinorGridLines(std::make_unique<ChartLines>());
    axis.setPosition(static_cast<ChartAxisPosition>(201));
    axis.setTitle(std::make_unique<ChartTitle>());
    axis.setLabels(ChartAxisLabels());
    axis.setCrossingAxisIndex(std::numeric_limits<unsigned long>::max());
    axis.setCrossing(static_cast<ChartAxisCrossing>(202));
    axis.setMajorTickMark(static_cast<ChartAxisTickMark>(203));
    axis.setMinorTickMark(static_cast<ChartAxisTickMark>(204));
    axis.setGraphicProps(ChartGraphicProps());
    axis.setVisible(false);
    return axis;
}

TEST(ChartAxis, HasFourKindsInTheOrderOfTheFamily)
{
    static_assert(std::is_same_v<ChartAxis::Types, TypeList<CategoryAxis, SeriesAxis, ValueAxis, DateAxis>>);
    static_assert(std::is_abstract_v<ChartAxis>);
    static_assert(std::is_base_of_v<Clonable<ChartAxis>, ChartAxis>);
    static_assert(!Ordered<ChartAxis>);
    static_assert(sizeof(ChartAxisOrientation) == 1 && sizeof(ChartAxisPosition) == 1 &&
                  sizeof(ChartAxisCrossing) == 1 && sizeof(ChartAxisTickMark) == 1);
}

TEST(ChartAxis, KeepsEveryMember)
{
    ValueAxis axis = makeAxis();
    EXPECT_EQ(axis.getLogBase(), -1.0);
    EXPECT_EQ(static_cast<int>(*axis.getOrientation()), 200);
    EXPECT_EQ(axis.getMin(), 10.5);
    EXPECT_EQ(axis.getMax(), -10.5);
    EXPECT_EQ(*std::as_const(axis).getMajorGridLines(), ChartLines());
    EXPECT_EQ(*std::as_const(axis).getMinorGridLines(), ChartLines());
    EXPECT_EQ(static_cast<int>(axis.getPosition()), 201);
    EXPECT_EQ(*std::as_const(axis).getTitle(), ChartTitle());
    EXPECT_TRUE(axis.getLabels() == ChartAxisLabels());
    EXPECT_EQ(axis.getCrossingAxisIndex(), std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(static_cast<int>(boost::get<ChartAxisCrossing>(axis.getCrossing())), 202);
    EXPECT_EQ(static_cast<int>(axis.getMajorTickMark()), 203);
    EXPECT_EQ(static_cast<int>(axis.getMinorTickMark()), 204);
    EXPECT_TRUE(axis.getGraphicProps());
    EXPECT_FALSE(axis.isVisible());

    const std::string lines = makePlainJson(R"({"_graphicProps":{"hasValue":false}})");
    const std::string title = makePlainJson(
        R"({"_text":{"hasValue":false},"_x":{"hasValue":false},"_y":{"hasValue":false},)"
        R"("_overlay":{"value":-1},"_rotation":{"hasValue":false},"_direction":{"hasValue":false},)"
        R"("_graphicProps":{"hasValue":false},"_runProps":{"ptr_wrapper":{"id":0}}})");
    expectText(axis, R"({"value0":{"_logBase":{"hasValue":true,"value":-1.0},)"
                     R"("_orientation":{"hasValue":true,"value":200},"_min":{"hasValue":true,"value":10.5},)"
                     R"("_max":{"hasValue":true,"value":-10.5},"_majorGridLines":)" +
                         lines + R"(,"_minorGridLines":)" + lines + R"(,"_position":201,"_title":)" + title +
                         R"(,"_labels":{"hasValue":true,"value":{"_position":0}},)"
                         R"("_crossingAxisIndex":18446744073709551615,"_crossing":{"which":1,"data":202},)"
                         R"("_majorTickMark":203,"_minorTickMark":204,"_graphicProps":)" +
                         makePresentJson(EmptyPaintJson) +
                         R"(,"_visible":false,"_runProps":{"ptr_wrapper":{"id":0}}},)"
                         R"("_majorUnit":{"hasValue":false},"_minorUnit":{"hasValue":false}})");
    axis.setRunProps(makeRunProps(true));
    expectPersists(axis);
    expectCopiesAndMoves(axis);
}

TEST(ChartAxis, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectSharesRunProps(ValueAxis());
    expectEachChangeMatters(
        makeAxis(), [](ValueAxis& axis) { axis.setLogBase(boost::none); },
        [](ValueAxis& axis) { axis.setOrientation(ChartAxisOrientation::MinMax); },
        [](ValueAxis& axis) { axis.setMin(0.0); }, [](ValueAxis& axis) { axis.setMax(0.0); },
        [](ValueAxis& axis) { axis.setMajorGridLines(nullptr); },
        [](ValueAxis& axis) { axis.getMinorGridLines()->setGraphicProps(ChartGraphicProps()); },
        [](ValueAxis& axis) { axis.setPosition(ChartAxisPosition::Bottom); },
        [](ValueAxis& axis) { axis.getTitle()->setOverlay(true); },
        [](ValueAxis& axis) { axis.setLabels(boost::none); },
        [](ValueAxis& axis) { axis.setCrossingAxisIndex(0); },
        [](ValueAxis& axis) { axis.setCrossing(ChartAxisCrossing::Max); },
        [](ValueAxis& axis) { axis.setCrossing(1.0); },
        [](ValueAxis& axis) { axis.setMajorTickMark(ChartAxisTickMark::In); },
        [](ValueAxis& axis) { axis.setMinorTickMark(ChartAxisTickMark::In); },
        [](ValueAxis& axis) { axis.setGraphicProps(boost::none); },
        [](ValueAxis& axis) { axis.setVisible(true); },
        [](ValueAxis& axis) { axis.setRunProps(makeRunProps(true)); });
}

TEST(ChartAxis, WithSeparateButEqualLinesIsEqual)
{
    const ValueAxis left = makeAxis();
    const ValueAxis right = makeAxis();
    EXPECT_NE(left.getMajorGridLines(), right.getMajorGridLines());
    EXPECT_EQ(left, right);
}

TEST(ChartAxis, OfEqualMembersIsUnequalInAnotherClass)
{
    EXPECT_FALSE(areDeeplyEqual(static_cast<const ChartAxis&>(ValueAxis()), DateAxis()));
    EXPECT_FALSE(areDeeplyEqual(static_cast<const ChartAxis&>(CategoryAxis()), SeriesAxis()));
    EXPECT_TRUE(areDeeplyEqual(static_cast<const ChartAxis&>(SeriesAxis()), SeriesAxis()));
}

TEST(ChartAxis, CrossesNowhereOrAtANameOrAtAValue)
{
    CategoryAxis blank;
    CategoryAxis named;
    named.setCrossing(ChartAxisCrossing{});
    CategoryAxis zero;
    zero.setCrossing(0.0);
    EXPECT_NE(blank, named);
    EXPECT_NE(blank, zero);
    EXPECT_NE(named, zero);
    expectText(blank, R"({"value0":)" + makeAxisBaseJson(R"({"which":0,"data":{}})") + "}");
    expectText(named, R"({"value0":)" + makeAxisBaseJson(R"({"which":1,"data":0})") + "}");
    const std::string zeroText = R"({"value0":)" + makeAxisBaseJson(R"({"which":2,"data":0.0})") + "}";
    expectText(zero, zeroText);
    EXPECT_EQ(fromText<CategoryAxis>(zeroText).getCrossing().which(), 2);
    EXPECT_EQ(textError<CategoryAxis>(R"({"value0":)" + makeAxisBaseJson(R"({"which":3,"data":0})") + "}"),
              "Invalid 'which' selector when deserializing boost::variant");
}

TEST(ChartAxis, StaysInvisibleInAFile)
{
    SeriesAxis axis;
    axis.setVisible(false);
    EXPECT_NE(toText(axis).find(R"("_visible":false)"), std::string::npos);
    EXPECT_FALSE(fromText<SeriesAxis>(toText(axis)).isVisible());
}

TEST(ChartAxis, CopiesLinesAndTitle)
{
    const ValueAxis source = makeAxis();
    const std::string json = toJson(source);
    ValueAxis copy(source);
    EXPECT_NE(copy.getMajorGridLines(), source.getMajorGridLines());
    EXPECT_NE(copy.getMinorGridLines(), source.getMinorGridLines());
    EXPECT_NE(copy.getTitle(), source.getTitle());
    copy.getTitle()->setX(1.0F);
    copy.getMajorGridLines()->setGraphicProps(ChartGraphicProps());
    EXPECT_EQ(toJson(source), json);
}

} // namespace
} // namespace QN::DOM::ChartAxisTest
