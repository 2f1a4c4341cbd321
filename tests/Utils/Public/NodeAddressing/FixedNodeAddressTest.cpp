#include "Utils/Public/NodeAddressing/FixedNodeAddress.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace QN::FixedNodeAddressTest {

enum class Member : unsigned char { Head = 0, Tail = 7 };

inline std::string getNodeTypeName(Member member)
{
    return member == Member::Tail ? "tail" : "head";
}

namespace {

using Address = NodeAddressing::FixedNodeAddress<Member>;

TEST(FixedNodeAddressTest, HoldsANamedStep)
{
    EXPECT_EQ(Address().getNodeType(), Member::Head);
    Address address(Member::Tail);
    EXPECT_EQ(address.getNodeType(), Member::Tail);
    address.setNodeType(Member::Head);
    EXPECT_EQ(address.getNodeType(), Member::Head);
    static_assert(!std::is_convertible_v<Member, Address>);
}

TEST(FixedNodeAddressTest, ComparesAndHashesByStep)
{
    EXPECT_TRUE(Address(Member::Tail) == Address(Member::Tail));
    EXPECT_TRUE(Address(Member::Tail) != Address(Member::Head));
    EXPECT_EQ(hash_value(Address(Member::Tail)), 7U);
}

TEST(FixedNodeAddressTest, IsWrittenByTheNameThatTheStepHasInItsOwnNamespace)
{
    EXPECT_EQ(Address(Member::Tail).toString(), "tail");
}

} // namespace

} // namespace QN::FixedNodeAddressTest
