#include "DOM/Tables/Properties/DOM_BordersUtils.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"

namespace QN::DOM::BordersUtilsTest {
namespace {

using namespace QN::Test;
using Line = BordersProps::Line;

Line makeStyledLine(DashStyle style, boost::optional<float> width = boost::none,
                    boost::optional<Color> color = boost::none)
{
    return sharedWith<RegularLineProps>([&](auto& line) {
        line.setDashStyle(style);
        line.setWidth(width);
        line.setColor(color);
    });
}

const Line Chosen = makeStyledLine(DashStyle::Dash, 2.0F);

/// Borders of which all edges have the line, by a mask from the lowest bit: bottom, left, right, top, down, up, vertical,
/// horizontal; all others state "no border".
BordersProps makeExpected(unsigned mask)
{
    const Line none = makeStyledLine(DashStyle::None);
    const auto lineOf = [&](unsigned bit) { return (mask >> bit & 1U) != 0 ? Chosen : none; };
    BordersProps borders;
    borders.setBottom(lineOf(0));
    borders.setLeft(lineOf(1));
    borders.setRight(lineOf(2));
    borders.setTop(lineOf(3));
    borders.setDiagonalDown(lineOf(4));
    borders.setDiagonalUp(lineOf(5));
    borders.setVertical(lineOf(6));
    borders.setHorizontal(lineOf(7));
    return borders;
}

TEST(DOM_BordersUtils, SetThePerimeterAndNothingElse)
{
    BordersProps borders;
    borders.setVertical(makeLine(9.0F));
    setBorderPerimeter(borders, Chosen);
    BordersProps expected;
    expected.setBottom(Chosen);
    expected.setLeft(Chosen);
    expected.setRight(Chosen);
    expected.setTop(Chosen);
    expected.setVertical(makeLine(9.0F));
    EXPECT_EQ(borders, expected);
}

TEST(DOM_BordersUtils, SetThePerimeterAndResetTheRest)
{
    BordersProps borders;
    borders.setVertical(makeLine(9.0F));
    setBorderPerimeterAndResetOther(borders, Chosen);
    EXPECT_EQ(borders, makeExpected(0b1111));
}

TEST(DOM_BordersUtils, SetOneEdgeAndLeaveNoneUnset)
{
    BordersProps borders;
    setBorderBottomAndResetOther(borders, Chosen);
    EXPECT_EQ(borders, makeExpected(0b0001));
    setBorderLeftAndResetOther(borders, Chosen);
    EXPECT_EQ(borders, makeExpected(0b0010));
    setBorderRightAndResetOther(borders, Chosen);
    EXPECT_EQ(borders, makeExpected(0b0100));
    setBorderTopAndResetOther(borders, Chosen);
    EXPECT_EQ(borders, makeExpected(0b1000));
}

TEST(DOM_BordersUtils, TakeALineOutOfTheBordersThatTheyReset)
{
    BordersProps borders;
    borders.setTop(Chosen);
    setBorderBottomAndResetOther(borders, borders.getTop());
    EXPECT_EQ(borders, makeExpected(0b0001));
    setBorderPerimeterAndResetOther(borders, borders.getBottom());
    EXPECT_EQ(borders, makeExpected(0b1111));
    borders.setBottom(makeLine(1.0F));
    setBorderPerimeter(borders, borders.getTop());
    EXPECT_EQ(borders.getBottom(), Chosen);
}

void expectWins(const Line& winner, const Line& loser)
{
    EXPECT_EQ(getPreferedBorder(winner, loser), winner);
    EXPECT_EQ(getPreferedBorder(loser, winner), winner);
}

void expectFirstWins(const Line& one, const Line& other)
{
    EXPECT_EQ(getPreferedBorder(one, other), one);
    EXPECT_EQ(getPreferedBorder(other, one), other);
}

TEST(DOM_GetPreferedBorder, IsNullOnlyForTwoNulls)
{
    EXPECT_EQ(getPreferedBorder(nullptr, nullptr), nullptr);
    expectWins(makeStyledLine(DashStyle::None), nullptr);
    expectWins(makeLine(1.0F), nullptr);
}

TEST(DOM_GetPreferedBorder, IsTheLineWithADashStyle)
{
    expectWins(makeStyledLine(DashStyle::None), makeLine(100.0F));
    expectFirstWins(makeLine(1.0F), makeLine(2.0F));
}

TEST(DOM_GetPreferedBorder, TakesAReferenceToTheThemeForALineWithoutDashStyle)
{
    const Line theme = std::make_shared<ThemeLineProps>();
    expectWins(makeStyledLine(DashStyle::None), theme);
    expectFirstWins(theme, makeLine(1.0F));
}

TEST(DOM_GetPreferedBorder, IsTheLineThatIsToBeSeen)
{
    expectWins(makeStyledLine(DashStyle::Solid), makeStyledLine(DashStyle::None, 5.0F));
    expectFirstWins(makeStyledLine(DashStyle::None, 1.0F), makeStyledLine(DashStyle::None, 2.0F));
}

TEST(DOM_GetPreferedBorder, IsTheWiderLine)
{
    const Color black = makeColor(0, 0, 0, 255);
    expectWins(makeStyledLine(DashStyle::Dot, 2.0F), makeStyledLine(DashStyle::Solid, 1.0F, black));
    expectWins(makeStyledLine(DashStyle::Dot, 0.5F), makeStyledLine(DashStyle::Solid, boost::none, black));
    expectFirstWins(makeStyledLine(DashStyle::Dot, 0.0F), makeStyledLine(DashStyle::Solid));
}

TEST(DOM_GetPreferedBorder, IsTheColouredLineAmongEquallyWideOnes)
{
    expectWins(makeStyledLine(DashStyle::Dot, 1.0F, makeColor(255, 255, 255, 255)),
               makeStyledLine(DashStyle::Dot, 1.0F));
    expectWins(makeStyledLine(DashStyle::Dot, 1.0F, makeColor(255, 255, 255, 255)),
               makeStyledLine(DashStyle::Dot, 1.0F, makeSlotColor(ThemeColorId::Accent1)));
    expectFirstWins(makeStyledLine(DashStyle::Dot, 1.0F, makePlaceholder()),
                    makeStyledLine(DashStyle::Solid, 1.0F));
}

TEST(DOM_GetPreferedBorder, IsTheDarkerLineAmongEquallyWideOnes)
{
    const auto colored = [](unsigned char red, unsigned char green, unsigned char blue) {
        return makeStyledLine(DashStyle::Solid, 1.0F, makeColor(red, green, blue, 255));
    };
    expectWins(colored(0, 0, 0), colored(1, 0, 0));
    expectWins(colored(0, 0, 200), colored(0, 200, 0));
    expectWins(colored(200, 0, 0), colored(0, 200, 0));
    expectWins(colored(0, 0, 200), colored(200, 0, 0));
    expectFirstWins(colored(1, 2, 3), makeStyledLine(DashStyle::Dot, 1.0F, makeColor(1, 2, 3, 0)));
}

} // namespace
} // namespace QN::DOM::BordersUtilsTest
