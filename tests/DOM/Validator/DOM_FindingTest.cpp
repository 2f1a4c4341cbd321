#include "DOM/Validator/DOM_Finding.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <utility>

namespace QN::DOM::FindingTest {
namespace {

void setAddress(Finding& finding, const NodeAddress& address)
{
    auto tree = std::make_shared<AddressTree>();
    finding.addressNumber = AddressTree::Root;
    for (const NodeAddress::Item& item : address) {
        finding.addressNumber = tree->add(finding.addressNumber, item);
    }
    finding.addresses = std::move(tree);
}

Finding makeFinding(std::string message)
{
    Finding finding;
    finding.file = "DOM/Folder/DOM_File";
    finding.line = 12;
    finding.condition = "a < b";
    finding.message = std::move(message);
    NodeAddress address;
    address.appendItems(NativeDOMNodeType::Blocks, NodeAddressing::AddressInList(3));
    setAddress(finding, address);
    return finding;
}

TEST(FindingTest, ReadsAsTheContractAndThePlace)
{
    EXPECT_EQ(makeFinding("").getContractText(), "DOM/Folder/DOM_File:12: a < b");
    EXPECT_EQ(makeFinding("").toString(), "DOM/Folder/DOM_File:12: a < b at blocks[3]");
    EXPECT_EQ(makeFinding("A message.").getContractText(), "DOM/Folder/DOM_File:12: a < b: A message.");
    EXPECT_EQ(makeFinding("A message.").toString(), "DOM/Folder/DOM_File:12: a < b: A message. at blocks[3]");
}

TEST(FindingTest, SaysWhenItIsAHazard)
{
    Finding finding = makeFinding("");
    finding.kind = FindingKind::Hazard;
    EXPECT_EQ(finding.getContractText(), "DOM/Folder/DOM_File:12: a < b");
    EXPECT_EQ(finding.toString(), "DOM/Folder/DOM_File:12: a < b at blocks[3] (hazard)");
}

TEST(FindingTest, IsWrittenToStreams)
{
    std::ostringstream stream;
    stream << makeFinding("{}");
    EXPECT_EQ(stream.str(), "DOM/Folder/DOM_File:12: a < b: {} at blocks[3]");
}

TEST(FindingTest, ComparesByValue)
{
    EXPECT_EQ(makeFinding("a"), makeFinding("a"));
    EXPECT_NE(makeFinding("a"), makeFinding("b"));
    Finding other = makeFinding("a");
    EXPECT_NE(makeFinding("a").addresses, other.addresses);
    other.addresses = nullptr;
    EXPECT_NE(makeFinding("a"), other);
    EXPECT_EQ(Finding(), Finding());

    const auto expectUnequal = [](auto member, auto value) {
        Finding changed = makeFinding("a");
        changed.*member = value;
        EXPECT_NE(makeFinding("a"), changed);
    };
    expectUnequal(&Finding::kind, FindingKind::Hazard);
    expectUnequal(&Finding::file, "DOM/Folder/DOM_Other");
    expectUnequal(&Finding::line, 13);
    expectUnequal(&Finding::condition, "a <= b");
    expectUnequal(&Finding::message, "b");
    expectUnequal(&Finding::addressNumber, AddressTree::Root);
}

TEST(FindingTest, HasTheAddressOfItsNumber)
{
    EXPECT_EQ(Finding().getAddress(), NodeAddress());
    NodeAddress address;
    address.appendItems(NativeDOMNodeType::Blocks, NodeAddressing::AddressInList(3));
    Finding finding = makeFinding("");
    EXPECT_EQ(finding.getAddress(), address);
    const Finding copy = finding;
    EXPECT_EQ(copy.addresses, finding.addresses);
    finding.addressNumber = AddressTree::Root;
    EXPECT_EQ(finding.getAddress(), NodeAddress());
}

} // namespace
} // namespace QN::DOM::FindingTest
