#include "DOM/Utils/DOM_NodeAddressUtils.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace QN::DOM::NodeAddressUtilsTest {

namespace {

using namespace NodeAddressUtils;
using NodeAddressing::AddressInList;
using NodeAddressing::AddressInMap;
using NodeAddressing::AddressInTable;
using Type = NativeDOMNodeType;
using OptionalIndex = boost::optional<unsigned long>;

constexpr auto UnknownType = static_cast<Type>(36);

/// In the root: block 3, a table; in its cell (2, 5): block 0; there: run 1.
NodeAddress makeRunInCell()
{
    NodeAddress address;
    appendItems(address, Type::Blocks, AddressInList(3), AddressInTable(RowIndex(2), ColumnIndex(5)),
                Type::Blocks, AddressInList(0), Type::Runs, AddressInList(1));
    return address;
}

template <class... Items>
NodeAddress makeAddress(Items... items)
{
    NodeAddress address;
    appendItems(address, items...);
    return address;
}

NodeAddress getPrefix(NodeAddress address, std::size_t size)
{
    address.cutToPosition(size);
    return address;
}

TEST(NodeAddressUtilsTest, AppendsItems)
{
    NodeAddress address;
    appendItems(address, AddressInList(1));
    appendItems<Type, AddressInList>(address, Type::Runs, AddressInList(2));
    EXPECT_EQ(address.toString(), "[1]/runs[2]");
    appendItems(address);
    EXPECT_EQ(address.size(), 3U);
}

TEST(NodeAddressUtilsTest, CountsANamedStep)
{
    EXPECT_EQ(countNodeType(makeRunInCell(), Type::Blocks), 2U);
    EXPECT_EQ(countNodeType(makeRunInCell(), Type::Runs), 1U);
    EXPECT_EQ(countNodeType(makeRunInCell(), Type::Header), 0U);
    EXPECT_EQ(countNodeType(makeRunInCell(), UnknownType), 0U);
    EXPECT_EQ(countNodeType(NodeAddress(), Type::Blocks), 0U);
    EXPECT_EQ(countNodeType(makeAddress(UnknownType, UnknownType), UnknownType), 2U);
}

TEST(NodeAddressUtilsTest, IndicesOfElementsAreNoNamedSteps)
{
    EXPECT_EQ(countNodeType(makeAddress(AddressInList(5), Type::Runs, AddressInList(5)), Type::Blocks), 0U);
}

TEST(NodeAddressUtilsTest, GetsTheNamedStepAtAnIndex)
{
    EXPECT_EQ(getNativeDOMNodeTypeAt(makeRunInCell(), 0), Type::Blocks);
    EXPECT_EQ(getNativeDOMNodeTypeAt(makeRunInCell(), 5), Type::Runs);
    EXPECT_EQ(getNativeDOMNodeTypeAt(makeAddress(UnknownType), 0), UnknownType);
}

TEST(NodeAddressUtilsTest, TheRootIsNotAmongTheRootBlocks)
{
    EXPECT_FALSE(isAddressToRootBlocks(NodeAddress()));
}

TEST(NodeAddressUtilsTest, AddressesIntoTheBlocksOfTheDocumentAreToRootBlocks)
{
    EXPECT_TRUE(isAddressToRootBlocks(makeAddress(Type::Blocks)));
    EXPECT_TRUE(isAddressToRootBlocks(makeAddress(Type::Blocks, AddressInList(3))));
    EXPECT_TRUE(
        isAddressToRootBlocks(makeAddress(Type::Blocks, AddressInList(3), Type::Runs, AddressInList(0))));
}

TEST(NodeAddressUtilsTest, ACellOfARootTableIsToRootBlocksAndItsBlocksAreNot)
{
    EXPECT_TRUE(isAddressToRootBlocks(getPrefix(makeRunInCell(), 3)));
    for (const std::size_t size : {4U, 5U, 6U, 7U}) {
        EXPECT_FALSE(isAddressToRootBlocks(getPrefix(makeRunInCell(), size))) << size;
    }
}

TEST(NodeAddressUtilsTest, BlocksThatAreEnteredFromElsewhereAreNoRootBlocks)
{
    EXPECT_FALSE(isAddressToRootBlocks(makeAddress(Type::HeadersFooters, AddressInMap(UUID::generate()),
                                                   Type::Header, Type::Blocks, AddressInList(0))));
    EXPECT_FALSE(isAddressToRootBlocks(makeAddress(Type::Runs)));
    EXPECT_FALSE(isAddressToRootBlocks(makeAddress(AddressInList(5))));
}

TEST(NodeAddressUtilsTest, OnlyTheFirstNamedStepMustBeTheBlocks)
{
    EXPECT_TRUE(isAddressToRootBlocks(makeAddress(AddressInList(0), Type::Blocks)));
}

TEST(NodeAddressUtilsTest, FindsTheFirstNamedStep)
{
    const NodeAddress address = makeRunInCell();
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address), OptionalIndex(0UL));
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, 1UL), OptionalIndex(3UL));
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, 3UL), OptionalIndex(3UL));
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, 6UL), boost::none);
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, 100UL), boost::none);
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(NodeAddress()), boost::none);
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(makeAddress(AddressInList(5))), boost::none);
}

