#include "DOM/Shapes/DOM_AnchorPosition.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::AnchorPositionTest {

using namespace Test;

TEST(AnchorPositionTest, IsAnOffsetOfZeroFromTheFirstReferenceByDefault)
{
    const AnchorHorizontalPosition horizontal;
    ASSERT_EQ(horizontal.getValue().which(), 0);
    EXPECT_EQ(boost::get<float>(horizontal.getValue()), 0.0F);
    EXPECT_EQ(static_cast<int>(horizontal.getRelativeTo()), 0);
    EXPECT_EQ(toJson(horizontal), R"({"_value":{"which":0,"data":0.0},"_relativeTo":0})");
    EXPECT_EQ(toJson(AnchorVerticalPosition()), R"({"_value":{"which":0,"data":0.0},"_relativeTo":0})");
}

TEST(AnchorPositionTest, HoldsAnOffsetOrANamedAlignment)
{
    AnchorHorizontalPosition horizontal(AnchorHorizontalAlignment::Center);
    horizontal.setRelativeTo(AnchorHorizontalRelativeTo::Page);
    EXPECT_EQ(toJson(horizontal), R"({"_value":{"which":1,"data":2},"_relativeTo":1})");
    expectPersists(horizontal);

    AnchorVerticalPosition vertical(-12.5F);
    vertical.setRelativeTo(AnchorVerticalRelativeTo::Line);
    EXPECT_EQ(toJson(vertical), R"({"_value":{"which":0,"data":-12.5},"_relativeTo":3})");
    expectPersists(vertical);
    vertical.setValue(AnchorVerticalAlignment::Bottom);
    EXPECT_EQ(boost::get<AnchorVerticalAlignment>(vertical.getValue()), AnchorVerticalAlignment::Bottom);
    expectPersists(vertical);
}

TEST(AnchorPositionTest, AnyNumberPassesThrough)
{
    AnchorVerticalPosition vertical(static_cast<AnchorVerticalAlignment>(300));
    vertical.setRelativeTo(static_cast<AnchorVerticalRelativeTo>(-1));
    expectRoundTrip(vertical);
    EXPECT_EQ(toJson(vertical), R"({"_value":{"which":1,"data":300},"_relativeTo":-1})");

    AnchorHorizontalPosition horizontal(static_cast<AnchorHorizontalAlignment>(-1));
    horizontal.setRelativeTo(static_cast<AnchorHorizontalRelativeTo>(300));
    expectRoundTrip(horizontal);
    EXPECT_EQ(toJson(horizontal), R"({"_value":{"which":1,"data":-1},"_relativeTo":300})");
}

TEST(AnchorPositionTest, AThirdKindOfValueIsRefused)
{
    EXPECT_EQ(loadError<AnchorVerticalPosition>(R"({"_value":{"which":2,"data":0},"_relativeTo":0})"),
              "Invalid 'which' selector when deserializing boost::variant");
}

TEST(AnchorPositionTest, OrdersOffsetsBeforeAlignmentsThenByReference)
{
    AnchorHorizontalPosition page;
    page.setRelativeTo(AnchorHorizontalRelativeTo::Page);
    expectAscending<AnchorHorizontalPosition>({
        AnchorHorizontalPosition(-1.0F),
        AnchorHorizontalPosition(),
        page,
        AnchorHorizontalPosition(1e30F),
        AnchorHorizontalPosition(AnchorHorizontalAlignment::Left),
        AnchorHorizontalPosition(AnchorHorizontalAlignment::Right),
    });
}

TEST(AnchorPositionTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(AnchorHorizontalPosition(AnchorHorizontalAlignment::Outside));
    expectCopiesAndMoves(AnchorVerticalPosition(2.0F));
}

} // namespace QN::DOM::AnchorPositionTest
