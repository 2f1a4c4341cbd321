#pragma once

#include <boost/describe/class.hpp>

#include <compare>
#include <utility>

#include "Utils/Public/Export.h"

/// What a class declares in its header so that everything else follows from its member list: see Define.h for
/// the other half. Light on purpose, since every header of the model includes it.

namespace cereal {
class JSONInputArchive;
class JSONOutputArchive;
} // namespace cereal

namespace QN {

/// How an ordering treats a NaN. `Unordered` ends a comparison as "not less", as `operator<` of a number does.
/// `Last` puts NaN behind every number and holds all NaNs equivalent: the strict weak order that sorted
/// containers need.
enum class NanOrder : bool { Unordered, Last };

} // namespace QN

#define QN_SERIALIZE(Class)                                                                                  \
    void serialize(cereal::JSONOutputArchive& archive) const;                                                \
    void serialize(cereal::JSONInputArchive& archive);

#define QN_EQUALITY(Class) bool operator==(const Class& other) const;

#define QN_ORDER(Class)                                                                                      \
    std::partial_ordering compare(const Class& other, ::QN::NanOrder nanOrder) const;                        \
    friend std::partial_ordering operator<=>(const Class& left, const Class& right)                          \
    {                                                                                                        \
        return left.compare(right, ::QN::NanOrder::Unordered);                                               \
    }

#define QN_VALUE(Class)                                                                                      \
    QN_EQUALITY(Class)                                                                                       \
    QN_SERIALIZE(Class)

#define QN_ORDERED_VALUE(Class)                                                                              \
    QN_VALUE(Class)                                                                                          \
    QN_ORDER(Class)

/// Copies are deep and assignment gives the strong guarantee; moves do not throw. An object may be assigned
/// from a part of itself by a copy, but not by a move, which may destroy the part before it has read it all.
#define QN_DEEP_COPY(Class)                                                                                  \
    Class(const Class& other);                                                                               \
    Class& operator=(const Class& other);                                                                    \
    Class(Class&&) noexcept = default;                                                                       \
    Class& operator=(Class&&) noexcept = default;

/// The order of the keys in a file where it is not that of the member list: indices into the list, each one once. Holds
/// wherever it stands in the class, and not for classes derived from it.
#define QN_JSON_ORDER(Class, ...)                                                                            \
    [[maybe_unused]] friend constexpr std::index_sequence<__VA_ARGS__> getJsonOrder(Class**)                 \
    {                                                                                                        \
        return {};                                                                                           \
    }
