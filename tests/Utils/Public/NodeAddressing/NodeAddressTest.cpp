#include "Utils/Public/NodeAddressing/NodeAddress.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Support/AllocationCount.h"

namespace QN::NodeAddressTest {

struct TreeTag {
    static constexpr const char* RootName = "tree";
};
struct OtherTreeTag {};
enum class Member : unsigned char { Leaves = 1, Root = 2 };

inline std::string getNodeTypeName(Member member)
{
    return member == Member::Leaves ? "leaves" : "root";
}

namespace {

using NodeAddressing::AddressInList;
using NodeAddressing::AddressInMap;
using NodeAddressing::AddressInTable;
using Address = NodeAddressing::NodeAddress<TreeTag, Member>;
using Fixed = Address::FixedAddress;

const UUID Id("219be34f-66e7-4590-8db5-375443207e49");

/// An item of each kind, in the order of the alternatives.
Address makeOneOfEachKind()
{
    Address address;
    address.appendItems(AddressInList(3), AddressInTable(RowIndex(2), ColumnIndex(5)), AddressInMap(Id),
                        Fixed(Member::Root));
    return address;
}

Address makeList(const std::vector<unsigned long>& indices)
{
    Address address;
    for (const unsigned long index : indices) {
        address.appendItems(AddressInList(index));
    }
    return address;
}

TEST(NodeAddressTest, AnItemIsAVariantOfFourKinds)
{
    static_assert(std::is_same_v<Address::Item, boost::variant<AddressInList, AddressInTable, AddressInMap,
                                                               NodeAddressing::FixedNodeAddress<Member>>>);
    const Address address = makeOneOfEachKind();
    int which = 0;
    for (const Address::Item& item : address) {
        EXPECT_EQ(item.which(), which++);
    }
    EXPECT_EQ(which, 4);
}

TEST(NodeAddressTest, ANewAddressIsEmpty)
{
    EXPECT_TRUE(Address().empty());
    EXPECT_EQ(Address().size(), 0U);
    EXPECT_TRUE(Address().begin() == Address().end());
}

TEST(NodeAddressTest, AppendsItemsInOrder)
{
    Address address;
    address.appendItems(AddressInList(1), AddressInList(2));
    address.appendItems(AddressInList(3));
    EXPECT_EQ(address, makeList({1, 2, 3}));
    EXPECT_EQ(address.size(), 3U);
    EXPECT_FALSE(address.empty());
}

TEST(NodeAddressTest, AppendsNothingWhenNothingIsGiven)
{
    Address address = makeList({1});
    address.appendItems();
    EXPECT_EQ(address, makeList({1}));
}

TEST(NodeAddressTest, AppendsNodeTypesAndItemsAsTheyStand)
{
    Address address;
    const Address::Item item = AddressInList(4);
    address.appendItems(Member::Leaves, item);
    ASSERT_EQ(address.size(), 2U);
    EXPECT_EQ(address.getItemAs<Fixed>(0)->getNodeType(), Member::Leaves);
    EXPECT_EQ(address.getItemAs<AddressInList>(1)->getIndex(), 4U);
}

TEST(NodeAddressTest, AppendsItsOwnItems)
{
    Address address = makeList({1, 2});
    for (int round = 0; round < 5; ++round) {
        address.appendItems(*address.begin(), *address.getItemAs<AddressInList>(1));
    }
    EXPECT_EQ(address, makeList({1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2}));
}

TEST(NodeAddressTest, AppendingCostsAmortisedConstantTime)
{
    Address address;
    const std::size_t allocations = QN::Test::countAllocations([&] {
        for (unsigned long index = 0; index < 10000; ++index) {
            address.appendItems(AddressInList(index));
        }
    });
    EXPECT_LE(allocations, 20U);
}

TEST(NodeAddressTest, GetsAnItemAsItsKindAndNullForAnyOther)
{
    Address address = makeOneOfEachKind();
    const Address& constant = address;
    EXPECT_EQ(constant.getItemAs<AddressInList>(0)->getIndex(), 3U);
    EXPECT_EQ(constant.getItemAs<AddressInTable>(1)->getRow(), RowIndex(2));
    EXPECT_EQ(*constant.getItemAs<AddressInMap>(2), AddressInMap(Id));
    EXPECT_EQ(constant.getItemAs<Fixed>(3)->getNodeType(), Member::Root);
    for (std::size_t index = 0; index < 4; ++index) {
        EXPECT_EQ(constant.getItemAs<AddressInList>(index) != nullptr, index == 0) << index;
        EXPECT_EQ(constant.getItemAs<AddressInTable>(index) != nullptr, index == 1) << index;
        EXPECT_EQ(constant.getItemAs<AddressInMap>(index) != nullptr, index == 2) << index;
        EXPECT_EQ(constant.getItemAs<Fixed>(index) != nullptr, index == 3) << index;
    }
    static_assert(std::is_same_v<decltype(constant.getItemAs<Fixed>(0)), const Fixed*>);
    address.getItemAs<AddressInList>(0)->setIndex(8);
    EXPECT_EQ(constant.getItemAs<AddressInList>(0)->getIndex(), 8U);
}

TEST(NodeAddressTest, CutKeepsTheFirstItems)
{
    for (std::size_t position = 0; position <= 4; ++position) {
        const Address whole = makeOneOfEachKind();
        Address address = whole;
        address.cutToPosition(position);
        ASSERT_EQ(address.size(), position);
        EXPECT_TRUE(std::equal(address.begin(), address.end(), whole.begin())) << position;
    }
}

TEST(NodeAddressTest, CutToTheOwnSizeChangesNothing)
{
    Address address = makeOneOfEachKind();
    address.cutToPosition(address.size());
    EXPECT_EQ(address, makeOneOfEachKind());
    Address empty;
    empty.cutToPosition(0);
    EXPECT_TRUE(empty.empty());
}

TEST(NodeAddressTest, TrimRemovesTheLastItems)
{
    for (std::size_t trimSize = 0; trimSize <= 3; ++trimSize) {
        Address address = makeList({5, 6, 7});
        address.trimAtEnd(trimSize);
        Address expected = makeList({5, 6, 7});
        expected.cutToPosition(3 - trimSize);
        EXPECT_EQ(address, expected) << trimSize;
    }
    Address empty;
    empty.trimAtEnd(0);
    EXPECT_TRUE(empty.empty());
}

TEST(NodeAddressTest, WhatWasAppendedOnTheWayDownIsTrimmedOnTheWayUp)
{
    Address address = makeList({1});
    const Address before = address;
    address.appendItems(Member::Leaves, AddressInMap(Id));
    EXPECT_NE(address, before);
    address.trimAtEnd(2);
    EXPECT_EQ(address, before);
}

TEST(NodeAddressTest, ComparesItemByItem)
{
    EXPECT_EQ(Address(), Address());
    EXPECT_EQ(makeOneOfEachKind(), makeOneOfEachKind());
    EXPECT_NE(makeList({1, 2}), makeList({1}));
    EXPECT_NE(makeList({1}), makeList({1, 2}));
    EXPECT_NE(makeList({1, 2}), makeList({2, 1}));
    Address fixed;
    fixed.appendItems(Member::Leaves);
    EXPECT_NE(fixed, makeList({1})) << "the numbers are the same, the kinds are not";
}

TEST(NodeAddressTest, HashIsThatOfEqualAddresses)
{
    std::unordered_set<std::size_t> hashes;
    Address fixed;
    fixed.appendItems(Member::Leaves);
    for (const Address& address :
         {Address(), makeList({1}), makeList({1, 2}), makeList({2, 1}), fixed, makeOneOfEachKind()}) {
        EXPECT_EQ(hash_value(address), hash_value(Address(address)));
        hashes.insert(hash_value(address));
    }
    EXPECT_EQ(hashes.size(), 6U);
}

TEST(NodeAddressTest, CopiesMovesAndAssigns)
{
    Address address = makeOneOfEachKind();
    Address copy(address);
    EXPECT_EQ(copy, address);
    copy.trimAtEnd(1);
    EXPECT_EQ(address, makeOneOfEachKind());
    copy = address;
    const Address& itself = copy;
    copy = itself;
    EXPECT_EQ(copy, address);
    const Address moved(std::move(address));
    EXPECT_EQ(moved, copy);
    static_assert(std::is_nothrow_move_constructible_v<Address>);
    static_assert(std::is_nothrow_move_assignable_v<Address>);
}

TEST(NodeAddressTest, AddressesInDifferentTreesAreDifferentTypes)
{
    using OtherAddress = NodeAddressing::NodeAddress<OtherTreeTag, Member>;
    static_assert(!std::is_convertible_v<Address, OtherAddress>);
    static_assert(!std::is_constructible_v<OtherAddress, Address>);
}

TEST(NodeAddressTest, IsWrittenAsAPath)
{
    EXPECT_EQ(Address().toString(), "tree");
    EXPECT_EQ(makeOneOfEachKind().toString(), "[3]/cell(2, 5)[219be34f-66e7-4590-8db5-375443207e49]/root");
    Address address;
    address.appendItems(Member::Leaves, AddressInList(3), AddressInTable(RowIndex(2), ColumnIndex(5)),
                        Member::Leaves, AddressInList(0));
    EXPECT_EQ(address.toString(), "leaves[3]/cell(2, 5)/leaves[0]");
    std::ostringstream stream;
    stream << address << ".";
    EXPECT_EQ(stream.str(), "leaves[3]/cell(2, 5)/leaves[0].");
}

TEST(NodeAddressDeathTest, ReadingBehindTheEndBreaksTheContract)
{
    Address address = makeList({1});
    const Address& constant = address;
    const char* const message = "Utils/Public/NodeAddressing/NodeAddress:180: index < _items\\.size\\(\\)\n";
    EXPECT_DEATH(static_cast<void>(constant.getItemAs<AddressInList>(1)), message);
    EXPECT_DEATH(static_cast<void>(address.getItemAs<Fixed>(1)), message);
    EXPECT_DEATH(static_cast<void>(Address().getItemAs<AddressInList>(0)), message);
}

TEST(NodeAddressDeathTest, CuttingBehindTheEndBreaksTheContract)
{
    Address address = makeList({1});
    EXPECT_DEATH(address.cutToPosition(2),
                 "Utils/Public/NodeAddressing/NodeAddress:220: position <= _items\\.size\\(\\)\n");
}

TEST(NodeAddressDeathTest, TrimmingMoreThanThereIsBreaksTheContract)
{
    Address address = makeList({1});
    EXPECT_DEATH(address.trimAtEnd(2),
                 "Utils/Public/NodeAddressing/NodeAddress:245: trimSize <= _items\\.size\\(\\)\n");
    EXPECT_DEATH(Address().trimAtEnd(1),
                 "Utils/Public/NodeAddressing/NodeAddress:245: trimSize <= _items\\.size\\(\\)\n");
}

} // namespace

} // namespace QN::NodeAddressTest
