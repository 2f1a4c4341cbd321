#include "DOM/Shapes/DOM_Crop.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::CropTest {

using namespace Test;

namespace {

using Side = boost::optional<double>;

Crop makeCrop(Side left, Side right, Side top, Side bottom)
{
    Crop value;
    value.setLeft(left);
    value.setRight(right);
    value.setTop(top);
    value.setBottom(bottom);
    return value;
}

} // namespace

TEST(CropTest, SaysNothingByDefault)
{
    const Crop value;
    EXPECT_FALSE(value.getLeft());
    EXPECT_FALSE(value.getRight());
    EXPECT_FALSE(value.getTop());
    EXPECT_FALSE(value.getBottom());
    EXPECT_NE(value, makeCrop(0.0, 0.0, 0.0, 0.0));
}

TEST(CropTest, PersistsItsSidesInOrder)
{
    const Crop value = makeCrop(1.5, -2.5, boost::none, 1000.0);
    EXPECT_EQ(toJson(value),
              R"({"_left":{"hasValue":true,"value":1.5},"_right":{"hasValue":true,"value":-2.5},)"
              R"("_top":{"hasValue":false},"_bottom":{"hasValue":true,"value":1000.0}})");
    expectPersists(value);
    expectPersists(Crop());
    expectPersists(makeCrop(1.5, 1.5, 1.5, 1.5));
}

TEST(CropTest, EachSideHasAGetterAndASetter)
{
    Crop value = makeCrop(1.5, 2.0, 3.0, 4.0);
    EXPECT_EQ(*value.getLeft(), 1.5);
    EXPECT_EQ(*value.getRight(), 2.0);
    EXPECT_EQ(*value.getTop(), 3.0);
    EXPECT_EQ(*value.getBottom(), 4.0);
    value.setLeft(boost::none);
    EXPECT_EQ(value, makeCrop(boost::none, 2.0, 3.0, 4.0));
}

TEST(CropTest, OrdersByItsSidesInTheOrderOfTheKeysAnAbsentOneFirst)
{
    const Side no = boost::none;
    expectAscending<Crop>({
        Crop(),
        makeCrop(no, no, no, 0.0),
        makeCrop(no, no, 0.0, no),
        makeCrop(no, no, 0.0, 0.0),
        makeCrop(no, -1.0, no, no),
        makeCrop(no, 0.0, no, no),
        makeCrop(-1.0, 9.0, 9.0, 9.0),
        makeCrop(0.0, no, no, no),
    });
}

TEST(CropTest, ANanIsNotLessAndLastInPools)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Crop withNan = makeCrop(nan, 1.0, boost::none, boost::none);
    const Crop withNumber = makeCrop(1.0, 2.0, boost::none, boost::none);
    EXPECT_FALSE(withNan < withNumber);
    EXPECT_FALSE(withNumber < withNan);
    EXPECT_FALSE(withNan == Crop(withNan));
    EXPECT_TRUE(withNumber.compare(withNan, NanOrder::Last) < 0);
    EXPECT_TRUE(withNan.compare(Crop(withNan), NanOrder::Last) == 0);
}

TEST(CropTest, OverrideTakesWhatTheOtherSays)
{
    Crop target = makeCrop(1.0, 2.0, boost::none, boost::none);
    override(target, makeCrop(5.0, boost::none, 6.0, boost::none));
    EXPECT_EQ(target, makeCrop(5.0, 2.0, 6.0, boost::none));
    override(target, Crop());
    EXPECT_EQ(target, makeCrop(5.0, 2.0, 6.0, boost::none));
}

TEST(CropTest, ExcludeRemovesWhatTheOtherSaysAlike)
{
    Crop target = makeCrop(1.0, 2.0, 3.0, boost::none);
    exclude(target, makeCrop(1.0, 9.0, boost::none, 4.0));
    EXPECT_EQ(target, makeCrop(boost::none, 2.0, 3.0, boost::none));
    exclude(target, Crop(target));
    EXPECT_EQ(target, Crop());
}

TEST(CropTest, IntersectKeepsWhatBothSayAlike)
{
    Crop target = makeCrop(1.0, 2.0, 3.0, boost::none);
    intersect(target, makeCrop(1.0, 9.0, boost::none, boost::none));
    EXPECT_EQ(target, makeCrop(1.0, boost::none, boost::none, boost::none));
}

TEST(CropTest, RebaseTakesTheReplacementWhereTheReferencesAgree)
{
    Crop target = makeCrop(1.0, 2.0, 3.0, 4.0);
    rebaseProperty(target, makeCrop(11.0, 12.0, boost::none, 14.0), makeCrop(7.0, 7.0, 7.0, boost::none),
                   makeCrop(7.0, 8.0, 7.0, 0.0));
    EXPECT_EQ(target, makeCrop(11.0, 2.0, boost::none, 14.0))
        << "left and top agree; bottom agrees as absent and zero; right does not";
}

TEST(CropTest, RebaseLeavesTheTargetWhereTheReferencesAreNan)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Crop target = makeCrop(1.0, boost::none, boost::none, boost::none);
    const Crop reference = makeCrop(nan, boost::none, boost::none, boost::none);
    rebaseProperty(target, makeCrop(2.0, boost::none, boost::none, boost::none), reference, reference);
    EXPECT_EQ(target, makeCrop(1.0, boost::none, boost::none, boost::none));
}

TEST(CropTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<Crop>);
    expectCopiesAndMoves(makeCrop(1.0, boost::none, 3.0, 4.0));
}

} // namespace QN::DOM::CropTest
