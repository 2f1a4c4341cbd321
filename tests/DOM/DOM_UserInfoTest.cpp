#include "DOM/DOM_UserInfo.h"

#include <gtest/gtest.h>

#include <array>

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
