#include "DOM/Utils/DOM_NodeAddressUtils.h"

#include "Utils/Public/Assert.h"

namespace QN::DOM::NodeAddressUtils {

namespace {

using FixedAddress = NodeAddress::FixedAddress;
using OptionalIndex = boost::optional<unsigned long>;

OptionalIndex findOccurrence(const NodeAddress& address, NativeDOMNodeType nodeType, unsigned long occurrence)
{
    OptionalIndex index = getFirstFixedAddrIndex<NativeDOMNodeType>(address, nodeType);
    for (; index && occurrence > 0; --occurrence) {
        index = getFirstFixedAddrIndex<NativeDOMNodeType>(address, nodeType, *index + 1);
    }
    return index;
}

OptionalIndex findLast(const NodeAddress& address, NativeDOMNodeType nodeType)
{
    OptionalIndex last;
    for (OptionalIndex index = findOccurrence(address, nodeType, 0); index;
         index = getFirstFixedAddrIndex<NativeDOMNodeType>(address, nodeType, *index + 1)) {
        last = index;
    }
    return last;
}

OptionalIndex getIndexBehind(const OptionalIndex& collectionStep, bool isCollection)
{
    if (!collectionStep) {
        return boost::none;
    }
    return *collectionStep + (isCollection ? 1 : 2);
}

bool cut(NodeAddress& address, const OptionalIndex& position)
{
    if (!position) {
        return false;
    }
    address.cutToPosition(*position);
    return true;
}

void checkTypeToFind(NativeDOMNodeType collectionNodeType)
{
    QN_CONTRACT(isCollectionAddressType(collectionNodeType), "DOM/Utils/DOM_NodeAddressUtils", 24,
                "isCollectionAddressType(collectionNodeType)");
}

void checkTypeToCut(NativeDOMNodeType collectionNodeType)
{
    QN_CONTRACT(isCollectionAddressType(collectionNodeType), "DOM/Utils/DOM_NodeAddressUtils", 70,
                "isCollectionAddressType(collectionNodeType)");
}

} // namespace

std::size_t countNodeType(const NodeAddress& address, NativeDOMNodeType nodeType)
{
    std::size_t count = 0;
    for (OptionalIndex index = findOccurrence(address, nodeType, 0); index;
         index = getFirstFixedAddrIndex<NativeDOMNodeType>(address, nodeType, *index + 1)) {
        ++count;
    }
    return count;
}

NativeDOMNodeType getNativeDOMNodeTypeAt(const NodeAddress& address, unsigned long index)
{
    const auto* const fixedAddress = address.getItemAs<FixedAddress>(index);
    QN_ASSERT(fixedAddress);
    return fixedAddress->getNodeType();
}

bool isAddressToRootBlocks(const NodeAddress& address)
{
    const OptionalIndex first = getFirstFixedAddrIndex<NativeDOMNodeType>(address);
    return first && getNativeDOMNodeTypeAt(address, *first) == NativeDOMNodeType::Blocks &&
           countNodeType(address, NativeDOMNodeType::Blocks) == 1;
}

boost::optional<unsigned long> getIndexAfter(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                             unsigned long occurrence, bool isCollection)
{
    checkTypeToFind(collectionNodeType);
    return getIndexBehind(findOccurrence(address, collectionNodeType, occurrence), isCollection);
}

boost::optional<unsigned long> getIndexAfterLast(const NodeAddress& address,
                                                 NativeDOMNodeType collectionNodeType, bool isCollection)
{
    checkTypeToFind(collectionNodeType);
    return getIndexBehind(findLast(address, collectionNodeType), isCollection);
}

bool cutAfter(NodeAddress& address, NativeDOMNodeType collectionNodeType, unsigned long occurrence,
              bool isCollection)
{
    checkTypeToCut(collectionNodeType);
    return cut(address, getIndexAfter(address, collectionNodeType, occurrence, isCollection));
}

bool cutAfterLast(NodeAddress& address, NativeDOMNodeType collectionNodeType, bool isCollection)
{
    checkTypeToCut(collectionNodeType);
    return cut(address, getIndexAfterLast(address, collectionNodeType, isCollection));
}

bool cutAfterCollection(NodeAddress& address, NativeDOMNodeType collectionNodeType, unsigned long occurrence)
{
    return cutAfter(address, collectionNodeType, occurrence, true);
}

bool cutAfterCollectionElement(NodeAddress& address, NativeDOMNodeType collectionNodeType,
                               unsigned long occurrence)
{
    return cutAfter(address, collectionNodeType, occurrence, false);
}

bool cutAfterLastCollection(NodeAddress& address, NativeDOMNodeType collectionNodeType)
{
    return cutAfterLast(address, collectionNodeType, true);
}

bool cutAfterLastCollectionElement(NodeAddress& address, NativeDOMNodeType collectionNodeType)
{
    return cutAfterLast(address, collectionNodeType, false);
}

NodeAddress getCutAfter(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                        unsigned long occurrence, bool isCollection)
{
    NodeAddress copy = address;
    cutAfter(copy, collectionNodeType, occurrence, isCollection);
    return copy;
}

NodeAddress getCutAfterLast(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                            bool isCollection)
{
    NodeAddress copy = address;
    cutAfterLast(copy, collectionNodeType, isCollection);
    return copy;
}

NodeAddress getCutAfterCollection(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                  unsigned long occurrence)
{
    return getCutAfter(address, collectionNodeType, occurrence, true);
}

NodeAddress getCutAfterCollectionElement(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                         unsigned long occurrence)
{
    return getCutAfter(address, collectionNodeType, occurrence, false);
}

NodeAddress getCutAfterLastCollection(const NodeAddress& address, NativeDOMNodeType collectionNodeType)
{
    return getCutAfterLast(address, collectionNodeType, true);
}

NodeAddress getCutAfterLastCollectionElement(const NodeAddress& address, NativeDOMNodeType collectionNodeType)
{
    return getCutAfterLast(address, collectionNodeType, false);
}

} // namespace QN::DOM::NodeAddressUtils
