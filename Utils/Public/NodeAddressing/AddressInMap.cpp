#include "Utils/Public/NodeAddressing/AddressInMap.h"

#include <memory>

#include "Utils/Public/NodeAddressing/SimpleValueMapKey.h"

namespace QN::NodeAddressing {

AddressInMap::AddressInMap(const UUID& uuid) : _key(std::make_shared<const SimpleValueMapKey<UUID>>(uuid)) {}

bool operator==(const AddressInMap& left, const AddressInMap& right)
{
    if (left._key.get() == right._key.get()) {
        return true;
    }
    return left._key && right._key && areDeeplyEqual(*left._key, *right._key);
}

std::size_t hash_value(const AddressInMap& address)
{
    return address._key ? address._key->getHash() : 0;
}

std::string AddressInMap::toString() const
{
    return "[" + (_key ? _key->toString() : "null") + "]";
}

} // namespace QN::NodeAddressing
