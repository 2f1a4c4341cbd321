#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Utils/Public/Export.h"
#include "Utils/Public/MixBits.h"
#include "Utils/Public/TaggedValue.h"
#include "Utils/Public/UUID.h"

namespace QN {

/// Drawn at random once in each process.
DOM_API std::uint64_t getHashSeed();

/// The hash of maps and sets whose keys come from files. It differs from process to process, so that no file can be made
/// of keys that fall together, which would turn each look-up into a search; so does the order of their elements.
struct DOM_API SeededHash {
    /// All bits of the answer are alike good.
    using is_avalanching = void;

    template <std::unsigned_integral T>
    std::size_t operator()(T key) const
    {
        return mixBits(key ^ seed);
    }

    template <std::unsigned_integral T, class Tag>
    std::size_t operator()(const TaggedValue<T, Tag>& key) const
    {
        return (*this)(key.get());
    }

    std::size_t operator()(const UUID& key) const { return key.getHash(seed); }
    std::size_t operator()(const std::string& key) const;

    std::uint64_t seed = getHashSeed();
};

} // namespace QN
