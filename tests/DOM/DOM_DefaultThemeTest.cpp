#include "DOM/DOM_DefaultTheme.h"

#include <gtest/gtest.h>

#include <vector>

#include "DOM/DOM_ColorMap.h"
#include "DOM/DOM_Document.h"
#include "DOM/DOM_Theme.h"
#include "DOM/Properties/DOM_GradientFill.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/Properties/PaintSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::DefaultThemeTest {

using namespace Test;

namespace {

struct NamedColor {
    const Color& constant;
    int slot;
    int red;
    int green;
    int blue;
};

const std::vector<NamedColor>& getPalette()
{
    static const std::vector<NamedColor> Palette{
        {DefaultDark1Color, 4, 0x00, 0x00, 0x00},      {DefaultDark2Color, 5, 0x1F, 0x49, 0x7D},
        {DefaultLight1Color, 6, 0xFF, 0xFF, 0xFF},     {DefaultLight2Color, 7, 0xEE, 0xEC, 0xE1},
        {DefaultAccent1Color, 8, 0x4F, 0x81, 0xBD},    {DefaultAccent2Color, 9, 0xC0, 0x50, 0x4D},
        {DefaultAccent3Color, 10, 0x9B, 0xBB, 0x59},   {DefaultAccent4Color, 11, 0x80, 0x64, 0xA2},
        {DefaultAccent5Color, 12, 0x4B, 0xAC, 0xC6},   {DefaultAccent6Color, 13, 0xF7, 0x96, 0x46},
        {DefaultHyperlinkColor, 14, 0x00, 0x00, 0xFF}, {DefaultFollowedHyperlinkColor, 15, 0x80, 0x00, 0x80},
    };
    return Palette;
}

Color makeOpaque(const NamedColor& color)
{
    return makeColor(static_cast<unsigned char>(color.red), static_cast<unsigned char>(color.green),
                     static_cast<unsigned char>(color.blue), 0xFF);
}

Document makeDocument()
{
    Document document;
    setDefaultThemeIfNeeded(document);
    return document;
}

void expectSolid(const Fill& fill)
{
    SolidFill expected;
    expected.setColor(makePlaceholder());
    EXPECT_TRUE(areDeeplyEqual(fill, expected));
}

struct Stop {
    double position;
    ColorTransforms transforms;
};

/// Also that the fill has neither angle nor type.
void expectGradient(const Fill& fill, const std::vector<Stop>& stops)
{
    GradientFill expected;
    for (const Stop& stop : stops) {
        GradientStop& added = expected.getGradientStops().emplace_back();
        added.setPosition(stop.position);
        added.setColor(makePlaceholder(stop.transforms));
    }
    EXPECT_TRUE(areDeeplyEqual(fill, expected));
}

/// Also that the line has nothing but a colour.
void expectLine(const RegularLineProps& line, const ColorTransforms& transforms)
{
    RegularLineProps expected;
    expected.setColor(makePlaceholder(transforms));
    EXPECT_EQ(line, expected);
}

} // namespace

TEST(DefaultThemeTest, TheConstantsAreOpaqueLiteralColors)
{
    for (const NamedColor& color : getPalette()) {
        EXPECT_EQ(color.constant, makeOpaque(color)) << color.slot;
    }
}

TEST(DefaultThemeTest, ItsPartsAreNamed)
{
    const Document document = makeDocument();
    const Theme& theme = *document.getTheme();
    EXPECT_EQ(theme.getName(), "Office Theme");
    EXPECT_EQ(theme.getColorScheme().getName(), "Office");
    EXPECT_EQ(theme.getFontScheme().getName(), "Office");
    EXPECT_EQ(theme.getFormatScheme().getName(), "Office");
}

TEST(DefaultThemeTest, ItsColorSchemeIsThePalette)
{
    const Document document = makeDocument();
    const ColorScheme& scheme = document.getTheme()->getColorScheme();
    ColorScheme expected;
    expected.setName("Office");
    for (const NamedColor& color : getPalette()) {
        EXPECT_EQ(scheme.getColor(static_cast<ThemeColorId>(color.slot)), makeOpaque(color)) << color.slot;
        expected.setColor(static_cast<ThemeColorId>(color.slot), makeOpaque(color));
    }
    EXPECT_EQ(scheme, expected) << "there are no other slots";
}

