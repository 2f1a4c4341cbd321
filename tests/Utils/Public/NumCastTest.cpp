#include "Utils/Public/NumCast.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

namespace QN::NumCastTest {

namespace {

using QN::BadNumCastError;
using QN::numCast;

constexpr const char* PositiveOverflow = "bad numeric conversion: positive overflow";
constexpr const char* NegativeOverflow = "bad numeric conversion: negative overflow";

template <class To, class From>
std::string getFailure(From value)
{
    try {
        numCast<To, From>(value);
        return "none";
    } catch (const BadNumCastError& error) {
        return error.what();
    }
}

TEST(NumCastTest, ErrorIsOneOfTheModelsOwn)
{
    static_assert(std::is_base_of_v<QN::BaseRuntimeError, BadNumCastError>);
}

TEST(NumCastTest, UnsignedLongToLongFailsFromTwoToThe63)
{
    constexpr unsigned long Limit = 1UL << 63U;
    EXPECT_EQ((numCast<long, unsigned long>(0)), 0);
    EXPECT_EQ((numCast<long, unsigned long>(Limit - 1)), std::numeric_limits<long>::max());
    EXPECT_EQ((getFailure<long, unsigned long>(Limit)), PositiveOverflow);
    EXPECT_EQ((getFailure<long, unsigned long>(std::numeric_limits<unsigned long>::max())), PositiveOverflow);
}

TEST(NumCastTest, LongToUnsignedLongFailsBelowZero)
{
    EXPECT_EQ((numCast<unsigned long, long>(0)), 0U);
    EXPECT_EQ((numCast<unsigned long, long>(std::numeric_limits<long>::max())), (1UL << 63U) - 1);
    EXPECT_EQ((getFailure<unsigned long, long>(-1)), NegativeOverflow);
    EXPECT_EQ((getFailure<unsigned long, long>(std::numeric_limits<long>::min())), NegativeOverflow);
}

TEST(NumCastTest, IntToUnsignedLongFailsBelowZero)
{
    EXPECT_EQ((numCast<unsigned long, int>(0)), 0U);
    EXPECT_EQ((numCast<unsigned long, int>(std::numeric_limits<int>::max())), 2147483647U);
    EXPECT_EQ((getFailure<unsigned long, int>(-1)), NegativeOverflow);
    EXPECT_EQ((getFailure<unsigned long, int>(std::numeric_limits<int>::min())), NegativeOverflow);
}

TEST(NumCastTest, CodePointToCharPassesOnlyASCII)
{
    EXPECT_EQ((numCast<char, char32_t>(0)), '\0');
    EXPECT_EQ((numCast<char, char32_t>(U'A')), 'A');
    EXPECT_EQ((numCast<char, char32_t>(127)), '\x7f');
    EXPECT_EQ((getFailure<char, char32_t>(128)), PositiveOverflow);
    EXPECT_EQ((getFailure<char, char32_t>(255)), PositiveOverflow);
    EXPECT_EQ((getFailure<char, char32_t>(0xFFFFFFFF)), PositiveOverflow);
}

TEST(NumCastTest, SourceTypeIsDeduced)
{
    EXPECT_EQ(numCast<unsigned long>(5), 5U);
    EXPECT_EQ(numCast<long>(5UL), 5);
}

} // namespace

} // namespace QN::NumCastTest
