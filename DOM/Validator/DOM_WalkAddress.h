#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "DOM/Utils/DOM_NodeAddress.h"
#include "DOM/Validator/DOM_AddressTree.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

/// The address of the object that a walk stands at. It can be recorded at any time: each step goes into the tree once, however
/// many places behind it are recorded, so that recording costs no more than the walk itself.
class DOM_API WalkAddress {
public:
    /// Records nothing without a tree.
    explicit WalkAddress(std::shared_ptr<AddressTree> tree = nullptr) : _tree(std::move(tree)) {}

    std::size_t size() const { return _address.size(); }
    const NodeAddress& get() const { return _address; }
    std::shared_ptr<const AddressTree> getTree() const { return _tree; }

    template <class... Items>
    void appendItems(Items&&... items)
    {
        _address.appendItems(std::forward<Items>(items)...);
    }

    /// Keeps the first `position` items, of which there must be so many.
    void cutToPosition(std::size_t position);

    /// The number of this address in the tree; `AddressTree::Root` without one. In amortised constant time for each step of
    /// the walk.
    std::size_t record();

private:
    NodeAddress _address;
    std::shared_ptr<AddressTree> _tree;
    /// The numbers of the first items, as far as they are in the tree.
    std::vector<std::size_t> _recorded;
};

} // namespace QN::DOM
