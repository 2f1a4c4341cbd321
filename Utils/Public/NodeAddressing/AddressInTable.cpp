#include "Utils/Public/NodeAddressing/AddressInTable.h"

#include <boost/functional/hash.hpp>

namespace QN::NodeAddressing {

std::size_t hash_value(const AddressInTable& address)
{
    std::size_t seed = 0;
    boost::hash_combine(seed, address.getRow().get());
    boost::hash_combine(seed, address.getColumn().get());
    return seed;
}

std::string AddressInTable::toString() const
{
    return "cell(" + std::to_string(getRow().get()) + ", " + std::to_string(getColumn().get()) + ")";
}

} // namespace QN::NodeAddressing
