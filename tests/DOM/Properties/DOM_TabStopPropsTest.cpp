#include "DOM/Properties/DOM_TabStopProps.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TabStopPropsTest {

using namespace Test;

static_assert(sizeof(TabStopType) == 4);
static_assert(sizeof(TabStopLeader) == 4);

TEST(TabStopPropsTest, ANewOneHasTheTypeSixAndNotZero)
{
    const TabStopProps props;
    EXPECT_EQ(static_cast<int>(props.getType()), 6);
    EXPECT_EQ(static_cast<int>(props.getLeader()), 0);
    EXPECT_FALSE(props.getTabStopChar());
    EXPECT_FALSE(props.getLeaderChar());
    EXPECT_EQ(toJson(props), R"({"_type":6,"_tabStopChar":{"hasValue":false},"_leader":0,)"
                             R"("_leaderChar":{"hasValue":false}})");
}

TEST(TabStopPropsTest, ATypeOfZeroFromAFileDiffersFromANewOne)
{
    const auto props = fromJson<TabStopProps>(R"({"_type":0,"_tabStopChar":{"hasValue":false},"_leader":0,)"
                                              R"("_leaderChar":{"hasValue":false}})");
    EXPECT_NE(props, TabStopProps());
    EXPECT_EQ(props.getType(), TabStopType::Left);
}

TEST(TabStopPropsTest, ASetMemberIsReadBackAndPersists)
{
    const auto props = with<TabStopProps>([](TabStopProps& p) {
        p.setType(static_cast<TabStopType>(2000000000));
        p.setTabStopChar(std::string("\xE2\x80\xA6"));
        p.setLeader(TabStopLeader::Underscore);
        p.setLeaderChar(std::string());
    });
    EXPECT_EQ(toJson(props),
              "{\"_type\":2000000000,\"_tabStopChar\":{\"hasValue\":true,\"value\":\"\xE2\x80\xA6\"},"
              "\"_leader\":3,\"_leaderChar\":{\"hasValue\":true,\"value\":\"\"}}");
    EXPECT_SAME(props.getTabStopChar(), std::string("\xE2\x80\xA6"));
    EXPECT_SAME(props.getLeaderChar(), std::string());
    EXPECT_EQ(props.getLeader(), TabStopLeader::Underscore);
    expectPersists(props);
    expectCopiesAndMoves(props);
}

TEST(TabStopPropsTest, OrdersByTypeThenLeaderThenTheTwoCharactersByBytes)
{
    expectAscending<TabStopProps>({
        with<TabStopProps>([](TabStopProps& p) {
            p.setType(TabStopType::Left);
            p.setLeader(TabStopLeader::Heavy);
        }),
        TabStopProps(),
        with<TabStopProps>([](TabStopProps& p) { p.setLeaderChar(std::string()); }),
        with<TabStopProps>([](TabStopProps& p) { p.setLeaderChar(std::string("z")); }),
        with<TabStopProps>([](TabStopProps& p) { p.setLeaderChar(std::string("\x80")); }),
        with<TabStopProps>([](TabStopProps& p) { p.setTabStopChar(std::string()); }),
        with<TabStopProps>([](TabStopProps& p) { p.setTabStopChar(std::string("a")); }),
        with<TabStopProps>([](TabStopProps& p) {
            p.setTabStopChar(std::string("a"));
            p.setLeaderChar(std::string("a"));
        }),
        with<TabStopProps>([](TabStopProps& p) { p.setLeader(TabStopLeader::Dot); }),
        with<TabStopProps>([](TabStopProps& p) { p.setType(static_cast<TabStopType>(7)); }),
    });
}

} // namespace QN::DOM::TabStopPropsTest
