#pragma once

#include <cstdint>

namespace QN::DOM {

/// A font of the theme's font scheme. Any other number passes through unchanged.
enum class ThemeFontId : std::int32_t {
    Major = 0, ///< the font of headings
    Minor = 1, ///< the font of the text
};

} // namespace QN::DOM
