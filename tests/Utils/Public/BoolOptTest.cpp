#include "Utils/Public/BoolOpt.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::BoolOptTest {

namespace {

using QN::BoolOpt;

TEST(BoolOptTest, DefaultIsUnset)
{
    const BoolOpt flag;
    EXPECT_FALSE(flag);
    EXPECT_TRUE(!flag);
    EXPECT_EQ(flag, BoolOpt(boost::none));
}

TEST(BoolOptTest, SetFalseIsTrueAsAConditionAndFalseAsAValue)
{
    const BoolOpt flag(false);
    EXPECT_TRUE(flag);
    EXPECT_FALSE(!flag);
    EXPECT_FALSE(*flag);
}

TEST(BoolOptTest, SetTrueIsTrueAsAConditionAndAsAValue)
{
    const BoolOpt flag(true);
    EXPECT_TRUE(flag);
    EXPECT_FALSE(!flag);
    EXPECT_TRUE(*flag);
}

TEST(BoolOptTest, TakesAndLosesAValue)
{
    BoolOpt flag;
    flag = true;
    EXPECT_EQ(flag, BoolOpt(true));
    flag = false;
    EXPECT_EQ(flag, BoolOpt(false));
    flag = boost::none;
    EXPECT_EQ(flag, BoolOpt());
}

TEST(BoolOptTest, FallbackIsTheValueOfAnUnsetFlagOnly)
{
    EXPECT_TRUE(BoolOpt().value_or(true));
    EXPECT_FALSE(BoolOpt().value_or(false));
    EXPECT_FALSE(BoolOpt(false).value_or(true));
    EXPECT_TRUE(BoolOpt(true).value_or(false));
}

TEST(BoolOptTest, OrdersUnsetBeforeFalseBeforeTrue)
{
    EXPECT_LT(BoolOpt(), BoolOpt(false));
    EXPECT_LT(BoolOpt(false), BoolOpt(true));
    EXPECT_LT(BoolOpt(), BoolOpt(true));
    EXPECT_FALSE(BoolOpt(false) < BoolOpt());
    EXPECT_FALSE(BoolOpt(true) < BoolOpt(true));
    EXPECT_NE(BoolOpt(), BoolOpt(false));
    EXPECT_NE(BoolOpt(true), BoolOpt(false));
}

TEST(BoolOptTest, ComparesWithABoolByTheValue)
{
    EXPECT_TRUE(BoolOpt(false) == false);
    EXPECT_TRUE(BoolOpt(true) == true);
    EXPECT_FALSE(BoolOpt() == false);
}

TEST(BoolOptTest, TakesNothingButABool)
{
    static_assert(sizeof(BoolOpt) == 1);
    static_assert(std::is_trivially_copyable_v<BoolOpt>);
    static_assert(std::is_convertible_v<bool, BoolOpt>);
    static_assert(!std::is_constructible_v<BoolOpt, int>);
    static_assert(!std::is_constructible_v<BoolOpt, const char*>);
    static_assert(!std::is_convertible_v<BoolOpt, bool>);
    static_assert(!std::is_convertible_v<BoolOpt, int>);
}

} // namespace

} // namespace QN::BoolOptTest