TEST(NodeAddressUtilsTest, FindsTheFirstOfANamedStep)
{
    const NodeAddress address = makeRunInCell();
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, Type::Runs), OptionalIndex(5UL));
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, Type::Blocks), OptionalIndex(0UL));
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, Type::Blocks, 1), OptionalIndex(3UL));
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, Type::Blocks, 4), boost::none);
    EXPECT_EQ(getFirstFixedAddrIndex<Type>(address, Type::Header), boost::none);
}

TEST(NodeAddressUtilsTest, IndexAfterACollectionIsJustBehindItsStep)
{
    const NodeAddress address = makeRunInCell();
    EXPECT_EQ(getIndexAfter(address, Type::Blocks, 0, true), OptionalIndex(1UL));
    EXPECT_EQ(getIndexAfter(address, Type::Blocks, 1, true), OptionalIndex(4UL));
    EXPECT_EQ(getIndexAfter(address, Type::Runs, 0, true), OptionalIndex(6UL));
    EXPECT_EQ(getIndexAfterLast(address, Type::Blocks, true), OptionalIndex(4UL));
}

TEST(NodeAddressUtilsTest, IndexAfterAnElementIsBehindTheItemThatFollows)
{
    const NodeAddress address = makeRunInCell();
    EXPECT_EQ(getIndexAfter(address, Type::Blocks, 0, false), OptionalIndex(2UL));
    EXPECT_EQ(getIndexAfter(address, Type::Blocks, 1, false), OptionalIndex(5UL));
    EXPECT_EQ(getIndexAfter(address, Type::Runs, 0, false), OptionalIndex(7UL));
    EXPECT_EQ(getIndexAfterLast(address, Type::Blocks, false), OptionalIndex(5UL));
}

TEST(NodeAddressUtilsTest, IndexAfterAnOccurrenceThatTheAddressDoesNotHaveIsEmpty)
{
    for (const bool isCollection : {true, false}) {
        EXPECT_EQ(getIndexAfter(makeRunInCell(), Type::Blocks, 2, isCollection), boost::none);
        EXPECT_EQ(getIndexAfter(makeRunInCell(), Type::Runs, 1, isCollection), boost::none);
        EXPECT_EQ(getIndexAfter(makeRunInCell(), Type::Comments, 0, isCollection), boost::none);
        EXPECT_EQ(getIndexAfterLast(makeRunInCell(), Type::Comments, isCollection), boost::none);
        EXPECT_EQ(getIndexAfter(NodeAddress(), Type::Blocks, 0, isCollection), boost::none);
        EXPECT_EQ(getIndexAfterLast(NodeAddress(), Type::Blocks, isCollection), boost::none);
    }
}

TEST(NodeAddressUtilsTest, IndexAfterAnElementThatIsNotThereIsOnePastTheLength)
{
    EXPECT_EQ(getIndexAfter(makeAddress(Type::Blocks), Type::Blocks, 0, false), OptionalIndex(2UL));
}

TEST(NodeAddressUtilsTest, CutsAfterAnOccurrence)
{
    const auto cut = [](unsigned long occurrence, bool isCollection) {
        NodeAddress address = makeRunInCell();
        EXPECT_TRUE(cutAfter(address, Type::Blocks, occurrence, isCollection));
        return address;
    };
    EXPECT_EQ(cut(0, true), getPrefix(makeRunInCell(), 1));
    EXPECT_EQ(cut(0, false), getPrefix(makeRunInCell(), 2));
    EXPECT_EQ(cut(1, true), getPrefix(makeRunInCell(), 4));
    EXPECT_EQ(cut(1, false), getPrefix(makeRunInCell(), 5));
}

