#pragma once

#include <boost/functional/hash.hpp>
#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/get.hpp>
#include <boost/variant/variant.hpp>

#include <array>
#include <cstddef>
#include <iosfwd>
#include <iterator>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Utils/Public/Assert.h"
#include "Utils/Public/NodeAddressing/AddressInList.h"
#include "Utils/Public/NodeAddressing/AddressInMap.h"
#include "Utils/Public/NodeAddressing/AddressInTable.h"
#include "Utils/Public/NodeAddressing/FixedNodeAddress.h"

namespace QN::NodeAddressing {

/// The path from the root of a tree to one of its nodes: named steps, which say what member is entered, and steps to an
/// element of a list, a table or a map. It holds no pointer into the tree, so that it means the same in a copy.
///
/// `Tag` tells apart the addresses in different trees. The empty address is that of the root; `Tag::RootName` names it.
template <class Tag, class NodeType>
class NodeAddress {
public:
    using FixedAddress = FixedNodeAddress<NodeType>;
    using Item = boost::variant<AddressInList, AddressInTable, AddressInMap, FixedAddress>;

    NodeAddress() = default;

    std::size_t size() const { return _items.size(); }
    bool empty() const { return _items.empty(); }
    auto begin() const { return _items.begin(); }
    auto end() const { return _items.end(); }

    /// Adds the items at the end: each is one of the kinds of step, a `NodeType` or an `Item`. In amortised constant time for
    /// each; changes nothing when memory runs out.
    template <class... Items>
    void appendItems(Items&&... items)
    {
        std::array<Item, sizeof...(Items)> added{makeItem(std::forward<Items>(items))...};
        _items.insert(_items.end(), std::make_move_iterator(added.begin()),
                      std::make_move_iterator(added.end()));
    }

    /// Keeps the first `position` items. A position past the end fails the contract "position <= _items.size()".
    void cutToPosition(std::size_t position)
    {
        QN_CONTRACT(position <= _items.size(), "Utils/Public/NodeAddressing/NodeAddress", 220,
                    "position <= _items.size()");
        _items.erase(_items.begin() + static_cast<std::ptrdiff_t>(position), _items.end());
    }

    /// Removes the last `trimSize` items. More than there are fail the contract "trimSize <= _items.size()".
    void trimAtEnd(std::size_t trimSize)
    {
        QN_CONTRACT(trimSize <= _items.size(), "Utils/Public/NodeAddressing/NodeAddress", 245,
                    "trimSize <= _items.size()");
        _items.erase(_items.end() - static_cast<std::ptrdiff_t>(trimSize), _items.end());
    }

    /// The step at `index` if it is a `T`, null if it is of another kind. An index past the end fails the contract
    /// "index < _items.size()". Any change of the number of items invalidates the pointer.
    template <class T>
    const T* getItemAs(std::size_t index) const
    {
        checkIndex(index);
        return boost::get<T>(&_items[index]);
    }
    template <class T>
    T* getItemAs(std::size_t index)
    {
        checkIndex(index);
        return boost::get<T>(&_items[index]);
    }

    /// Keys of maps compare by value.
    bool operator==(const NodeAddress& other) const { return _items == other._items; }

    friend std::size_t hash_value(const NodeAddress& address)
    {
        std::size_t seed = 0;
        for (const Item& item : address._items) {
            boost::hash_combine(seed, item.which());
            boost::apply_visitor([&](const auto& step) { boost::hash_combine(seed, step); }, item);
        }
        return seed;
    }

    /// A text for people, such as "blocks[3]/cell(2, 5)/blocks[0]"; the name of the root for the empty address. A named step
    /// of the same name, alone, has the same text.
    std::string toString() const
    {
        if (_items.empty()) {
            return Tag::RootName;
        }
        std::string text;
        for (const Item& item : _items) {
            boost::apply_visitor([&](const auto& step) { appendStep(text, step); }, item);
        }
        return text;
    }

    friend std::ostream& operator<<(std::ostream& stream, const NodeAddress& address)
    {
        return stream << address.toString();
    }

private:
    template <class T>
    static Item makeItem(T&& item)
    {
        if constexpr (std::is_same_v<std::remove_cvref_t<T>, NodeType>) {
            return FixedAddress(item);
        } else {
            return Item(std::forward<T>(item));
        }
    }

    void checkIndex([[maybe_unused]] std::size_t index) const
    {
        QN_CONTRACT(index < _items.size(), "Utils/Public/NodeAddressing/NodeAddress", 180,
                    "index < _items.size()");
    }

    /// An index or key follows its list or map at once.
    template <class Step>
    static void appendStep(std::string& text, const Step& step)
    {
        const bool isBracketed = std::is_same_v<Step, AddressInList> || std::is_same_v<Step, AddressInMap>;
        if (!text.empty() && !isBracketed) {
            text += '/';
        }
        text += step.toString();
    }

    std::vector<Item> _items;
};

} // namespace QN::NodeAddressing
