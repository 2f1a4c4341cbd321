#include "DOM/Utils/DOM_NodeAddress.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <type_traits>

namespace QN::DOM::NodeAddressTest {

namespace {

using NodeAddressing::AddressInList;
using NodeAddressing::AddressInMap;
using NodeAddressing::AddressInTable;

const UUID Id("219be34f-66e7-4590-8db5-375443207e49");

std::string print(const NodeAddress& address)
{
    std::ostringstream stream;
    stream << address;
    return stream.str();
}

TEST(NodeAddressTest, IsThatOfTheStepsInADocument)
{
    static_assert(
        std::is_same_v<NodeAddress, NodeAddressing::NodeAddress<NativeNodeAddressTag, NativeDOMNodeType>>);
    static_assert(
        std::is_same_v<NodeAddress::FixedAddress, NodeAddressing::FixedNodeAddress<NativeDOMNodeType>>);
}

TEST(NodeAddressTest, PrintsARunInACellOfATable)
{
    NodeAddress address;
    address.appendItems(NativeDOMNodeType::Blocks, AddressInList(3),
                        AddressInTable(RowIndex(2), ColumnIndex(5)), NativeDOMNodeType::Blocks,
                        AddressInList(0), NativeDOMNodeType::Runs, AddressInList(1));
    EXPECT_EQ(print(address), "blocks[3]/cell(2, 5)/blocks[0]/runs[1]");
    EXPECT_EQ(address.toString(), print(address));
}

TEST(NodeAddressTest, PrintsABlockOfAHeader)
{
    NodeAddress address;
    address.appendItems(NativeDOMNodeType::HeadersFooters, AddressInMap(Id), NativeDOMNodeType::Header,
                        NativeDOMNodeType::Blocks, AddressInList(0));
    EXPECT_EQ(print(address), "headersFooters[219be34f-66e7-4590-8db5-375443207e49]/header/blocks[0]");
}

TEST(NodeAddressTest, PrintsTheRoot)
{
    EXPECT_EQ(print(NodeAddress()), "document");
}

TEST(NodeAddressTest, AStepOfTheNameOfTheRootHasItsText)
{
    NodeAddress address;
    address.appendItems(NativeDOMNodeType::Document);
    EXPECT_EQ(print(address), "document");
    EXPECT_NE(address, NodeAddress());
}

TEST(NodeAddressTest, PrintsWhatNoDocumentHas)
{
    NodeAddress address;
    address.appendItems(AddressInList(1), AddressInMap(), static_cast<NativeDOMNodeType>(36));
    EXPECT_EQ(print(address), "[1][null]/node(36)");
}

} // namespace

} // namespace QN::DOM::NodeAddressTest
