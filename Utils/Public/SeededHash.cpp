#include "Utils/Public/SeededHash.h"

#include <algorithm>
#include <cstring>
#include <random>

namespace QN {

std::uint64_t getHashSeed()
{
    // Not from the generator of the process: who holds that one may well make a map.
    static const std::uint64_t Seed = [] {
        std::random_device device;
        return std::uint64_t{device()} << 32U | device();
    }();
    return Seed;
}

/// Eight bytes at a time, the last ones with zeros; the length tells those from zeros of the key.
std::size_t SeededHash::operator()(const std::string& key) const
{
    std::uint64_t hash = seed ^ key.size();
    for (std::size_t begin = 0; begin < key.size(); begin += sizeof(std::uint64_t)) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, key.data() + begin, std::min(sizeof bytes, key.size() - begin));
        hash = mixBits(hash ^ bytes);
    }
    return mixBits(hash);
}

} // namespace QN
