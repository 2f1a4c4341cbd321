#pragma once

#include <cstdint>

namespace cereal::detail {

/// The bytes of a word that cannot stand in a JSON string as they are (control characters, quotes, backslashes), each
/// told by the high bit of its place. The lowest bit set is exact; those above it may be too many.
inline std::uint64_t findSpecialBytes(std::uint64_t bytes)
{
    constexpr std::uint64_t Ones = 0x0101010101010101U;
    constexpr std::uint64_t Highs = 0x8080808080808080U;
    const std::uint64_t quotes = bytes ^ (Ones * '"');
    const std::uint64_t backslashes = bytes ^ (Ones * '\\');
    const std::uint64_t found = (bytes - Ones * 0x20U) | (quotes - Ones) | (backslashes - Ones);
    return found & ~bytes & Highs;
}

} // namespace cereal::detail
