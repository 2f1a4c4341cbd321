#include "DOM/Properties/DOM_ShapeStyle.h"

#include <gtest/gtest.h>

#include <memory>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_ShapeProps.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ShapeStyleTest {

using namespace Test;

namespace {

ShapeStyle withExtent(float width)
{
    return with<ShapeStyle>([&](ShapeStyle& s) {
        s.setShapeProps(
            sharedWith<ShapeProps>([&](ShapeProps& p) { p.setExtent(Size2D<float>(width, 1.0F)); }));
    });
}

} // namespace

TEST(ShapeStyleTest, SaysNothingByDefault)
{
    const ShapeStyle style;
    EXPECT_EQ(style.getShapeProps(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_TRUE(style.isEmpty());
    EXPECT_EQ(toJson(style), R"({"_shapeProps":{"ptr_wrapper":{"id":0}},)"
                             R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TEST(ShapeStyleTest, EitherMemberMakesItNonEmptyAndPersists)
{
    EXPECT_FALSE(withExtent(2.0F).isEmpty());
    EXPECT_FALSE(withParent<ShapeStyle>(SomeUUID).isEmpty());
    EXPECT_EQ(withParent<ShapeStyle>(SomeUUID).getParentUUID(), SomeUUID);
    expectPersists(withExtent(2.0F));
    expectPersists(withParent<ShapeStyle>(SomeUUID));
    expectCopiesAndMoves(withExtent(2.0F));
}

TEST(ShapeStyleTest, OrdersByThePropertiesAndThenByTheParent)
{
    expectAscending<ShapeStyle>(
        {ShapeStyle(), withParent<ShapeStyle>(SomeUUID), withExtent(1.0F), withExtent(2.0F)});
}

} // namespace QN::DOM::ShapeStyleTest
