#include "DOM/Tables/Properties/DOM_BordersProps.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::BordersPropsTest {
namespace {

using namespace QN::Test;
using Line = BordersProps::Line;

constexpr std::array Getters{&BordersProps::getBottom,       &BordersProps::getLeft,
                             &BordersProps::getRight,        &BordersProps::getTop,
                             &BordersProps::getDiagonalDown, &BordersProps::getDiagonalUp,
                             &BordersProps::getVertical,     &BordersProps::getHorizontal};
constexpr std::array Setters{&BordersProps::setBottom,       &BordersProps::setLeft,
                             &BordersProps::setRight,        &BordersProps::setTop,
                             &BordersProps::setDiagonalDown, &BordersProps::setDiagonalUp,
                             &BordersProps::setVertical,     &BordersProps::setHorizontal};

/// Each edge has a width of its own.
BordersProps makeFull()
{
    BordersProps borders;
    for (std::size_t edge = 0; edge < Setters.size(); ++edge) {
        (borders.*Setters[edge])(makeLine(static_cast<float>(edge + 1)));
    }
    return borders;
}

std::string makeLineData(const std::string& width)
{
    return R"({"value0":{},"_width":{"hasValue":true,"value":)" + width +
           R"(},"_dashStyle":{"hasValue":false},"_head":{"ptr_wrapper":{"id":0}},"_tail":{"ptr_wrapper":{"id":0}},)"
           R"("_color":{"hasValue":false}})";
}

TEST(DOM_BordersProps, HaveNoLineByDefault)
{
    for (const auto getLine : Getters) {
        EXPECT_EQ((BordersProps().*getLine)(), nullptr);
    }
    const std::string null = R"({"polymorphic_id":0})";
    expectText(BordersProps(), R"({"_bottom":)" + null + R"(,"_left":)" + null + R"(,"_right":)" + null +
                                   R"(,"_top":)" + null + R"(,"_diagonalDown":)" + null +
                                   R"(,"_diagonalUp":)" + null + R"(,"_vertical":)" + null +
                                   R"(,"_horizontal":)" + null + "}");
}

TEST(DOM_BordersProps, WriteTheirLinesAsSharedPolymorphicObjects)
{
    BordersProps borders;
    borders.setBottom(makeLine(1.0F));
    borders.setRight(makeLine(2.0F));
    borders.setHorizontal(borders.getBottom());
    expectText(
        borders,
        R"({"_bottom":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::RegularLineProps",)"
        R"("ptr_wrapper":{"id":2147483649,"data":)" +
            makeLineData("1.0") +
            R"(}},"_left":{"polymorphic_id":0},"_right":{"polymorphic_id":1,"ptr_wrapper":{"id":2147483650,)"
            R"("data":)" +
            makeLineData("2.0") +
            R"(}},"_top":{"polymorphic_id":0},"_diagonalDown":{"polymorphic_id":0},)"
            R"("_diagonalUp":{"polymorphic_id":0},"_vertical":{"polymorphic_id":0},)"
            R"("_horizontal":{"polymorphic_id":1,"ptr_wrapper":{"id":1}}})");
}

TEST(DOM_BordersProps, ShareALineAgainWhenTheyAreLoaded)
{
    BordersProps borders;
    borders.setBottom(makeLine(1.0F));
    borders.setTop(borders.getBottom());
    const auto loaded = fromJson<BordersProps>(toJson(borders));
    EXPECT_EQ(loaded.getBottom(), loaded.getTop());
    EXPECT_NE(loaded.getBottom(), borders.getBottom());
}

TEST(DOM_BordersProps, KeepEachEdgeApart)
{
    const BordersProps borders = makeFull();
    for (std::size_t edge = 0; edge < Getters.size(); ++edge) {
        const Line& line = (borders.*Getters[edge])();
        EXPECT_EQ(static_cast<const RegularLineProps&>(*line).getWidth(), static_cast<float>(edge + 1));
    }
    expectRoundTrip(borders);
    expectCopiesAndMoves(borders);
}

