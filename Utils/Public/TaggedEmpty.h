#pragma once

#include <compare>
#include <cstddef>

namespace QN {

/// A value without data, told from others by its tag: the alternative of a variant where a kind carries nothing.
/// All values of one type are equal.
template <class Tag>
struct TaggedEmpty {
    friend constexpr bool operator==(const TaggedEmpty&, const TaggedEmpty&) = default;
    friend constexpr std::strong_ordering operator<=>(const TaggedEmpty&, const TaggedEmpty&) = default;
    friend constexpr std::size_t hash_value(const TaggedEmpty&) { return 0; }
};

} // namespace QN
