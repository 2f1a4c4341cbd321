#include "DOM/DOM_Theme.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ThemeTest {

using namespace Test;

namespace {

Theme makeTheme()
{
    ColorScheme colors;
    colors.setColor(ThemeColorId::Dark1, Color());
    FontScheme fonts;
    fonts.setMajorFontName("major");
    FormatScheme formats;
    formats.getFills().push_back(std::make_unique<NoFill>());
    Theme theme;
    theme.setName("name");
    theme.setColorScheme(colors);
    theme.setFontScheme(fonts);
    theme.setFormatScheme(formats);
    return theme;
}

} // namespace

TEST(ThemeTest, PersistsItsMembersInOrder)
{
    EXPECT_EQ(
        toJson(Theme()),
        R"({"_name":"","_colorScheme":{"_name":"","_colors":[]},)"
        R"("_fontScheme":{"_name":"","_majorFontName":"","_minorFontName":""},)"
        R"("_formatScheme":{"_name":"","_fills":[],"_lineProps":[],"_effects":[],"_backgroundFills":[]}})");
    expectPersists(Theme());
    expectPersists(makeTheme());
}

TEST(ThemeTest, AccessorsGiveWhatWasSet)
{
    const Theme theme = makeTheme();
    EXPECT_EQ(theme.getName(), "name");
    EXPECT_EQ(theme.getColorScheme().getColor(ThemeColorId::Dark1), Color());
    EXPECT_EQ(theme.getFontScheme().getMajorFontName(), "major");
    EXPECT_EQ(theme.getFormatScheme().getFills().size(), 1U);
}

TEST(ThemeTest, EachMemberTakesPartInEquality)
{
    EXPECT_EQ(makeTheme(), makeTheme());
    const auto differs = [](auto change) {
        Theme theme = makeTheme();
        change(theme);
        return theme != makeTheme();
    };
    EXPECT_TRUE(differs([](Theme& theme) { theme.setName("other"); }));
    EXPECT_TRUE(differs([](Theme& theme) { theme.setColorScheme({}); }));
    EXPECT_TRUE(differs([](Theme& theme) { theme.setFontScheme({}); }));
    EXPECT_TRUE(differs([](Theme& theme) { theme.setFormatScheme({}); }));
}

TEST(ThemeTest, ACopySharesNothing)
{
    const Theme source = makeTheme();
    expectCopiesAndMoves(source);
    Theme copy(source);
    EXPECT_NE(&copy.getFormatScheme().getFills()[0], &source.getFormatScheme().getFills()[0]);
    copy.setName("other");
    copy.setColorScheme({});
    copy.setFontScheme({});
    copy.setFormatScheme({});
    EXPECT_EQ(source, makeTheme());
    static_assert(!Ordered<Theme>);
}

} // namespace QN::DOM::ThemeTest
