#include "DOM/DOM_NumberingLevel.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DOM/DOM_NumListMarker.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NumberingLevelTest {

using namespace Test;

namespace {

std::shared_ptr<const NumListMarker> makeMarker(std::string text)
{
    return sharedWith<NumListMarker>([&](NumListMarker& marker) { marker.setTextExpr(std::move(text)); });
}

NumberingLevel makeLevel(const std::string& text, float indent)
{
    return with<NumberingLevel>([&](NumberingLevel& level) {
        level.setListMarker(makeMarker(text));
        level.getSharedStyle() = share(NumberingLevelStyle(makeParaProps(indent), nullptr));
    });
}

} // namespace

TEST(NumberingLevelTest, HasNeitherMarkerNorStyleByDefault)
{
    const NumberingLevel level;
    EXPECT_EQ(level.getListMarker(), nullptr);
    EXPECT_EQ(level.getSharedStyle(), nullptr);
    EXPECT_TRUE(level.getStyle().isEmpty());
    EXPECT_EQ(&level.getStyle(), &NumberingLevel().getStyle());
    EXPECT_EQ(toJson(level), R"({"_marker":{"ptr_wrapper":{"id":0}},"_numLevelStyle":{"id":0}})");
}

TEST(NumberingLevelTest, ASetMemberIsReadBackAndPersists)
{
    const NumberingLevel level = makeLevel("%1.", 36.0F);
    EXPECT_SAME(level.getListMarker()->getTextExpr(), std::string("%1."));
    EXPECT_EQ(level.getStyle(), NumberingLevelStyle(makeParaProps(36.0F), nullptr));
    EXPECT_EQ(&level.getStyle(), &level.getSharedStyle()->get());
    expectPersists(level);
    expectCopiesAndMoves(level);
}

TEST(NumberingLevelTest, ACopySharesMarkerAndStyle)
{
    const NumberingLevel level = makeLevel("%1.", 36.0F);
    const NumberingLevel copy(level);
    EXPECT_EQ(copy.getListMarker(), level.getListMarker());
    EXPECT_EQ(copy.getSharedStyle(), level.getSharedStyle());
}

TEST(NumberingLevelTest, EqualityLooksThroughMarkerAndStyle)
{
    EXPECT_EQ(makeLevel("a", 1.0F), makeLevel("a", 1.0F));
    EXPECT_NE(makeLevel("a", 1.0F), makeLevel("b", 1.0F));
    EXPECT_NE(makeLevel("a", 1.0F), makeLevel("a", 2.0F));
    EXPECT_NE(makeLevel("a", 1.0F), NumberingLevel());
}

} // namespace QN::DOM::NumberingLevelTest
