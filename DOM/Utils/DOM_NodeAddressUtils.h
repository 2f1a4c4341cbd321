#pragma once

#include <boost/optional/optional.hpp>

#include <cstddef>
#include <utility>

#include "DOM/Utils/DOM_NodeAddress.h"
#include "Utils/Public/Export.h"

/// Queries on node addresses, and cuts of them. All are linear in the length of the address.
///
/// A cut keeps the address up to some step to a collection: to just behind that step, so that the address is that of the
/// collection, or to behind the item after it, so that it is that of an element. Occurrences of a step count from 0. A
/// collection step that `isCollectionAddressType` does not know fails the contract
/// "isCollectionAddressType(collectionNodeType)", also where the address has no such step.
namespace QN::DOM::NodeAddressUtils {

// Queries.

/// How many items are the named step `nodeType`.
DOM_API std::size_t countNodeType(const NodeAddress& address, NativeDOMNodeType nodeType);

/// The named step at `index`. A step of another kind there fails the contract "fixedAddress", an index past the end
/// "index < _items.size()".
DOM_API NativeDOMNodeType getNativeDOMNodeTypeAt(const NodeAddress& address, unsigned long index);

/// Whether the address leads to the blocks of the document itself or into one of them, but not into blocks within a block,
/// such as those of a cell: its first named step is `Blocks`, and it has that step once.
DOM_API bool isAddressToRootBlocks(const NodeAddress& address);

/// The index of the first named step, whichever it is, at `begin` or behind it.
template <class NodeType, class Tag>
boost::optional<unsigned long>
getFirstFixedAddrIndex(const NodeAddressing::NodeAddress<Tag, NodeType>& address, unsigned long begin = 0)
{
    for (std::size_t index = begin; index < address.size(); ++index) {
        if (address.template getItemAs<NodeAddressing::FixedNodeAddress<NodeType>>(index) != nullptr) {
            return index;
        }
    }
    return boost::none;
}

/// The index of the first named step `nodeType` at `begin` or behind it.
template <class NodeType, class Tag>
boost::optional<unsigned long>
getFirstFixedAddrIndex(const NodeAddressing::NodeAddress<Tag, NodeType>& address, NodeType nodeType,
                       unsigned long begin = 0)
{
    for (auto index = getFirstFixedAddrIndex<NodeType>(address, begin); index;
         index = getFirstFixedAddrIndex<NodeType>(address, *index + 1)) {
        if (address.template getItemAs<NodeAddressing::FixedNodeAddress<NodeType>>(*index)->getNodeType() ==
            nodeType) {
            return index;
        }
    }
    return boost::none;
}

/// The length of the address up to an occurrence of a step to a collection: with `isCollection` just behind that step,
/// without it behind the item that follows. The address need not have that item, so that the result can be one more than its
/// length. Empty when the address does not have the occurrence.
DOM_API boost::optional<unsigned long> getIndexAfter(const NodeAddress& address,
                                                     NativeDOMNodeType collectionNodeType,
                                                     unsigned long occurrence, bool isCollection);
DOM_API boost::optional<unsigned long>
getIndexAfterLast(const NodeAddress& address, NativeDOMNodeType collectionNodeType, bool isCollection);

// Changes.

/// Adds the items at the end.
template <class... Items>
void appendItems(NodeAddress& address, Items&&... items)
{
    address.appendItems(std::forward<Items>(items)...);
}

/// Cuts the address at the place that `getIndexAfter` gives. False, and no change, when it does not have the occurrence. An
/// address that ends in the step to the collection has no element to cut behind: then the contract
/// "position <= _items.size()" fails.
DOM_API bool cutAfter(NodeAddress& address, NativeDOMNodeType collectionNodeType, unsigned long occurrence,
                      bool isCollection);
DOM_API bool cutAfterLast(NodeAddress& address, NativeDOMNodeType collectionNodeType, bool isCollection);

/// The same with either setting of the flag.
DOM_API bool cutAfterCollection(NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                unsigned long occurrence);
DOM_API bool cutAfterCollectionElement(NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                       unsigned long occurrence);
DOM_API bool cutAfterLastCollection(NodeAddress& address, NativeDOMNodeType collectionNodeType);
DOM_API bool cutAfterLastCollectionElement(NodeAddress& address, NativeDOMNodeType collectionNodeType);

/// The same on a copy, which is a whole one when the address does not have the occurrence.
DOM_API NodeAddress getCutAfter(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                unsigned long occurrence, bool isCollection);
DOM_API NodeAddress getCutAfterLast(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                    bool isCollection);
DOM_API NodeAddress getCutAfterCollection(const NodeAddress& address, NativeDOMNodeType collectionNodeType,
                                          unsigned long occurrence);
DOM_API NodeAddress getCutAfterCollectionElement(const NodeAddress& address,
                                                 NativeDOMNodeType collectionNodeType,
                                                 unsigned long occurrence);
DOM_API NodeAddress getCutAfterLastCollection(const NodeAddress& address,
                                              NativeDOMNodeType collectionNodeType);
DOM_API NodeAddress getCutAfterLastCollectionElement(const NodeAddress& address,
                                                     NativeDOMNodeType collectionNodeType);

} // namespace QN::DOM::NodeAddressUtils
