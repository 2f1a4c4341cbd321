#pragma once

#include <boost/optional/optional.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/variant/get.hpp>
#include <boost/variant/variant.hpp>

#include <type_traits>

#include "Utils/Public/ClassScheme/Members.h"
#include "Utils/Public/ClassScheme/TypeTraits.h"
#include "Utils/Public/Clonable.h"

/// Deep equality, member by member. Pointers compare through what they point to, all else by its own `==`, so that a
/// NaN is unequal to itself.

namespace QN {

template <class T>
bool areMembersDeeplyEqual(const T& left, const T& right);

namespace DefineDeepComparisonDetails {

using ::QN::areMembersDeeplyEqual;

template <class T>
bool arePointeesDeeplyEqual(const T& left, const T& right)
{
    if constexpr (std::is_base_of_v<ClonableBase, T>) {
        return areDeeplyEqual(left, right);
    } else {
        return areMembersDeeplyEqual(left, right);
    }
}

/// The same pointer is equal, two nulls included; a null is unequal to anything else; otherwise the pointees decide.
template <class Pointer>
bool arePointersDeeplyEqual(const Pointer& left, const Pointer& right)
{
    const auto* const leftPointee = rawPointer(left);
    const auto* const rightPointee = rawPointer(right);
    if (leftPointee == rightPointee) {
        return true;
    }
    if (leftPointee == nullptr || rightPointee == nullptr) {
        return false;
    }
    return arePointeesDeeplyEqual(*leftPointee, *rightPointee);
}

template <class Sequence>
bool areSequencesDeeplyEqual(const Sequence& left, const Sequence& right)
{
    if (left.size() != right.size()) {
        return false;
    }
    auto other = right.begin();
    for (const auto& element : left) {
        if (!areMembersDeeplyEqual(element, *other)) {
            return false;
        }
        ++other;
    }
    return true;
}

template <class Map>
bool areHashMapsDeeplyEqual(const Map& left, const Map& right)
{
    if (left.size() != right.size()) {
        return false;
    }
    for (const auto& [key, value] : left) {
        const auto other = right.find(key);
        if (other == right.end() || !areMembersDeeplyEqual(value, other->second)) {
            return false;
        }
    }
    return true;
}

template <class Variant>
struct EqualToOther {
    using result_type = bool;

    template <class T>
    bool operator()(const T& alternative) const
    {
        return areMembersDeeplyEqual(alternative, *boost::relaxed_get<T>(&other));
    }

    const Variant& other;
};

} // namespace DefineDeepComparisonDetails

using DefineDeepComparisonDetails::arePointersDeeplyEqual;

/// Whether two values of one member are equal through pointers, sequences, optionals and variants.
template <class T>
bool areMembersDeeplyEqual(const T& left, const T& right)
{
    namespace Details = DefineDeepComparisonDetails;
    if constexpr (IsPointerLike<T>) {
        return Details::arePointersDeeplyEqual(left, right);
    } else if constexpr (IsOptional<T>) {
        return left.has_value() == right.has_value() && (!left || areMembersDeeplyEqual(*left, *right));
    } else if constexpr (IsVariant<T>) {
        return left.which() == right.which() && boost::apply_visitor(Details::EqualToOther<T>{right}, left);
    } else if constexpr (IsHashMap<T>) {
        return Details::areHashMapsDeeplyEqual(left, right);
    } else if constexpr (IsSequence<T>) {
        return Details::areSequencesDeeplyEqual(left, right);
    } else if constexpr (IsPair<T>) {
        return areMembersDeeplyEqual(left.first, right.first) &&
               areMembersDeeplyEqual(left.second, right.second);
    } else {
        return left == right;
    }
}

/// Whether all persisted bases and all members are deeply equal, compared in the order of the list.
template <Described T>
bool areAllMembersEqual(const T& left, const T& right)
{
    return allBases<T>([&](auto base) {
               using Base = typename decltype(base)::type;
               if constexpr (requires(const Base& b) { b == b; }) {
                   return static_cast<const Base&>(left) == static_cast<const Base&>(right);
               } else {
                   return true;
               }
           }) &&
           allMembers<T>([&](auto member) {
               return areMembersDeeplyEqual(left.*member.pointer, right.*member.pointer);
           });
}

} // namespace QN