TEST(NodeAddressUtilsTest, CutsAfterTheLastOccurrence)
{
    NodeAddress collection = makeRunInCell();
    EXPECT_TRUE(cutAfterLast(collection, Type::Blocks, true));
    EXPECT_EQ(collection, getPrefix(makeRunInCell(), 4));
    NodeAddress element = makeRunInCell();
    EXPECT_TRUE(cutAfterLast(element, Type::Blocks, false));
    EXPECT_EQ(element, getPrefix(makeRunInCell(), 5));
}

TEST(NodeAddressUtilsTest, ACutAtTheEndChangesNothing)
{
    NodeAddress address = makeRunInCell();
    EXPECT_TRUE(cutAfter(address, Type::Runs, 0, false));
    EXPECT_EQ(address, makeRunInCell());
}

TEST(NodeAddressUtilsTest, ACutThatFindsNothingIsFalseAndChangesNothing)
{
    NodeAddress address = makeRunInCell();
    for (const bool isCollection : {true, false}) {
        EXPECT_FALSE(cutAfter(address, Type::Blocks, 2, isCollection));
        EXPECT_FALSE(cutAfter(address, Type::Comments, 0, isCollection));
        EXPECT_FALSE(cutAfterLast(address, Type::Comments, isCollection));
        EXPECT_EQ(getCutAfter(address, Type::Blocks, 2, isCollection), address);
        EXPECT_EQ(getCutAfterLast(address, Type::Comments, isCollection), address);
    }
    EXPECT_FALSE(cutAfterCollection(address, Type::Blocks, 2));
    EXPECT_FALSE(cutAfterCollectionElement(address, Type::Blocks, 2));
    EXPECT_FALSE(cutAfterLastCollection(address, Type::Comments));
    EXPECT_FALSE(cutAfterLastCollectionElement(address, Type::Comments));
    EXPECT_EQ(address, makeRunInCell());
}

TEST(NodeAddressUtilsTest, NamedCutsAreThoseWithEitherSettingOfTheFlag)
{
    const auto cut = [](auto operation, auto... arguments) {
        NodeAddress address = makeRunInCell();
        EXPECT_TRUE(operation(address, Type::Blocks, arguments...));
        return address.size();
    };
    EXPECT_EQ(cut(cutAfterCollection, 0UL), 1U);
    EXPECT_EQ(cut(cutAfterCollection, 1UL), 4U);
    EXPECT_EQ(cut(cutAfterCollectionElement, 0UL), 2U);
    EXPECT_EQ(cut(cutAfterCollectionElement, 1UL), 5U);
    EXPECT_EQ(cut(cutAfterLastCollection), 4U);
    EXPECT_EQ(cut(cutAfterLastCollectionElement), 5U);
}

TEST(NodeAddressUtilsTest, CutCopiesLeaveTheAddressAsItIs)
{
    const NodeAddress address = makeRunInCell();
    EXPECT_EQ(getCutAfter(address, Type::Blocks, 0, true), getPrefix(address, 1));
    EXPECT_EQ(getCutAfter(address, Type::Blocks, 0, false), getPrefix(address, 2));
    EXPECT_EQ(getCutAfterLast(address, Type::Blocks, true), getPrefix(address, 4));
    EXPECT_EQ(getCutAfterLast(address, Type::Blocks, false), getPrefix(address, 5));
    EXPECT_EQ(getCutAfterCollection(address, Type::Blocks, 1), getPrefix(address, 4));
    EXPECT_EQ(getCutAfterCollectionElement(address, Type::Blocks, 1), getPrefix(address, 5));
    EXPECT_EQ(getCutAfterLastCollection(address, Type::Blocks), getPrefix(address, 4));
    EXPECT_EQ(getCutAfterLastCollectionElement(address, Type::Blocks), getPrefix(address, 5));
    EXPECT_EQ(address, makeRunInCell());
}

