#include "DOM/Charts/DOM_ChartGraphicProps.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartGraphicPropsTest {
namespace {

using namespace Test;

TEST(ChartGraphicProps, StateNothingByDefault)
{
    const ChartGraphicProps paint;
    EXPECT_EQ(paint.getFill(), nullptr);
    EXPECT_EQ(paint.getLineProps(), nullptr);
    expectText(paint, EmptyPaintJson);
    static_assert(!Ordered<ChartGraphicProps>);
}

TEST(ChartGraphicProps, OwnAFillAndALine)
{
    ChartGraphicProps paint = makePaint();
    EXPECT_TRUE(areDeeplyEqual(*paint.getFill(), NoFill()));
    expectText(paint, R"({"_fill":)" + makePolymorphicJson("QN::DOM::NoFill", R"({"value0":{}})") +
                          R"(,"_lineProps":{"polymorphic_id":0}})");
    paint.setLineProps(std::make_unique<ThemeLineProps>());
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(paint).getLineProps(), ThemeLineProps()));
    expectPersists(paint);
    expectCopiesAndMoves(paint);
}

TEST(ChartGraphicProps, AreEqualByContents)
{
    EXPECT_EQ(makePaint(), makePaint());
    EXPECT_EQ(ChartGraphicProps(), ChartGraphicProps());
    expectEachChangeMatters(
        makePaint(), [](ChartGraphicProps& paint) { paint.setFill(nullptr); },
        [](ChartGraphicProps& paint) { paint.setLineProps(std::make_unique<ThemeLineProps>()); });
}

TEST(ChartGraphicProps, CopiesShareNothing)
{
    ChartGraphicProps paint = makePaint();
    paint.setLineProps(std::make_unique<ThemeLineProps>());
    const std::string text = toText(paint);
    ChartGraphicProps copy(paint);
    EXPECT_NE(copy.getFill(), paint.getFill());
    EXPECT_NE(copy.getLineProps(), paint.getLineProps());
    dynamic_cast<ThemeLineProps&>(*copy.getLineProps()).setColor(Color());
    copy.setFill(nullptr);
    EXPECT_EQ(toText(paint), text);
}

TEST(ChartGraphicProps, OfTwoNullsArePresentAndDifferFromAbsence)
{
    const boost::optional<ChartGraphicProps> present = ChartGraphicProps();
    EXPECT_FALSE(areMembersDeeplyEqual(present, boost::optional<ChartGraphicProps>()));
    expectText(present, makePresentJson(EmptyPaintJson));
}

} // namespace
} // namespace QN::DOM::ChartGraphicPropsTest
