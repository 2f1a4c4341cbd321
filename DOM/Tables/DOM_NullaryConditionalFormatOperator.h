#pragma once

#include <cstdint>

namespace QN::DOM {

/// A condition on a cell that needs no argument. Any other number of one byte passes through unchanged.
enum class NullaryConditionalFormatOperator : std::uint8_t {
    ContainsBlanks = 0,
    NotContainsBlanks = 1,
    ContainsErrors = 2,
    NotContainsErrors = 3,
};

} // namespace QN::DOM
