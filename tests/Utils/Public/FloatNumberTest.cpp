#include "Utils/Public/FloatNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace QN::FloatNumberTest {

namespace {

using QN::FloatNumber;
using Limits = std::numeric_limits<double>;

TEST(FloatNumberTest, DefaultIsZero)
{
    EXPECT_EQ(FloatNumber().get(), 0.0);
}

TEST(FloatNumberTest, ComparesByValue)
{
    EXPECT_EQ(FloatNumber(1.5), FloatNumber(1.5));
    EXPECT_NE(FloatNumber(1.5), FloatNumber(2.5));
    EXPECT_LT(FloatNumber(1.5), FloatNumber(2.5));
    EXPECT_GE(FloatNumber(2.5), FloatNumber(2.5));
    EXPECT_EQ(FloatNumber(0.0), FloatNumber(-0.0));
}

TEST(FloatNumberTest, TakesValuesThatAreNotFinite)
{
    EXPECT_EQ(FloatNumber(Limits::infinity()).get(), Limits::infinity());
    const FloatNumber nan(Limits::quiet_NaN());
    EXPECT_NE(nan, nan);
}

TEST(FloatNumberTest, TellsWhetherItIsFinite)
{
    EXPECT_TRUE(isfinite(FloatNumber()));
    EXPECT_TRUE(isfinite(FloatNumber(Limits::max())));
    EXPECT_TRUE(isfinite(FloatNumber(Limits::denorm_min())));
    EXPECT_FALSE(isfinite(FloatNumber(Limits::infinity())));
    EXPECT_FALSE(isfinite(FloatNumber(-Limits::infinity())));
    EXPECT_FALSE(isfinite(FloatNumber(Limits::quiet_NaN())));
}

TEST(FloatNumberTest, DoesNotConvertByItself)
{
    static_assert(!std::is_convertible_v<double, FloatNumber>);
    static_assert(!std::is_convertible_v<FloatNumber, double>);
}

} // namespace

} // namespace QN::FloatNumberTest
