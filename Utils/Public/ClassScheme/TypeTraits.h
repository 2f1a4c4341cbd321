#pragma once

#include <boost/container/container_fwd.hpp>
#include <boost/optional/optional_fwd.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/unordered/unordered_flat_map_fwd.hpp>
#include <boost/unordered/unordered_map_fwd.hpp>
#include <boost/variant/variant_fwd.hpp>

#include <memory>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

/// What shape a member has: the rules of comparing, copying and persisting follow from it.

namespace QN {

template <class P>
class PropagateConstPtr;
template <class T>
class SharedConstPtr;

namespace TypeTraitsDetails {

template <class T, template <class...> class Template>
inline constexpr bool isInstance = false;

template <template <class...> class Template, class... Ts>
inline constexpr bool isInstance<Template<Ts...>, Template> = true;

} // namespace TypeTraitsDetails

template <class T, template <class...> class Template>
concept InstanceOf = TypeTraitsDetails::isInstance<T, Template>;

template <class T>
concept IsOptional = InstanceOf<T, boost::optional>;

template <class T>
concept IsVariant = InstanceOf<T, boost::variant>;

template <class T>
concept IsPair = InstanceOf<T, std::pair>;

template <class T>
concept IsUniquePtr = InstanceOf<T, std::unique_ptr>;

template <class T>
concept IsPointerLike = IsUniquePtr<T> || InstanceOf<T, std::shared_ptr> ||
    InstanceOf<T, boost::intrusive_ptr> || InstanceOf<T, PropagateConstPtr> || InstanceOf<T, SharedConstPtr>;

template <class T>
concept IsVector = InstanceOf<T, std::vector> || InstanceOf<T, boost::container::vector>;

template <class T>
concept IsHashMap = InstanceOf<T, boost::unordered_map> || InstanceOf<T, boost::unordered_flat_map> ||
    InstanceOf<T, std::unordered_map>;

template <class T>
concept IsMap = requires(T map)
{
    typename T::key_type;
    typename T::mapped_type;
    map.find(std::declval<const typename T::key_type&>());
};

template <class T>
concept IsSet = !IsMap<T> && requires
{
    typename T::key_type;
};

template <class T>
concept IsSequence = (IsVector<T> || IsMap<T> || IsSet<T>)&&!IsHashMap<T>;

/// The plain pointer inside a smart pointer.
template <class Pointer>
const auto* rawPointer(const Pointer& pointer)
{
    if constexpr (requires { pointer.getPtr(); }) {
        return pointer.getPtr().get();
    } else {
        return pointer.get();
    }
}

} // namespace QN
