#include "Utils/Public/NodeAddressing/AddressInList.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace QN::AddressInListTest {

namespace {

using NodeAddressing::AddressInList;

TEST(AddressInListTest, HoldsAnIndex)
{
    EXPECT_EQ(AddressInList().getIndex(), 0U);
    AddressInList address(3);
    EXPECT_EQ(address.getIndex(), 3U);
    address.setIndex(4);
    EXPECT_EQ(address.getIndex(), 4U);
    static_assert(std::is_same_v<decltype(address.getIndex()), unsigned long>);
}

TEST(AddressInListTest, ANumberBecomesAnAddressOnlyWhenAskedTo)
{
    static_assert(!std::is_convertible_v<unsigned long, AddressInList>);
    static_assert(std::is_constructible_v<AddressInList, unsigned long>);
}

TEST(AddressInListTest, ComparesAndHashesByIndex)
{
    EXPECT_EQ(AddressInList(3), AddressInList(3));
    EXPECT_NE(AddressInList(3), AddressInList(4));
    EXPECT_EQ(hash_value(AddressInList(3)), hash_value(AddressInList(3)));
    EXPECT_NE(hash_value(AddressInList(3)), hash_value(AddressInList(4)));
}

TEST(AddressInListTest, IsWrittenInBrackets)
{
    EXPECT_EQ(AddressInList(0).toString(), "[0]");
    EXPECT_EQ(AddressInList(std::numeric_limits<unsigned long>::max()).toString(), "[18446744073709551615]");
}

} // namespace

} // namespace QN::AddressInListTest
