#pragma once

#include <cstddef>
#include <string>

namespace QN::NodeAddressing {

/// A step of a node address: the element of a list.
class AddressInList {
public:
    AddressInList() = default;
    explicit AddressInList(unsigned long index) : _index(index) {}

    unsigned long getIndex() const { return _index; }
    void setIndex(unsigned long index) { _index = index; }

    friend bool operator==(const AddressInList&, const AddressInList&) = default;
    friend std::size_t hash_value(const AddressInList& address) { return address._index; }

    /// As in "[3]".
    std::string toString() const { return "[" + std::to_string(_index) + "]"; }

private:
    unsigned long _index = 0;
};

} // namespace QN::NodeAddressing
