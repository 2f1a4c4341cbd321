#include "Utils/Public/PaletteColor.h"

#include <boost/multi_array.hpp>
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

namespace QN::PaletteColorTest {

namespace {

using Color = cinder::ColorT<unsigned char>;
using Palette = boost::const_multi_array_ref<Color, 1>;
using QN::getPaletteColorForString;

constexpr std::array<Color, 10> Colors{Color{0, 0, 0}, Color{1, 0, 0}, Color{2, 0, 0}, Color{3, 0, 0},
                                       Color{4, 0, 0}, Color{5, 0, 0}, Color{6, 0, 0}, Color{7, 0, 0},
                                       Color{8, 0, 0}, Color{9, 0, 0}};

Palette makePalette(std::size_t size)
{
    return Palette(Colors.data(), boost::extents[static_cast<Palette::index>(size)]);
}

// The hashes of the published vectors: 14695981039346656037, 12638187200555641996 and 9625390261332436968.
TEST(PaletteColorTest, PicksByTheFNVHashOfTheString)
{
    EXPECT_EQ(getPaletteColorForString("", makePalette(10)), Colors[7]);
    EXPECT_EQ(getPaletteColorForString("a", makePalette(10)), Colors[6]);
    EXPECT_EQ(getPaletteColorForString("foobar", makePalette(10)), Colors[8]);
}

TEST(PaletteColorTest, SameStringAndPaletteGiveTheSameColor)
{
    for (const char* const name : {"", "Ada", "ada@example.org", "\xd0\x90\xd0\xb4\xd0\xb0"}) {
        EXPECT_EQ(getPaletteColorForString(name, makePalette(7)),
                  getPaletteColorForString(std::string(name), makePalette(7)));
    }
}

TEST(PaletteColorTest, PaletteOfOneColorGivesThatColor)
{
    EXPECT_EQ(getPaletteColorForString("Ada", makePalette(1)), Colors[0]);
}

TEST(PaletteColorTest, StringsReachAllColors)
{
    std::set<Color> picked;
    for (int number = 0; number < 200; ++number) {
        picked.insert(getPaletteColorForString("user" + std::to_string(number), makePalette(10)));
    }
    EXPECT_EQ(picked.size(), 10U);
}

TEST(PaletteColorTest, WholeStringCounts)
{
    std::set<Color> picked;
    for (int number = 0; number < 50; ++number) {
        picked.insert(
            getPaletteColorForString(std::string("user\0", 5) + std::to_string(number), makePalette(10)));
    }
    EXPECT_GT(picked.size(), 1U);
}

TEST(PaletteColorDeathTest, EmptyPaletteBreaksTheContract)
{
    EXPECT_DEATH(getPaletteColorForString("Ada", makePalette(0)),
                 "Utils/Public/PaletteColor.cpp:[0-9]+: !palette.empty\\(\\)\n");
}

} // namespace

} // namespace QN::PaletteColorTest
