#include "Utils/Public/PaletteColor.h"

#include <cstdint>

#include "Utils/Public/Assert.h"

namespace QN {

namespace {

/// FNV-1a.
std::uint64_t hashBytes(const std::string& bytes)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char byte : bytes) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x100000001b3U;
    }
    return hash;
}

} // namespace

cinder::ColorT<unsigned char>
getPaletteColorForString(const std::string& string,
                         boost::const_multi_array_ref<cinder::ColorT<unsigned char>, 1> palette)
{
    QN_ASSERT(!palette.empty());
    return palette.data()[hashBytes(string) % palette.num_elements()];
}

} // namespace QN
