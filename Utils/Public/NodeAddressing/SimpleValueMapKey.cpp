#include "Utils/Public/NodeAddressing/SimpleValueMapKey.h"

#include <boost/functional/hash.hpp>

#include <type_traits>

namespace QN::NodeAddressing {

template <class T>
std::size_t SimpleValueMapKey<T>::getHash() const
{
    return boost::hash<T>()(_value);
}

template <class T>
std::string SimpleValueMapKey<T>::toString() const
{
    if constexpr (std::is_same_v<T, std::string>) {
        return '"' + _value + '"';
    } else {
        return _value.toString();
    }
}

template <class T>
void SimpleValueMapKey<T>::cloneTo(std::shared_ptr<MapKey>& target) const
{
    target = std::make_shared<SimpleValueMapKey>(*this);
}

template <class T>
void SimpleValueMapKey<T>::cloneTo(std::unique_ptr<MapKey>& target) const
{
    target = std::make_unique<SimpleValueMapKey>(*this);
}

template <class T>
void SimpleValueMapKey<T>::accept(MapKey::Visitor& visitor)
{
    visitor.visit(*this);
}

template <class T>
void SimpleValueMapKey<T>::accept(MapKey::ConstVisitor& visitor) const
{
    visitor.visit(*this);
}

template class SimpleValueMapKey<UUID>;
template class SimpleValueMapKey<std::string>;

} // namespace QN::NodeAddressing
