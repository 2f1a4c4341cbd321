#include "DOM/DOM_UserInfo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <locale>
#include <string>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"
#include "Utils/Public/PaletteColor.h"

namespace QN::DOM::UserInfoTest {
namespace {

using namespace QN::Test;

using Color = UserInfo::PaletteColor;

constexpr std::size_t ColorCount = 64;

std::array<Color, ColorCount> makeColors()
{
    std::array<Color, ColorCount> colors;
    for (std::size_t index = 0; index < ColorCount; ++index) {
        colors[index] = Color(static_cast<unsigned char>(index), 0, 0);
    }
    return colors;
}

UserInfo::Palette makePalette(const std::array<Color, ColorCount>& colors)
{
    return UserInfo::Palette(colors.data(), boost::extents[ColorCount]);
}

/// The character type of the classic locale, and the no-break space of an 8-bit encoding besides.
class LatinCharacterType : public std::ctype<char> {
public:
    LatinCharacterType() : std::ctype<char>(makeTable()) {}

private:
    static const mask* makeTable()
    {
        static std::array<mask, table_size> table;
        std::copy_n(classic_table(), table_size, table.begin());
        table[0xA0] |= space;
        return table.data();
    }
};

TEST(DOM_UserInfo, HoldsANameAndAnAddress)
{
    EXPECT_EQ(UserInfo(), UserInfo("", ""));
    UserInfo user("Jane", "jane@example.org");
    EXPECT_EQ(user.getName(), "Jane");
    EXPECT_EQ(user.getEmail(), "jane@example.org");
    user.setName("June");
    user.setEmail("june@example.org");
    EXPECT_EQ(user, UserInfo("June", "june@example.org"));
    expectCopiesAndMoves(user);
}

TEST(DOM_UserInfo, ComparesNameAndThenAddress)
{
    expectAscending(
        {UserInfo(), UserInfo("a", ""), UserInfo("a", "x"), UserInfo("a", "y"), UserInfo("b", "")});
}

TEST(DOM_UserInfo, ReadsAsNameAndAddress)
{
    EXPECT_EQ(UserInfo("Jane Roe", "jane@example.org").toString(), "Jane Roe <jane@example.org>");
    EXPECT_EQ(UserInfo("Jane Roe", "").toString(), "Jane Roe");
    EXPECT_EQ(UserInfo("", "jane@example.org").toString(), "<jane@example.org>");
    EXPECT_EQ(UserInfo().toString(), "");
}

TEST(DOM_UserInfo, IsReadFromNameAndAddress)
{
    EXPECT_EQ(UserInfo::fromString("Jane Roe <jane@example.org>"), UserInfo("Jane Roe", "jane@example.org"));
    EXPECT_EQ(UserInfo::fromString("<jane@example.org>"), UserInfo("", "jane@example.org"));
    EXPECT_EQ(UserInfo::fromString("Jane\t<jane@example.org>"), UserInfo("Jane", "jane@example.org"));
    EXPECT_EQ(UserInfo::fromString("Jane  <jane@example.org>"), UserInfo("Jane ", "jane@example.org"));
    EXPECT_EQ(UserInfo::fromString(""), UserInfo());
}

TEST(DOM_UserInfo, ATextWithoutAnAddressIsANameAsAWhole)
{
    for (const std::string text :
         {"Jane Roe", "Jane <example.org>", "Jane<jane@example.org>", "Jane <@example.org>", "Jane <jane@>",
          "Jane <jane@example.org> ", "Jane <jane@example.org", " "}) {
        EXPECT_EQ(UserInfo::fromString(text), UserInfo(text, "")) << text;
    }
}

TEST(DOM_UserInfo, TheFirstBracketBehindAWhiteSpaceBeginsTheAddress)
{
    EXPECT_EQ(UserInfo::fromString("A <b <c@d>"), UserInfo("A", "b <c@d"));
    EXPECT_EQ(UserInfo::fromString("A <b@c> <d@e>"), UserInfo("A", "b@c> <d@e"));
    EXPECT_EQ(UserInfo::fromString(UserInfo("A <b> C", "d@e").toString()), UserInfo("A", "b> C <d@e"));
}

TEST(DOM_UserInfo, AnAddressMayEndALineOfTheText)
{
    EXPECT_EQ(UserInfo::fromString("Jane\n<jane@example.org>\nRoe"), UserInfo("Jane", "jane@example.org"));
}

TEST(DOM_UserInfo, WhatItReadsAsIsReadBack)
{
    for (const UserInfo& user :
         {UserInfo(), UserInfo("Jane", ""), UserInfo("", "a@b"), UserInfo("Jane<of>Roe", "a@b")}) {
        EXPECT_EQ(UserInfo::fromString(user.toString()), user);
    }
}

TEST(DOM_UserInfo, ATextThatIsTooCostlyToSearchIsANameAsAWhole)
{
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += " <@@";
    }
    const UserInfo user = UserInfo::fromString(text);
    EXPECT_EQ(user.getName(), text);
    EXPECT_EQ(user.getEmail(), "");
}

TEST(DOM_UserInfo, ATextIsANameAsAWholeWhereTheSearchForItsAddressGivesUp)
{
    const std::string text = "Jane <a@b>\n";
    EXPECT_EQ(UserInfo::fromString(text + std::string(1000, '@')), UserInfo("Jane", "a@b"));
    const std::string costly = text + std::string(200000, '@');
    const UserInfo user = UserInfo::fromString(costly);
    EXPECT_TRUE(user.getName() == costly);
    EXPECT_EQ(user.getEmail(), "");
}

/// In a process of its own, in which no text was searched before.
TEST(DOM_UserInfoDeathTest, TheGlobalLocaleDoesNotSplitACharacter)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto searchInAnotherLocale = [] {
        const std::locale locale(std::locale::classic(), new LatinCharacterType);
        std::locale::global(locale);
        const std::string text = "Voil\xC3\xA0<a@b>";
        const bool isName = UserInfo::fromString(text) == UserInfo(text, "");
        const bool isSplitAtASpace = UserInfo::fromString("Jane <a@b>") == UserInfo("Jane", "a@b");
        std::exit(std::isspace('\xA0', locale) && isName && isSplitAtASpace ? 0 : 1);
    };
    EXPECT_EXIT(searchInAnotherLocale(), ::testing::ExitedWithCode(0), "");
}

TEST(DOM_UserInfo, TheAddressDecidesTheColour)
{
    const auto colors = makeColors();
    const auto palette = makePalette(colors);
    EXPECT_EQ(UserInfo("Jane", "jane@example.org").getPaletteColor(palette),
              getPaletteColorForString("jane@example.org", palette));
    EXPECT_EQ(UserInfo("Jane", "").getPaletteColor(palette), getPaletteColorForString("Jane", palette));
    EXPECT_EQ(UserInfo("", "").getPaletteColor(palette), getPaletteColorForString("", palette));
}

TEST(DOM_UserInfo, Persists)
{
    EXPECT_EQ(toJson(UserInfo("a", "b")), R"({"_name":"a","_email":"b"})");
    expectPersists(UserInfo());
    expectPersists(UserInfo("a", "b"));
}

} // namespace
} // namespace QN::DOM::UserInfoTest
