#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "Utils/Public/Export.h"
#include "Utils/Public/NodeAddressing/MapKey.h"
#include "Utils/Public/Ptr/SharedConstPtr.h"

namespace QN::NodeAddressing {

/// A step of a node address: the element of a map. Copies share the key.
class DOM_API AddressInMap {
public:
    /// Has no key, as a step that was moved from.
    AddressInMap() = default;
    explicit AddressInMap(SharedConstPtr<MapKey> key) : _key(std::move(key)) {}
    /// An element that is known by its `UUID`.
    explicit AddressInMap(const UUID& uuid);

    const SharedConstPtr<MapKey>& getKey() const { return _key; }
    void setKey(SharedConstPtr<MapKey> key) { _key = std::move(key); }

    /// Keys compare by value; two steps without one are equal.
    DOM_API friend bool operator==(const AddressInMap& left, const AddressInMap& right);

    /// The hash of the key, 0 without one.
    DOM_API friend std::size_t hash_value(const AddressInMap& address);

    /// As in "[219be34f-66e7-4590-8db5-375443207e49]"; "[null]" without a key.
    std::string toString() const;

private:
    SharedConstPtr<MapKey> _key;
};

} // namespace QN::NodeAddressing
