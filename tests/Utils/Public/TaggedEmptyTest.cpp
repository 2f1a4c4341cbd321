#include "Utils/Public/TaggedEmpty.h"

#include <boost/container_hash/hash.hpp>
#include <gtest/gtest.h>

#include <concepts>
#include <type_traits>

namespace QN::TaggedEmptyTest {

namespace {

struct FirstTag;
struct SecondTag;
using First = QN::TaggedEmpty<FirstTag>;
using Second = QN::TaggedEmpty<SecondTag>;

TEST(TaggedEmptyTest, AllValuesOfOneTypeAreEqual)
{
    EXPECT_EQ(First(), First());
    EXPECT_FALSE(First() != First());
    EXPECT_FALSE(First() < First());
    EXPECT_TRUE(First() <= First());
    EXPECT_EQ(boost::hash<First>{}(First()), boost::hash<First>{}(First()));
}

TEST(TaggedEmptyTest, TagsMakeTypesThatDoNotMix)
{
    static_assert(std::is_empty_v<First>);
    static_assert(!std::is_convertible_v<First, Second>);
    static_assert(!std::equality_comparable_with<First, Second>);
}

} // namespace

} // namespace QN::TaggedEmptyTest
