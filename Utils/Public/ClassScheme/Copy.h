#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "Utils/Public/ClassScheme/Members.h"
#include "Utils/Public/ClassScheme/TypeTraits.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/TypeList.h"

/// Deep copies. What a `std::unique_ptr` owns is copied; what a shared pointer holds is immutable and is shared.

namespace QN {

template <class T>
T deepCopy(const T& source);

/// The vector form: reserves, copies each element and keeps null elements null.
template <class T, class Allocator>
std::vector<T, Allocator> deepCopyImpl(const std::vector<T, Allocator>& source, QNDummy)
{
    std::vector<T, Allocator> copy;
    copy.reserve(source.size());
    for (const auto& element : source) {
        copy.push_back(deepCopy(element));
    }
    return copy;
}

/// Copies an associative container, its values by `deepCopy`.
template <class Map>
Map copyMap(const Map& source)
{
    Map copy;
    if constexpr (requires { copy.reserve(source.size()); }) {
        copy.reserve(source.size());
    }
    for (const auto& [key, value] : source) {
        copy.emplace_hint(copy.end(), key, deepCopy(value));
    }
    return copy;
}

namespace CopyDetails {

template <class T>
concept IsDeepVector = InstanceOf<T, std::vector> && !std::is_trivially_copyable_v<typename T::value_type>;

template <class T>
concept IsOwningMap = IsMap<T> && !std::is_copy_constructible_v<typename T::mapped_type>;

/// A new object with the dynamic type of the source for a family, of the class itself otherwise.
template <class T>
std::unique_ptr<T> cloneObject(const T& source)
{
    if constexpr (std::is_base_of_v<ClonableBase, T> && std::is_abstract_v<T>) {
        std::unique_ptr<T> copy;
        source.cloneTo(copy);
        return copy;
    } else {
        return std::make_unique<T>(source);
    }
}

} // namespace CopyDetails

template <class T>
T deepCopy(const T& source)
{
    if constexpr (IsUniquePtr<T>) {
        return source ? CopyDetails::cloneObject(*source) : nullptr;
    } else if constexpr (InstanceOf<T, PropagateConstPtr>) {
        return T(deepCopy(source.getPtr()));
    } else if constexpr (CopyDetails::IsDeepVector<T>) {
        return deepCopyImpl(source, QNDummy{});
    } else if constexpr (IsPair<T>) {
        return T(deepCopy(source.first), deepCopy(source.second));
    } else if constexpr (CopyDetails::IsOwningMap<T>) {
        return copyMap(source);
    } else {
        return source;
    }
}

/// Copies the members of one object into another, bases left out.
template <Described T>
void copyAllMembers(T& target, const T& source)
{
    forEachMember<T>([&](auto member) { target.*member.pointer = deepCopy(source.*member.pointer); });
}

} // namespace QN
