#include "DOM/Shapes/DOM_Insets.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::InsetsTest {

using namespace Test;

namespace {

using Side = boost::optional<float>;

Insets makeInsets(Side left, Side right, Side top, Side bottom)
{
    Insets value;
    value.setLeft(left);
    value.setRight(right);
    value.setTop(top);
    value.setBottom(bottom);
    return value;
}

} // namespace

TEST(InsetsTest, SaysNothingByDefault)
{
    const Insets value;
    EXPECT_FALSE(value.getLeft());
    EXPECT_FALSE(value.getRight());
    EXPECT_FALSE(value.getTop());
    EXPECT_FALSE(value.getBottom());
    EXPECT_NE(value, makeInsets(0.0F, 0.0F, 0.0F, 0.0F));
}

TEST(InsetsTest, PersistsItsSidesInOrder)
{
    const Insets value = makeInsets(1.5F, -2.5F, boost::none, 1000.0F);
    EXPECT_EQ(toJson(value),
              R"({"_left":{"hasValue":true,"value":1.5},"_right":{"hasValue":true,"value":-2.5},)"
              R"("_top":{"hasValue":false},"_bottom":{"hasValue":true,"value":1000.0}})");
    expectPersists(value);
    expectPersists(Insets());
    expectPersists(makeInsets(1.5F, 1.5F, 1.5F, 1.5F));
}

TEST(InsetsTest, EachSideHasAGetterAndASetter)
{
    Insets value = makeInsets(1.5F, 2.0F, 3.0F, 4.0F);
    EXPECT_EQ(*value.getLeft(), 1.5F);
    EXPECT_EQ(*value.getRight(), 2.0F);
    EXPECT_EQ(*value.getTop(), 3.0F);
    EXPECT_EQ(*value.getBottom(), 4.0F);
    value.setLeft(boost::none);
    EXPECT_EQ(value, makeInsets(boost::none, 2.0F, 3.0F, 4.0F));
}

TEST(InsetsTest, OrdersByItsSidesInTheOrderOfTheKeysAnAbsentOneFirst)
{
    const Side no = boost::none;
    expectAscending<Insets>({
        Insets(),
        makeInsets(no, no, no, 0.0F),
        makeInsets(no, no, 0.0F, no),
        makeInsets(no, no, 0.0F, 0.0F),
        makeInsets(no, -1.0F, no, no),
        makeInsets(no, 0.0F, no, no),
        makeInsets(-1.0F, 9.0F, 9.0F, 9.0F),
        makeInsets(0.0F, no, no, no),
    });
}

TEST(InsetsTest, ANanIsNotLessAndLastInPools)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const Insets withNan = makeInsets(nan, 1.0F, boost::none, boost::none);
    const Insets withNumber = makeInsets(1.0F, 2.0F, boost::none, boost::none);
    EXPECT_FALSE(withNan < withNumber);
    EXPECT_FALSE(withNumber < withNan);
    EXPECT_FALSE(withNan == Insets(withNan));
    EXPECT_TRUE(withNumber.compare(withNan, NanOrder::Last) < 0);
    EXPECT_TRUE(withNan.compare(Insets(withNan), NanOrder::Last) == 0);
}

TEST(InsetsTest, OverrideTakesWhatTheOtherSays)
{
    Insets target = makeInsets(1.0F, 2.0F, boost::none, boost::none);
    override(target, makeInsets(5.0F, boost::none, 6.0F, boost::none));
    EXPECT_EQ(target, makeInsets(5.0F, 2.0F, 6.0F, boost::none));
    override(target, Insets());
    EXPECT_EQ(target, makeInsets(5.0F, 2.0F, 6.0F, boost::none));
}

TEST(InsetsTest, ExcludeRemovesWhatTheOtherSaysAlike)
{
    Insets target = makeInsets(1.0F, 2.0F, 3.0F, boost::none);
    exclude(target, makeInsets(1.0F, 9.0F, boost::none, 4.0F));
    EXPECT_EQ(target, makeInsets(boost::none, 2.0F, 3.0F, boost::none));
    exclude(target, Insets(target));
    EXPECT_EQ(target, Insets());
}

TEST(InsetsTest, IntersectKeepsWhatBothSayAlike)
{
    Insets target = makeInsets(1.0F, 2.0F, 3.0F, boost::none);
    intersect(target, makeInsets(1.0F, 9.0F, boost::none, boost::none));
    EXPECT_EQ(target, makeInsets(1.0F, boost::none, boost::none, boost::none));
}

TEST(InsetsTest, RebaseTakesTheReplacementWhereTheReferencesAgree)
{
    Insets target = makeInsets(1.0F, 2.0F, 3.0F, 4.0F);
    rebaseProperty(target, makeInsets(11.0F, 12.0F, boost::none, 14.0F),
                   makeInsets(7.0F, 7.0F, 7.0F, boost::none), makeInsets(7.0F, 8.0F, 7.0F, 0.0F));
    EXPECT_EQ(target, makeInsets(11.0F, 2.0F, boost::none, 14.0F))
        << "left and top agree; bottom agrees as absent and zero; right does not";
}

TEST(InsetsTest, RebaseLeavesTheTargetWhereTheReferencesAreNan)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Insets target = makeInsets(1.0F, boost::none, boost::none, boost::none);
    const Insets reference = makeInsets(nan, boost::none, boost::none, boost::none);
    rebaseProperty(target, makeInsets(2.0F, boost::none, boost::none, boost::none), reference, reference);
    EXPECT_EQ(target, makeInsets(1.0F, boost::none, boost::none, boost::none));
}

TEST(InsetsTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<Insets>);
    expectCopiesAndMoves(makeInsets(1.0F, boost::none, 3.0F, 4.0F));
}

} // namespace QN::DOM::InsetsTest
