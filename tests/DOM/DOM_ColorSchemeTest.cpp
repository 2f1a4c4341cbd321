#include "DOM/DOM_ColorScheme.h"

#include <gtest/gtest.h>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ColorSchemeTest {

using namespace Test;

namespace {

ColorScheme makeScheme(std::initializer_list<ThemeColorId> slots)
{
    ColorScheme scheme;
    scheme.setName("name");
    for (const ThemeColorId slot : slots) {
        scheme.setColor(slot, Color(slot, {HueOffset(static_cast<int>(slot))}));
    }
    return scheme;
}

/// All numbers a slot can have, upwards or downwards.
ColorScheme makeFullScheme(bool isUpwards)
{
    ColorScheme scheme;
    for (int step = 0; step < 256; ++step) {
        const auto slot = static_cast<ThemeColorId>(isUpwards ? step : 255 - step);
        scheme.setColor(slot, makeSlotColor(slot));
    }
    return scheme;
}

} // namespace

TEST(ColorSchemeTest, HasNeitherNameNorColorsByDefault)
{
    EXPECT_EQ(ColorScheme().getName(), "");
    EXPECT_EQ(toJson(ColorScheme()), R"({"_name":"","_colors":[]})");
}

TEST(ColorSchemeTest, ColorsPersistAsPairsOfKeyAndValue)
{
    ColorScheme scheme;
    scheme.setName("Office");
    scheme.setColor(ThemeColorId::Accent1, makeColor(1, 2, 3, 4));
    EXPECT_EQ(toJson(scheme),
              R"({"_name":"Office","_colors":[{"key":8,"value":{"_value":{"which":0,)"
              R"("data":{"value0":1,"value1":2,"value2":3,"value3":4}},"_transforms":[]}}]})");
    expectPersists(scheme);
    expectPersists(ColorScheme());
}

TEST(ColorSchemeTest, ASchemeOfManySlotsPersists)
{
    expectRoundTrip(makeScheme({ThemeColorId::Dark1, ThemeColorId::Accent3, ThemeColorId::Light2,
                                ThemeColorId::Hyperlink, ThemeColorId::Text1}));
    expectRoundTrip(makeFullScheme(true));
    expectRoundTrip(makeFullScheme(false));
}

TEST(ColorSchemeTest, EqualSchemesGiveTheSameTextInWhateverOrderTheyWereMade)
{
    EXPECT_EQ(makeFullScheme(true), makeFullScheme(false));
    EXPECT_EQ(toJson(makeFullScheme(true)), toJson(makeFullScheme(false)));
}

TEST(ColorSchemeTest, OfTwoEntriesForOneSlotTheFirstIsLoaded)
{
    const std::string dark = R"({"key":4,"value":{"_value":{"which":1,"data":5},"_transforms":[]}})";
    const std::string light = R"({"key":4,"value":{"_value":{"which":1,"data":6},"_transforms":[]}})";
    const auto scheme = fromJson<ColorScheme>(R"({"_name":"","_colors":[)" + dark + "," + light + "]}");
    EXPECT_EQ(scheme.getColor(ThemeColorId::Dark1), makeSlotColor(ThemeColorId::Dark2));
}

TEST(ColorSchemeTest, ASlotThatIsSetTwiceKeepsTheLaterColor)
{
    ColorScheme scheme;
    scheme.setColor(ThemeColorId::Accent1, makeColor(1, 2, 3, 4));
    scheme.setColor(ThemeColorId::Accent1, makeColor(5, 6, 7, 8));
    EXPECT_EQ(scheme.getColor(ThemeColorId::Accent1), makeColor(5, 6, 7, 8));
}

TEST(ColorSchemeDeathTest, ASlotThatIsNotSetBreaksTheContract)
{
    const ColorScheme scheme = makeScheme({ThemeColorId::Dark1});
    EXPECT_DEATH(scheme.getColor(ThemeColorId::Dark2), R"(DOM/DOM_ColorScheme:39: iter != _colors\.end\(\))");
    EXPECT_DEATH(ColorScheme().getColor(ThemeColorId::Dark1),
                 R"(DOM/DOM_ColorScheme:39: iter != _colors\.end\(\))");
}

TEST(ColorSchemeTest, EqualityComparesNameAndContent)
{
    const ColorScheme scheme = makeScheme({ThemeColorId::Dark1, ThemeColorId::Dark2});
    EXPECT_EQ(scheme, makeScheme({ThemeColorId::Dark2, ThemeColorId::Dark1}));
    EXPECT_NE(scheme, makeScheme({ThemeColorId::Dark1}));
    EXPECT_NE(scheme, makeScheme({ThemeColorId::Dark1, ThemeColorId::Light1}));
    ColorScheme renamed(scheme);
    renamed.setName("other");
    EXPECT_NE(scheme, renamed);
    ColorScheme recolored(scheme);
    recolored.setColor(ThemeColorId::Dark1, Color());
    EXPECT_NE(scheme, recolored);
}

TEST(ColorSchemeTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeScheme({ThemeColorId::Dark1, ThemeColorId::Dark2}));
    static_assert(!Ordered<ColorScheme>);
}

} // namespace QN::DOM::ColorSchemeTest
