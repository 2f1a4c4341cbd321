#include "DOM/Validator/DOM_WalkAddress.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace QN::DOM::WalkAddressTest {
namespace {

using NodeAddressing::AddressInList;

TEST(WalkAddressTest, GrowsAndIsCut)
{
    WalkAddress address;
    EXPECT_EQ(address.size(), 0U);
    address.appendItems(NativeDOMNodeType::Blocks, AddressInList(3));
    address.appendItems(NativeDOMNodeType::Runs);
    EXPECT_EQ(address.size(), 3U);
    EXPECT_EQ(address.get().toString(), "blocks[3]/runs");
    address.cutToPosition(2);
    EXPECT_EQ(address.get().toString(), "blocks[3]");
    EXPECT_DEATH(address.cutToPosition(3), "NodeAddress:220: position <= _items.size");
}

TEST(WalkAddressTest, RecordsNothingWithoutATree)
{
    WalkAddress address;
    address.appendItems(NativeDOMNodeType::Blocks, AddressInList(3));
    EXPECT_EQ(address.record(), AddressTree::Root);
    EXPECT_EQ(address.getTree(), nullptr);
}

TEST(WalkAddressTest, RecordsEachStepOnce)
{
    const auto tree = std::make_shared<AddressTree>();
    WalkAddress address(tree);
    EXPECT_EQ(address.getTree(), tree);
    EXPECT_EQ(address.record(), AddressTree::Root);
    address.appendItems(NativeDOMNodeType::Blocks, AddressInList(3));
    EXPECT_EQ(address.record(), 2U);
    EXPECT_EQ(address.record(), 2U);
    address.appendItems(NativeDOMNodeType::Runs, AddressInList(1));
    EXPECT_EQ(address.record(), 4U);
    address.cutToPosition(3);
    address.appendItems(AddressInList(2));
    EXPECT_EQ(address.record(), 5U);
    address.cutToPosition(2);
    EXPECT_EQ(address.record(), 2U);
    address.cutToPosition(0);
    EXPECT_EQ(address.record(), AddressTree::Root);
    EXPECT_EQ(tree->get(4).toString(), "blocks[3]/runs[1]");
    EXPECT_EQ(tree->get(5).toString(), "blocks[3]/runs[2]");
}

TEST(WalkAddressTest, WhatIsRecordedStaysWhereverTheWalkGoes)
{
    const auto tree = std::make_shared<AddressTree>();
    WalkAddress address(tree);
    std::vector<std::pair<std::size_t, NodeAddress>> recorded;
    std::mt19937 random(3);
    for (int step = 0; step < 20000; ++step) {
        switch (random() % 3) {
        case 0:
            address.appendItems(AddressInList(random() % 4));
            break;
        case 1:
            address.cutToPosition(address.size() - std::min<std::size_t>(address.size(), random() % 3));
            break;
        default:
            recorded.emplace_back(address.record(), address.get());
        }
    }
    for (const auto& [number, expected] : recorded) {
        ASSERT_EQ(tree->get(number), expected);
    }
}

} // namespace
} // namespace QN::DOM::WalkAddressTest
