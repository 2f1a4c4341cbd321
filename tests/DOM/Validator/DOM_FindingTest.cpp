#include "DOM/Validator/DOM_Finding.h"

#include <gtest/gtest.h>

#include <sstream>

namespace QN::DOM::FindingTest {
namespace {

Finding makeFinding(std::string message)
{
    Finding finding;
    finding.file = "DOM/Folder/DOM_File";
    finding.line = 12;
    finding.condition = "a < b";
    finding.message = std::move(message);
    finding.address.appendItems(NativeDOMNodeType::Blocks, NodeAddressing::AddressInList(3));
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
    other.address = NodeAddress();
    EXPECT_NE(makeFinding("a"), other);
}

} // namespace
} // namespace QN::DOM::FindingTest
