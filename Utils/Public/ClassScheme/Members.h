#pragma once

#include <boost/describe/bases.hpp>
#include <boost/describe/members.hpp>

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

/// Compile-time walks over a class's one list of bases and members.

namespace QN {

template <class T>
using MembersOf = boost::describe::describe_members<T, boost::describe::mod_any_access>;

template <class T>
using BasesOf = boost::describe::describe_bases<T, boost::describe::mod_any_access>;

template <class T>
concept Described = boost::describe::has_describe_members<T>::value;

namespace MembersDetails {

template <class Function, template <class...> class List, class... Descriptors>
constexpr void forEachOf(List<Descriptors...>, Function&& function)
{
    (function(Descriptors{}), ...);
}

/// Stops at the first descriptor for which the function answers false.
template <class Function, template <class...> class List, class... Descriptors>
constexpr bool allOf(List<Descriptors...>, Function&& function)
{
    return (function(Descriptors{}) && ...);
}

template <class List, std::size_t Index>
struct DescriptorAt;

template <template <class...> class List, class Head, class... Tail, std::size_t Index>
struct DescriptorAt<List<Head, Tail...>, Index> : DescriptorAt<List<Tail...>, Index - 1> {
};

template <template <class...> class List, class Head, class... Tail>
struct DescriptorAt<List<Head, Tail...>, 0> {
    using type = Head;
};

template <class List, class Function, std::size_t... Indices>
constexpr void forEachIn(std::index_sequence<Indices...>, Function&& function)
{
    (function(typename DescriptorAt<List, Indices>::type{}), ...);
}

template <class T>
concept HasJsonOrder = requires(T** object)
{
    getJsonOrder(object);
};

/// Whether the indices are those of all descriptors, each one once.
template <template <class...> class List, class... Descriptors, std::size_t... Indices>
constexpr bool isPermutation(List<Descriptors...>, std::index_sequence<Indices...>)
{
    constexpr std::size_t Count = sizeof...(Descriptors);
    constexpr std::uint64_t Found = (std::uint64_t{0} | ... | (std::uint64_t{1} << Indices));
    static_assert(Count < 64);
    return sizeof...(Indices) == Count && Found == (std::uint64_t{1} << Count) - 1;
}

} // namespace MembersDetails

/// Calls `function(descriptor)` for each direct base; `descriptor::type` is the base.
template <class T, class Function>
constexpr void forEachBase(Function&& function)
{
    MembersDetails::forEachOf(BasesOf<T>{}, function);
}

/// Calls `function(descriptor)` for each member; `descriptor.pointer` and `descriptor.name` tell which.
template <class T, class Function>
constexpr void forEachMember(Function&& function)
{
    MembersDetails::forEachOf(MembersOf<T>{}, function);
}

/// As `forEachMember`, in the order of the keys in a file.
template <class T, class Function>
constexpr void forEachKey(Function&& function)
{
    if constexpr (MembersDetails::HasJsonOrder<T>) {
        constexpr auto Order = getJsonOrder(static_cast<T**>(nullptr));
        static_assert(MembersDetails::isPermutation(MembersOf<T>{}, Order), "each member has one place");
        MembersDetails::forEachIn<MembersOf<T>>(Order, function);
    } else {
        forEachMember<T>(function);
    }
}

template <class T, class Function>
constexpr bool allBases(Function&& function)
{
    return MembersDetails::allOf(BasesOf<T>{}, function);
}

template <class T, class Function>
constexpr bool allMembers(Function&& function)
{
    return MembersDetails::allOf(MembersOf<T>{}, function);
}

} // namespace QN
