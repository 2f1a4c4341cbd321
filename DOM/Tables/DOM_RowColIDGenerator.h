#pragma once

#include <cstdint>

#include "Utils/Public/Export.h"

namespace QN::DOM {

/// Draws identifiers for new rows and columns.
struct DOM_API RowColIDGenerator {
    /// A random number from 2147483647 up to the greatest of 64 bits, all equally likely: far above every predefined
    /// identifier. Whether it is already in use is for the caller to see.
    static std::uint64_t generate();
};

} // namespace QN::DOM
