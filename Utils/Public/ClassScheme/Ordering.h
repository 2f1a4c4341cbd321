#pragma once

#include <boost/variant/get.hpp>
#include <boost/variant/variant.hpp>

#include <cmath>
#include <compare>
#include <string>
#include <type_traits>

#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ClassScheme/Members.h"
#include "Utils/Public/ClassScheme/TypeTraits.h"
#include "Utils/Public/Clonable.h"

/// Deep ordering, member by member and lexicographic. Null and absent come first, variants order by alternative and
/// then by value, a list that is a proper prefix of another is less, strings order by bytes.

namespace QN {

template <class T>
requires(!std::is_base_of_v<ClonableBase, T>) std::partial_ordering
    compareDeeply(const T& left, const T& right, NanOrder nanOrder);

template <Described T>
std::partial_ordering compareAllMembers(const T& left, const T& right, NanOrder nanOrder);

namespace DefineDeepComparisonDetails {

using ::QN::compareDeeply;

template <class Float>
std::partial_ordering compareFloats(Float left, Float right, NanOrder nanOrder)
{
    if (nanOrder == NanOrder::Last) {
        const bool leftIsNan = std::isnan(left);
        const bool rightIsNan = std::isnan(right);
        if (leftIsNan || rightIsNan) {
            return leftIsNan <=> rightIsNan;
        }
    }
    return left <=> right;
}

template <class Pointer>
std::partial_ordering comparePointers(const Pointer& left, const Pointer& right, NanOrder nanOrder)
{
    const auto* const leftPointee = rawPointer(left);
    const auto* const rightPointee = rawPointer(right);
    if (leftPointee == nullptr || rightPointee == nullptr) {
        return (leftPointee != nullptr) <=> (rightPointee != nullptr);
    }
    if (leftPointee == rightPointee && nanOrder == NanOrder::Last) {
        return std::partial_ordering::equivalent;
    }
    return compareDeeply(*leftPointee, *rightPointee, nanOrder);
}

template <class Sequence>
std::partial_ordering compareSequences(const Sequence& left, const Sequence& right, NanOrder nanOrder)
{
    auto other = right.begin();
    for (const auto& element : left) {
        if (other == right.end()) {
            return std::partial_ordering::greater;
        }
        const auto result = compareDeeply(element, *other, nanOrder);
        if (result != 0) {
            return result;
        }
        ++other;
    }
    return other == right.end() ? std::partial_ordering::equivalent : std::partial_ordering::less;
}

template <class Variant>
struct CompareWithOther {
    using result_type = std::partial_ordering;

    template <class T>
    std::partial_ordering operator()(const T& alternative) const
    {
        return compareDeeply(alternative, *boost::relaxed_get<T>(&other), nanOrder);
    }

    const Variant& other;
    NanOrder nanOrder;
};

} // namespace DefineDeepComparisonDetails

/// The order of two values of one member.
template <class T>
requires(!std::is_base_of_v<ClonableBase, T>) std::partial_ordering
    compareDeeply(const T& left, const T& right, NanOrder nanOrder)
{
    namespace Details = DefineDeepComparisonDetails;
    if constexpr (std::is_empty_v<T>) {
        return std::partial_ordering::equivalent;
    } else if constexpr (std::is_floating_point_v<T>) {
        return Details::compareFloats(left, right, nanOrder);
    } else if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
        return left <=> right;
    } else if constexpr (InstanceOf<T, std::basic_string>) {
        return left.compare(right) <=> 0;
    } else if constexpr (IsPointerLike<T>) {
        return Details::comparePointers(left, right, nanOrder);
    } else if constexpr (IsOptional<T>) {
        if (!left || !right) {
            return left.has_value() <=> right.has_value();
        }
        return compareDeeply(*left, *right, nanOrder);
    } else if constexpr (IsVariant<T>) {
        if (left.which() != right.which()) {
            return left.which() <=> right.which();
        }
        return boost::apply_visitor(Details::CompareWithOther<T>{right, nanOrder}, left);
    } else if constexpr (IsSequence<T>) {
        return Details::compareSequences(left, right, nanOrder);
    } else if constexpr (IsPair<T>) {
        const auto first = compareDeeply(left.first, right.first, nanOrder);
        return first != 0 ? first : compareDeeply(left.second, right.second, nanOrder);
    } else if constexpr (InstanceOf<T, cinder::Vec2>) {
        const auto first = compareDeeply(left.x, right.x, nanOrder);
        return first != 0 ? first : compareDeeply(left.y, right.y, nanOrder);
    } else if constexpr (InstanceOf<T, cinder::Vec3>) {
        const auto first = compareDeeply(left.x, right.x, nanOrder);
        const auto second = first != 0 ? first : compareDeeply(left.y, right.y, nanOrder);
        return second != 0 ? second : compareDeeply(left.z, right.z, nanOrder);
    } else if constexpr (InstanceOf<T, cinder::PolyLine>) {
        const auto points = compareDeeply(left.getPoints(), right.getPoints(), nanOrder);
        return points != 0 ? points : left.isClosed() <=> right.isClosed();
    } else if constexpr (requires { left.compare(right, nanOrder); }) {
        return left.compare(right, nanOrder);
    } else if constexpr (requires { compareDeeply(left.get(), right.get(), nanOrder); }) {
        return compareDeeply(left.get(), right.get(), nanOrder);
    } else if constexpr (Described<T>) {
        return compareAllMembers(left, right, nanOrder);
    } else {
        return left < right   ? std::partial_ordering::less
               : right < left ? std::partial_ordering::greater
                              : std::partial_ordering::equivalent;
    }
}

/// Whether one value of a member is less than another; a NaN ends the comparison as "not less".
template <class T>
bool areMembersDeeplyLess(const T& left, const T& right)
{
    return compareDeeply(left, right, NanOrder::Unordered) < 0;
}

/// The lexicographic order of the persisted bases and then of the members, in the order of the list.
template <Described T>
std::partial_ordering compareAllMembers(const T& left, const T& right, NanOrder nanOrder)
{
    std::partial_ordering result = std::partial_ordering::equivalent;
    allBases<T>([&](auto base) {
        using Base = typename decltype(base)::type;
        if constexpr (requires(const Base& b) { b.compare(b, nanOrder); }) {
            result = static_cast<const Base&>(left).compare(static_cast<const Base&>(right), nanOrder);
        }
        return result == 0;
    }) &&
        allMembers<T>([&](auto member) {
            result = compareDeeply(left.*member.pointer, right.*member.pointer, nanOrder);
            return result == 0;
        });
    return result;
}

} // namespace QN
