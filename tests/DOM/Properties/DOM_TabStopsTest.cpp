#include "DOM/Properties/DOM_TabStops.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "DOM/Properties/StyleSamples.h"
#include "Support/RoundTrip.h"
#include "Utils/Public/ClassScheme/Ordering.h"

namespace QN::DOM::TabStopsTest {

using namespace Test;

namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinity = std::numeric_limits<float>::infinity();

} // namespace

TEST(TabStopsTest, PositionsAscendWithNaNLast)
{
    TabStops stops;
    for (const float position : {3.0F, NaN, -1.0F, Infinity, 0.0F}) {
        stops[position];
    }
    std::vector<float> positions;
    for (const auto& stop : stops) {
        positions.push_back(stop.first);
    }
    ASSERT_EQ(positions.size(), 5U);
    EXPECT_TRUE(std::isnan(positions.back()));
    positions.pop_back();
    EXPECT_EQ(positions, (std::vector<float>{-1.0F, 0.0F, 3.0F, Infinity}));
}

TEST(TabStopsTest, EveryNaNIsOnePosition)
{
    TabStops stops;
    stops[NaN].setLeader(TabStopLeader::Dot);
    stops[-NaN].setLeader(TabStopLeader::Heavy);
    ASSERT_EQ(stops.size(), 1U);
    EXPECT_EQ(stops.begin()->second.getLeader(), TabStopLeader::Heavy);
    EXPECT_TRUE(stops.find(NaN) != stops.end());
}

TEST(TabStopsTest, BothZerosAreOnePosition)
{
    TabStops stops;
    stops[0.0F];
    stops[-0.0F];
    EXPECT_EQ(stops.size(), 1U);
}

TEST(TabStopsTest, TheOrderOfPositionsIsAStrictWeakOne)
{
    const std::vector<float> values{-Infinity, -1.0F, -0.0F, 0.0F, 2.5F, Infinity, NaN, -NaN};
    const TabPositionLess less;
    const auto areEquivalent = [&](float a, float b) { return !less(a, b) && !less(b, a); };
    for (const float a : values) {
        EXPECT_FALSE(less(a, a));
        for (const float b : values) {
            EXPECT_FALSE(less(a, b) && less(b, a));
            for (const float c : values) {
                EXPECT_TRUE(!(less(a, b) && less(b, c)) || less(a, c)) << a << b << c;
                EXPECT_TRUE(!(areEquivalent(a, b) && areEquivalent(b, c)) || areEquivalent(a, c));
            }
        }
    }
}

TEST(TabStopsTest, MapsWithANaNPositionAreUnequalAndYetOrderAlike)
{
    TabStops stops;
    stops[NaN];
    EXPECT_FALSE(areMembersDeeplyEqual(stops, stops));
    EXPECT_TRUE(compareDeeply(stops, stops, NanOrder::Last) == 0);
}

TEST(TabStopsTest, ANaNPositionSurvivesAFile)
{
    TabStops stops;
    stops[NaN].setLeader(TabStopLeader::Dot);
    stops[1.0F];
    const auto loaded = fromJson<TabStops>(toJson(stops));
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded.begin()->first, 1.0F);
    ASSERT_TRUE(loaded.find(NaN) != loaded.end());
    EXPECT_EQ(loaded.find(NaN)->second.getLeader(), TabStopLeader::Dot);
    EXPECT_EQ(toJson(loaded), toJson(stops));
}

TEST(TabStopsTest, OfTwoEntriesAtOnePositionInAFileTheFirstStays)
{
    const auto entry = [](int leader) {
        return R"({"key":5.0,"value":{"_type":6,"_tabStopChar":{"hasValue":false},"_leader":)" +
               std::to_string(leader) + R"(,"_leaderChar":{"hasValue":false}}})";
    };
    const auto stops = fromJson<TabStops>("{\"object\":[" + entry(1) + "," + entry(2) + "]}");
    ASSERT_EQ(stops.size(), 1U);
    EXPECT_EQ(stops.begin()->second.getLeader(), TabStopLeader::Dot);
}

} // namespace QN::DOM::TabStopsTest
