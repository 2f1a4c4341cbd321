#include "DOM/DOM_ColorMap.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ColorMapTest {

using namespace Test;

namespace {

ColorMap makeUsualMap()
{
    ColorMap map;
    map.setMapping(ThemeColorId::Text1, ThemeColorId::Dark1);
    map.setMapping(ThemeColorId::Text2, ThemeColorId::Dark2);
    map.setMapping(ThemeColorId::Background1, ThemeColorId::Light1);
    map.setMapping(ThemeColorId::Background2, ThemeColorId::Light2);
    return map;
}

ColorMap makeFullMap(bool isUpwards)
{
    ColorMap map;
    for (int step = 0; step < 256; ++step) {
        const int number = isUpwards ? step : 255 - step;
        map.setMapping(static_cast<ThemeColorId>(number), static_cast<ThemeColorId>(255 - number));
    }
    return map;
}

} // namespace

TEST(ColorMapTest, MapsNothingByDefault)
{
    for (int number = 0; number < 256; ++number) {
        EXPECT_FALSE(ColorMap().getMapping(static_cast<ThemeColorId>(number)));
    }
    EXPECT_EQ(toJson(ColorMap()), R"({"_map":[]})");
}

TEST(ColorMapTest, MappingsPersistAsPairsOfKeyAndValue)
{
    ColorMap map;
    map.setMapping(ThemeColorId::Text1, ThemeColorId::Dark1);
    EXPECT_EQ(toJson(map), R"({"_map":[{"key":0,"value":4}]})");
    expectPersists(map);
    expectPersists(ColorMap());
    expectRoundTrip(makeUsualMap());
    expectRoundTrip(makeFullMap(true));
    expectRoundTrip(makeFullMap(false));
}

TEST(ColorMapTest, EqualMapsGiveTheSameTextInWhateverOrderTheyWereMade)
{
    EXPECT_EQ(makeFullMap(true), makeFullMap(false));
    EXPECT_EQ(toJson(makeFullMap(true)), toJson(makeFullMap(false)));
}

TEST(ColorMapTest, SetMappingAddsAndOverwrites)
{
    ColorMap map = makeUsualMap();
    EXPECT_EQ(*map.getMapping(ThemeColorId::Text1), ThemeColorId::Dark1);
    map.setMapping(ThemeColorId::Text1, ThemeColorId::Accent6);
    EXPECT_EQ(*map.getMapping(ThemeColorId::Text1), ThemeColorId::Accent6);
    EXPECT_EQ(*map.getMapping(ThemeColorId::Background2), ThemeColorId::Light2);
    EXPECT_FALSE(map.getMapping(ThemeColorId::Accent6));
}

TEST(ColorMapTest, EqualityComparesContent)
{
    EXPECT_EQ(makeUsualMap(), makeUsualMap());
    ColorMap changed = makeUsualMap();
    changed.setMapping(ThemeColorId::Text1, ThemeColorId::Accent6);
    EXPECT_NE(changed, makeUsualMap());
    ColorMap extended = makeUsualMap();
    extended.setMapping(ThemeColorId::Accent1, ThemeColorId::Accent1);
    EXPECT_NE(extended, makeUsualMap());
    EXPECT_NE(ColorMap(), makeUsualMap());
}

TEST(ColorMapTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeUsualMap());
    static_assert(!Ordered<ColorMap>);
}

} // namespace QN::DOM::ColorMapTest
