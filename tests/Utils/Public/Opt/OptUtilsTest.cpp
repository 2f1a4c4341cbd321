#include "Utils/Public/Opt/OptUtils.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace QN::OptUtilsTest {

namespace {

using QN::getRequired;

TEST(OptUtilsTest, GivesTheValueItself)
{
    boost::optional<int> opt(5);
    EXPECT_EQ(getRequired(opt), 5);
    getRequired(opt) = 6;
    EXPECT_EQ(*opt, 6);
    EXPECT_EQ(&getRequired(std::as_const(opt)), &*opt);
    static_assert(std::is_same_v<decltype(getRequired(std::as_const(opt))), const int&>);
}

TEST(OptUtilsTest, FalseValueIsAValue)
{
    boost::optional<bool> opt(false);
    EXPECT_FALSE(getRequired(opt));
}

TEST(OptUtilsTest, TakesTheValueOutOfATemporary)
{
    const std::unique_ptr<int> taken =
        getRequired(boost::optional<std::unique_ptr<int>>(std::make_unique<int>(5)));
    EXPECT_EQ(*taken, 5);
}

TEST(OptUtilsDeathTest, EmptyOptionalBreaksTheContract)
{
    boost::optional<int> opt;
    EXPECT_DEATH(getRequired(opt), "Utils/Public/Opt/OptUtils:73: opt\n");
    EXPECT_DEATH(getRequired(std::as_const(opt)), "Utils/Public/Opt/OptUtils:73: opt\n");
    EXPECT_DEATH(getRequired(boost::optional<int>()), "Utils/Public/Opt/OptUtils:73: opt\n");
}

} // namespace

} // namespace QN::OptUtilsTest
