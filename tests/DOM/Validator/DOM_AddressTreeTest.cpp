#include "DOM/Validator/DOM_AddressTree.h"

#include <gtest/gtest.h>

namespace QN::DOM::AddressTreeTest {
namespace {

using NodeAddressing::AddressInList;
using Fixed = NodeAddress::FixedAddress;

TEST(AddressTreeTest, HoldsTheEmptyAddressFromTheStart)
{
    EXPECT_EQ(AddressTree().get(AddressTree::Root), NodeAddress());
}

TEST(AddressTreeTest, HoldsAddressesThatBeginAlike)
{
    AddressTree tree;
    const std::size_t blocks = tree.add(AddressTree::Root, Fixed(NativeDOMNodeType::Blocks));
    const std::size_t third = tree.add(blocks, AddressInList(3));
    const std::size_t notes = tree.add(AddressTree::Root, Fixed(NativeDOMNodeType::Notes));
    const std::size_t runs = tree.add(third, Fixed(NativeDOMNodeType::Runs));
    const std::size_t fifth = tree.add(blocks, AddressInList(5));
    EXPECT_EQ(blocks, 1U);
    EXPECT_EQ(fifth, 5U);
    EXPECT_EQ(tree.get(blocks).toString(), "blocks");
    EXPECT_EQ(tree.get(third).toString(), "blocks[3]");
    EXPECT_EQ(tree.get(notes).toString(), "notes");
    EXPECT_EQ(tree.get(runs).toString(), "blocks[3]/runs");
    EXPECT_EQ(tree.get(fifth).toString(), "blocks[5]");

    NodeAddress address;
    address.appendItems(NativeDOMNodeType::Blocks, AddressInList(3), NativeDOMNodeType::Runs);
    EXPECT_EQ(tree.get(runs), address);
}

TEST(AddressTreeTest, OneAddressMayHaveTwoNumbers)
{
    AddressTree tree;
    const std::size_t first = tree.add(AddressTree::Root, AddressInList(3));
    const std::size_t second = tree.add(AddressTree::Root, AddressInList(3));
    EXPECT_NE(first, second);
    EXPECT_EQ(tree.get(first), tree.get(second));
}

} // namespace
} // namespace QN::DOM::AddressTreeTest