TEST(DefaultThemeDeathTest, ItsColorSchemeLacksTheFirstFourSlots)
{
    const Document document = makeDocument();
    for (int slot = 0; slot < 4; ++slot) {
        EXPECT_DEATH(document.getTheme()->getColorScheme().getColor(static_cast<ThemeColorId>(slot)),
                     R"(DOM/DOM_ColorScheme:39: iter != _colors\.end\(\))");
    }
}

TEST(DefaultThemeTest, ItsMajorFontIsCalibriAndItsMinorFontCambria)
{
    const Document document = makeDocument();
    EXPECT_EQ(document.getTheme()->getFontScheme().getMajorFontName(), "Calibri");
    EXPECT_EQ(document.getTheme()->getFontScheme().getMinorFontName(), "Cambria");
}

TEST(DefaultThemeTest, ItsFillsAreOneSolidAndTwoGradients)
{
    const Document document = makeDocument();
    const auto fills = document.getTheme()->getFormatScheme().getFills();
    ASSERT_EQ(fills.size(), 3U);
    expectSolid(fills[0]);
    expectGradient(fills[1], {{0.0, {Tint(0.5), SaturationModulation(3.0)}},
                              {0.35, {Tint(0.37), SaturationModulation(3.0)}},
                              {1.0, {Tint(0.15), SaturationModulation(3.5)}}});
    expectGradient(fills[2], {{0.0, {Shade(0.51), SaturationModulation(1.3)}},
                              {0.8, {Shade(0.93), SaturationModulation(1.3)}},
                              {1.0, {Shade(0.94), SaturationModulation(1.35)}}});
}

TEST(DefaultThemeTest, ItsLinesHaveAColorAndNothingElse)
{
    const Document document = makeDocument();
    const auto lines = document.getTheme()->getFormatScheme().getLinePropsContainer();
    ASSERT_EQ(lines.size(), 3U);
    expectLine(lines[0], {Shade(0.95), SaturationModulation(1.05)});
    expectLine(lines[1], {});
    expectLine(lines[2], {});
}

TEST(DefaultThemeTest, ItsBackgroundFillsAreOneSolidAndTwoGradients)
{
    const Document document = makeDocument();
    const auto fills = document.getTheme()->getFormatScheme().getBackgroundFills();
    ASSERT_EQ(fills.size(), 3U);
    expectSolid(fills[0]);
    expectGradient(fills[1], {{0.0, {Tint(0.4), SaturationModulation(3.5)}},
                              {0.4, {Tint(0.45), Shade(0.99), SaturationModulation(3.5)}},
                              {1.0, {Shade(0.2), SaturationModulation(2.55)}}});
    expectGradient(fills[2], {{0.0, {Tint(0.8), SaturationModulation(3.0)}},
                              {1.0, {Shade(0.3), SaturationModulation(2.0)}}});
}

TEST(DefaultThemeTest, TheSecondStopOfTheSecondBackgroundFillHasThreeTransforms)
{
    const Document document = makeDocument();
    const auto fills = document.getTheme()->getFormatScheme().getBackgroundFills();
    const auto& gradient = dynamic_cast<const GradientFill&>(fills[1]);
    EXPECT_EQ(gradient.getGradientStops()[1].getColor().getTransforms().size(), 3U);
}

TEST(DefaultThemeTest, ItHasNoEffectsAndMakesNoColorMap)
{
    const Document document = makeDocument();
    EXPECT_TRUE(document.getTheme()->getFormatScheme().getEffects().empty());
    EXPECT_EQ(document.getColorMap(), nullptr);
}

TEST(DefaultThemeTest, AnExistingThemeEvenAnEmptyOneStaysAsItIs)
{
    Document document;
    document.setTheme(std::make_unique<Theme>());
    const Theme* const theme = document.getTheme();
    setDefaultThemeIfNeeded(document);
    EXPECT_EQ(document.getTheme(), theme);
    EXPECT_EQ(*document.getTheme(), Theme());
}

TEST(DefaultThemeTest, ASecondCallChangesNothing)
{
    Document document = makeDocument();
    const Theme* const theme = document.getTheme();
    setDefaultThemeIfNeeded(document);
    EXPECT_EQ(document.getTheme(), theme);
}

TEST(DefaultThemeTest, Persists)
{
    const Document document = makeDocument();
    expectRoundTrip(*document.getTheme());
    expectOrderDoesNotMatter(*document.getTheme());
}

} // namespace QN::DOM::DefaultThemeTest
