#pragma once

#include <boost/none.hpp>
#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

/// What a property set with a number for each of the four sides goes through in its tests.

namespace QN::Test {

template <class T>
class SidesTest : public testing::Test {
protected:
    using Side = decltype(T().getLeft());

    static constexpr auto NaN = std::numeric_limits<typename Side::value_type>::quiet_NaN();

    static T makeSides(Side left, Side right, Side top, Side bottom)
    {
        T value;
        value.setLeft(left);
        value.setRight(right);
        value.setTop(top);
        value.setBottom(bottom);
        return value;
    }
};

TYPED_TEST_SUITE_P(SidesTest);

TYPED_TEST_P(SidesTest, SaysNothingByDefault)
{
    const TypeParam value;
    EXPECT_FALSE(value.getLeft());
    EXPECT_FALSE(value.getRight());
    EXPECT_FALSE(value.getTop());
    EXPECT_FALSE(value.getBottom());
    EXPECT_NE(value, this->makeSides(0.0, 0.0, 0.0, 0.0));
}

TYPED_TEST_P(SidesTest, PersistsItsSidesInOrder)
{
    const TypeParam value = this->makeSides(1.5, -2.5, boost::none, 1000.0);
    EXPECT_EQ(toJson(value),
              R"({"_left":{"hasValue":true,"value":1.5},"_right":{"hasValue":true,"value":-2.5},)"
              R"("_top":{"hasValue":false},"_bottom":{"hasValue":true,"value":1000.0}})");
    expectPersists(value);
    expectPersists(TypeParam());
    expectPersists(this->makeSides(1.5, 1.5, 1.5, 1.5));
}

TYPED_TEST_P(SidesTest, EachSideHasAGetterAndASetter)
{
    TypeParam value = this->makeSides(1.5, 2.0, 3.0, 4.0);
    EXPECT_EQ(*value.getLeft(), 1.5);
    EXPECT_EQ(*value.getRight(), 2.0);
    EXPECT_EQ(*value.getTop(), 3.0);
    EXPECT_EQ(*value.getBottom(), 4.0);
    value.setLeft(boost::none);
    EXPECT_EQ(value, this->makeSides(boost::none, 2.0, 3.0, 4.0));
}

TYPED_TEST_P(SidesTest, OrdersByItsSidesInTheOrderOfTheKeysAnAbsentOneFirst)
{
    const auto no = boost::none;
    expectAscending<TypeParam>({
        TypeParam(),
        this->makeSides(no, no, no, 0.0),
        this->makeSides(no, no, 0.0, no),
        this->makeSides(no, no, 0.0, 0.0),
        this->makeSides(no, -1.0, no, no),
        this->makeSides(no, 0.0, no, no),
        this->makeSides(-1.0, 9.0, 9.0, 9.0),
        this->makeSides(0.0, no, no, no),
    });
}

TYPED_TEST_P(SidesTest, ANanIsNotLessAndLastInPools)
{
    const TypeParam withNan = this->makeSides(this->NaN, 1.0, boost::none, boost::none);
    const TypeParam withNumber = this->makeSides(1.0, 2.0, boost::none, boost::none);
    EXPECT_FALSE(withNan < withNumber);
    EXPECT_FALSE(withNumber < withNan);
    EXPECT_FALSE(withNan == TypeParam(withNan));
    EXPECT_TRUE(withNumber.compare(withNan, NanOrder::Last) < 0);
    EXPECT_TRUE(withNan.compare(TypeParam(withNan), NanOrder::Last) == 0);
}

TYPED_TEST_P(SidesTest, OverrideTakesWhatTheOtherSays)
{
    TypeParam target = this->makeSides(1.0, 2.0, boost::none, boost::none);
    override(target, this->makeSides(5.0, boost::none, 6.0, boost::none));
    EXPECT_EQ(target, this->makeSides(5.0, 2.0, 6.0, boost::none));
    override(target, TypeParam());
    EXPECT_EQ(target, this->makeSides(5.0, 2.0, 6.0, boost::none));
}

TYPED_TEST_P(SidesTest, ExcludeRemovesWhatTheOtherSaysAlike)
{
    TypeParam target = this->makeSides(1.0, 2.0, 3.0, boost::none);
    exclude(target, this->makeSides(1.0, 9.0, boost::none, 4.0));
    EXPECT_EQ(target, this->makeSides(boost::none, 2.0, 3.0, boost::none));
    exclude(target, TypeParam(target));
    EXPECT_EQ(target, TypeParam());
}

TYPED_TEST_P(SidesTest, IntersectKeepsWhatBothSayAlike)
{
    TypeParam target = this->makeSides(1.0, 2.0, 3.0, boost::none);
    intersect(target, this->makeSides(1.0, 9.0, boost::none, boost::none));
    EXPECT_EQ(target, this->makeSides(1.0, boost::none, boost::none, boost::none));
}

TYPED_TEST_P(SidesTest, RebaseTakesTheReplacementWhereTheReferencesAgree)
{
    TypeParam target = this->makeSides(1.0, 2.0, 3.0, 4.0);
    rebaseProperty(target, this->makeSides(11.0, 12.0, boost::none, 14.0),
                   this->makeSides(7.0, 7.0, 7.0, boost::none), this->makeSides(7.0, 8.0, 7.0, 0.0));
    EXPECT_EQ(target, this->makeSides(11.0, 2.0, boost::none, 14.0))
        << "left and top agree; bottom agrees as absent and zero; right does not";
}

TYPED_TEST_P(SidesTest, RebaseLeavesTheTargetWhereTheReferencesAreNan)
{
    TypeParam target = this->makeSides(1.0, boost::none, boost::none, boost::none);
    const TypeParam reference = this->makeSides(this->NaN, boost::none, boost::none, boost::none);
    rebaseProperty(target, this->makeSides(2.0, boost::none, boost::none, boost::none), reference, reference);
    EXPECT_EQ(target, this->makeSides(1.0, boost::none, boost::none, boost::none));
}

TYPED_TEST_P(SidesTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<TypeParam>);
    expectCopiesAndMoves(this->makeSides(1.0, boost::none, 3.0, 4.0));
}

REGISTER_TYPED_TEST_SUITE_P(SidesTest, SaysNothingByDefault, PersistsItsSidesInOrder,
                            EachSideHasAGetterAndASetter, OrdersByItsSidesInTheOrderOfTheKeysAnAbsentOneFirst,
                            ANanIsNotLessAndLastInPools, OverrideTakesWhatTheOtherSays,
                            ExcludeRemovesWhatTheOtherSaysAlike, IntersectKeepsWhatBothSayAlike,
                            RebaseTakesTheReplacementWhereTheReferencesAgree,
                            RebaseLeavesTheTargetWhereTheReferencesAreNan, IsAValueWithoutVirtualFunctions);

} // namespace QN::Test