TEST(NodeAddressUtilsTest, AgreesWithTheNumbersOfRandomSteps)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 200; ++round) {
        // Each item is a named step 4 or 5, or, for a 0, an index.
        std::vector<unsigned> numbers(random() % 12);
        NodeAddress address;
        std::vector<unsigned long> places;
        for (std::size_t index = 0; index < numbers.size(); ++index) {
            numbers[index] = random() % 3 == 0 ? 0 : 4 + random() % 2;
            if (numbers[index] == 0) {
                address.appendItems(AddressInList(5));
            } else {
                address.appendItems(static_cast<Type>(numbers[index]));
            }
            if (numbers[index] == 5) {
                places.push_back(index);
            }
        }
        SCOPED_TRACE(address.toString());
        ASSERT_EQ(countNodeType(address, Type::Blocks), places.size());
        for (unsigned long occurrence = 0; occurrence <= places.size(); ++occurrence) {
            const bool isThere = occurrence < places.size();
            const auto expected = isThere ? OptionalIndex(places[occurrence] + 1) : boost::none;
            ASSERT_EQ(getIndexAfter(address, Type::Blocks, occurrence, true), expected);
        }
        const auto last = places.empty() ? boost::none : OptionalIndex(places.back() + 2);
        ASSERT_EQ(getIndexAfterLast(address, Type::Blocks, false), last);
        const auto firstStep =
            std::find_if(numbers.begin(), numbers.end(), [](unsigned n) { return n != 0; });
        ASSERT_EQ(isAddressToRootBlocks(address),
                  firstStep != numbers.end() && *firstStep == 5 && places.size() == 1);
    }
}

TEST(NodeAddressUtilsDeathTest, APositionalItemHasNoNamedStep)
{
    EXPECT_DEATH(static_cast<void>(getNativeDOMNodeTypeAt(makeRunInCell(), 1)),
                 "DOM/Utils/DOM_NodeAddressUtils\\.cpp:[0-9]+: fixedAddress\n");
    EXPECT_DEATH(static_cast<void>(getNativeDOMNodeTypeAt(makeRunInCell(), 2)), "fixedAddress\n");
}

TEST(NodeAddressUtilsDeathTest, TheNamedStepBehindTheEndBreaksTheContract)
{
    EXPECT_DEATH(static_cast<void>(getNativeDOMNodeTypeAt(makeRunInCell(), 7)),
                 "Utils/Public/NodeAddressing/NodeAddress:180: index < _items\\.size\\(\\)\n");
}

TEST(NodeAddressUtilsDeathTest, AnIndexAfterWhatIsNoCollectionBreaksTheContract)
{
    const char* const message =
        "DOM/Utils/DOM_NodeAddressUtils:24: isCollectionAddressType\\(collectionNodeType\\)\n";
    for (const Type type : {Type::Document, Type::Header, UnknownType}) {
        EXPECT_DEATH(static_cast<void>(getIndexAfter(makeRunInCell(), type, 0, true)), message);
        EXPECT_DEATH(static_cast<void>(getIndexAfter(NodeAddress(), type, 0, false)), message);
        EXPECT_DEATH(static_cast<void>(getIndexAfterLast(makeRunInCell(), type, true)), message);
    }
}

TEST(NodeAddressUtilsDeathTest, ACutAfterWhatIsNoCollectionBreaksTheContract)
{
    const char* const message =
        "DOM/Utils/DOM_NodeAddressUtils:70: isCollectionAddressType\\(collectionNodeType\\)\n";
    NodeAddress address = makeRunInCell();
    EXPECT_DEATH(static_cast<void>(cutAfter(address, Type::Header, 0, true)), message);
    EXPECT_DEATH(static_cast<void>(cutAfterLast(address, Type::Header, true)), message);
    EXPECT_DEATH(static_cast<void>(cutAfterCollection(address, Type::Header, 0)), message);
    EXPECT_DEATH(static_cast<void>(cutAfterCollectionElement(address, Type::Header, 0)), message);
    EXPECT_DEATH(static_cast<void>(cutAfterLastCollection(address, Type::Header)), message);
    EXPECT_DEATH(static_cast<void>(cutAfterLastCollectionElement(address, Type::Header)), message);
    EXPECT_DEATH(static_cast<void>(getCutAfter(address, Type::Header, 0, true)), message);
    EXPECT_DEATH(static_cast<void>(getCutAfterLastCollection(address, UnknownType)), message);
}

TEST(NodeAddressUtilsDeathTest, ACutAfterAnElementThatIsNotThereBreaksTheContract)
{
    NodeAddress address = makeAddress(Type::Blocks, AddressInList(3), Type::Runs);
    const char* const message =
        "Utils/Public/NodeAddressing/NodeAddress:220: position <= _items\\.size\\(\\)\n";
    EXPECT_DEATH(static_cast<void>(cutAfterCollectionElement(address, Type::Runs, 0)), message);
    EXPECT_DEATH(static_cast<void>(cutAfterLastCollectionElement(address, Type::Runs)), message);
}

} // namespace

} // namespace QN::DOM::NodeAddressUtilsTest
