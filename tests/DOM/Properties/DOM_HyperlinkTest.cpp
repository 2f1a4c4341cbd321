#include "DOM/Properties/DOM_Hyperlink.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::HyperlinkTest {

using namespace Test;

TEST(HyperlinkTest, IsEmptyByDefaultAndTakesAURL)
{
    EXPECT_EQ(toJson(Hyperlink()), R"({"_url":"","_anchor":"","_tooltip":""})");
    EXPECT_EQ(toJson(Hyperlink("http://a.example/")),
              R"({"_url":"http://a.example/","_anchor":"","_tooltip":""})");
}

TEST(HyperlinkTest, ASetMemberIsReadBackAndPersists)
{
    const auto link = with<Hyperlink>([](Hyperlink& l) {
        l.setURL("u");
        l.setAnchor("a");
        l.setTooltip("t");
    });
    EXPECT_EQ(link.getURL(), "u");
    EXPECT_EQ(link.getAnchor(), "a");
    EXPECT_EQ(link.getTooltip(), "t");
    EXPECT_EQ(toJson(link), R"({"_url":"u","_anchor":"a","_tooltip":"t"})");
    expectPersists(link);
    expectCopiesAndMoves(link);
}

TEST(HyperlinkTest, OrdersByURLThenAnchorThenTooltip)
{
    expectAscending<Hyperlink>({
        Hyperlink(),
        with<Hyperlink>([](Hyperlink& l) { l.setTooltip("z"); }),
        with<Hyperlink>([](Hyperlink& l) { l.setAnchor("z"); }),
        Hyperlink("a"),
        Hyperlink("b"),
    });
}

} // namespace QN::DOM::HyperlinkTest