TEST(DOM_BordersProps, CompareTheirLinesByValue)
{
    EXPECT_EQ(makeFull(), makeFull());
    BordersProps other = makeFull();
    other.setDiagonalUp(makeLine(0.5F));
    EXPECT_NE(other, makeFull());
    other.setDiagonalUp(std::make_shared<ThemeLineProps>());
    EXPECT_NE(other, makeFull());
}

TEST(DOM_BordersProps, OrderByTheirEdgesInTurnWithNullFirst)
{
    expectAscending(
        {BordersProps(), with<BordersProps>([](auto& borders) { borders.setHorizontal(makeLine(1.0F)); }),
         with<BordersProps>([](auto& borders) { borders.setVertical(makeLine(1.0F)); }),
         with<BordersProps>([](auto& borders) { borders.setBottom(makeLine(1.0F)); }),
         with<BordersProps>([](auto& borders) { borders.setBottom(makeLine(2.0F)); }),
         with<BordersProps>([](auto& borders) { borders.setBottom(std::make_shared<ThemeLineProps>()); })});
}

TEST(DOM_BordersProps, TakeTheLinesOfTheOtherWhole)
{
    BordersProps target = makeFull();
    BordersProps other;
    other.setLeft(with<std::shared_ptr<RegularLineProps>>([](auto& line) {
        line = std::make_shared<RegularLineProps>();
        line->setDashStyle(DashStyle::Dot);
    }));
    override(target, other);
    EXPECT_EQ(*static_cast<const RegularLineProps*>(target.getLeft().get()),
              *static_cast<const RegularLineProps*>(other.getLeft().get()));
    EXPECT_EQ(static_cast<const RegularLineProps&>(*target.getTop()).getWidth(), 4.0F);
}

TEST(DOM_BordersProps, ShareALineThatTheyHadNotWhenTheyAreOverridden)
{
    BordersProps target;
    const BordersProps other = makeFull();
    override(target, other);
    EXPECT_EQ(target.getTop().get(), other.getTop().get());
}

TEST(DOM_BordersProps, LoseTheLinesThatTheOtherHasAlike)
{
    BordersProps target = makeFull();
    BordersProps other = makeFull();
    other.setTop(makeLine(99.0F));
    other.setLeft(nullptr);
    const Line top = target.getTop();
    exclude(target, other);
    EXPECT_EQ(target.getBottom(), nullptr);
    EXPECT_EQ(static_cast<const RegularLineProps&>(*target.getTop()).getWidth(), 4.0F);
    EXPECT_NE(target.getTop(), top);
    EXPECT_EQ(static_cast<const RegularLineProps&>(*target.getLeft()).getWidth(), 2.0F);
}

TEST(DOM_BordersProps, KeepTheLinesOnWhichBothAgreeAndDropOnesThatOneLacks)
{
    BordersProps target = makeFull();
    intersect(target, makeFull());
    EXPECT_EQ(target, makeFull());

    BordersProps other = makeFull();
    other.setVertical(nullptr);
    intersect(target, other);
    EXPECT_EQ(target, other);
}

TEST(DOM_BordersPropsDeathTest, StopTheProcessWhenTwoDifferentLinesIntersect)
{
    BordersProps target = makeFull();
    BordersProps other = makeFull();
    other.setVertical(makeLine(0.25F));
    EXPECT_DEATH(intersect(target, other),
                 R"(DOM/Properties/DOM_PropertiesResolveUtils:403: areDeeplyEqual\(target, other\))");
}

TEST(DOM_BordersProps, AreRebasedLineByLine)
{
    BordersProps target = makeFull();
    BordersProps left;
    left.setTop(makeLine(7.0F));
    rebaseProperty(target, BordersProps(), left, BordersProps());
    BordersProps expected;
    expected.setTop(makeLine(4.0F));
    EXPECT_EQ(target, expected);

    rebaseProperty(target, makeFull(), left, left);
    EXPECT_EQ(target, makeFull());
}

} // namespace
} // namespace QN::DOM::BordersPropsTest
