#pragma once

#include <cstdint>

namespace QN {

/// A permutation of the 64-bit numbers in which each bit of the operand moves about half of those of the answer (the finaliser
/// of SplitMix64).
constexpr std::uint64_t mixBits(std::uint64_t bits)
{
    bits += 0x9e3779b97f4a7c15U;
    bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9U;
    bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111ebU;
    return bits ^ (bits >> 31U);
}

} // namespace QN
