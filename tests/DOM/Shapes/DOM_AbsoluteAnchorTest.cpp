#include "DOM/Shapes/DOM_AbsoluteAnchor.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::AbsoluteAnchorTest {

using namespace Test;

namespace {

AbsoluteAnchor makeAnchor(float x, float y)
{
    return AbsoluteAnchor(cinder::Vec2<float>(x, y));
}

} // namespace

TEST(AbsoluteAnchorTest, StandsAtTheOriginByDefault)
{
    EXPECT_EQ(AbsoluteAnchor().getOffset(), cinder::Vec2<float>(0.0F, 0.0F));
    EXPECT_EQ(toJson(AbsoluteAnchor()), R"({"_offset":{"x":0.0,"y":0.0}})");
}

TEST(AbsoluteAnchorTest, AnyOffsetPassesThrough)
{
    const AbsoluteAnchor anchor = makeAnchor(-1.5F, 1e30F);
    EXPECT_EQ(anchor.getOffset(), cinder::Vec2<float>(-1.5F, 1e30F));
    expectPersists(anchor);
}

TEST(AbsoluteAnchorTest, TheSetterReplacesTheOffset)
{
    AbsoluteAnchor anchor;
    anchor.setOffset({1.0F, 2.0F});
    EXPECT_EQ(anchor, makeAnchor(1.0F, 2.0F));
}

TEST(AbsoluteAnchorTest, OrdersByXThenByY)
{
    expectAscending<AbsoluteAnchor>(
        {makeAnchor(-1.0F, 5.0F), AbsoluteAnchor(), makeAnchor(0.0F, 1.0F), makeAnchor(1.0F, -1.0F)});
}

TEST(AbsoluteAnchorTest, ANanIsNotLessAndLastInPools)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(makeAnchor(nan, 0.0F) < makeAnchor(0.0F, 1.0F));
    EXPECT_FALSE(makeAnchor(0.0F, 0.0F) < makeAnchor(nan, 1.0F));
    EXPECT_NE(makeAnchor(nan, 0.0F), makeAnchor(nan, 0.0F));
    EXPECT_TRUE(makeAnchor(9.0F, 0.0F).compare(makeAnchor(nan, 0.0F), NanOrder::Last) < 0);
    EXPECT_TRUE(makeAnchor(nan, 0.0F).compare(makeAnchor(nan, 0.0F), NanOrder::Last) == 0);
}

TEST(AbsoluteAnchorTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<AbsoluteAnchor>);
    expectCopiesAndMoves(makeAnchor(1.0F, 2.0F));
}

} // namespace QN::DOM::AbsoluteAnchorTest
