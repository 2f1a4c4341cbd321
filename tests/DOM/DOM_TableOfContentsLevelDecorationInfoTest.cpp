#include "DOM/DOM_TableOfContentsLevelDecorationInfo.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TableOfContentsLevelDecorationInfoTest {
namespace {

using namespace QN::Test;

using Decoration = TableOfContentsLevelDecorationInfo;

TEST(DOM_TableOfContentsLevelDecorationInfo, ShowsHyphensAndPageNumbersByDefault)
{
    const Decoration decoration;
    EXPECT_EQ(decoration.getLevelStyleUUID(), UUID());
    EXPECT_EQ(decoration.getLeader(), static_cast<TabStopLeader>(2));
    EXPECT_TRUE(decoration.getShowPageNumbers());
    EXPECT_EQ(toJson(decoration),
              R"({"_levelStyleUUID":)" + makeUUIDJson('0') + R"(,"_leader":2,"_showPageNumbers":true})");
}

TEST(DOM_TableOfContentsLevelDecorationInfo, HoldsWhatIsSet)
{
    Decoration decoration;
    decoration.setLevelStyleUUID(makeUUID('1'));
    decoration.setLeader(TabStopLeader::Dot);
    decoration.setShowPageNumbers(false);
    EXPECT_EQ(decoration, Decoration(makeUUID('1'), TabStopLeader::Dot, false));
    expectCopiesAndMoves(decoration);
}

TEST(DOM_TableOfContentsLevelDecorationInfo, ComparesAllMembers)
{
    const Decoration decoration(makeUUID('1'), TabStopLeader::Dot, false);
    EXPECT_NE(decoration, Decoration(makeUUID('2'), TabStopLeader::Dot, false));
    EXPECT_NE(decoration, Decoration(makeUUID('1'), TabStopLeader::None, false));
    EXPECT_NE(decoration, Decoration(makeUUID('1'), TabStopLeader::Dot, true));
}

TEST(DOM_TableOfContentsLevelDecorationInfo, Persists)
{
    expectPersists(Decoration());
    expectPersists(Decoration(makeUUID('1'), static_cast<TabStopLeader>(99), false));
}

TEST(DOM_TableOfContentsLevelDecorationInfo, TheDefaultOfALevelLastsAsLongAsTheProcess)
{
    const Decoration& decoration = getDefaultTableOfContentsLevelStyleInfo();
    EXPECT_EQ(decoration, Decoration(UUID(), static_cast<TabStopLeader>(2), true));
    EXPECT_EQ(&decoration, &getDefaultTableOfContentsLevelStyleInfo());
}

} // namespace
} // namespace QN::DOM::TableOfContentsLevelDecorationInfoTest
