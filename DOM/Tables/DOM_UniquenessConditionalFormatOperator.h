#pragma once

#include <cstdint>

namespace QN::DOM {

/// Whether a value occurs once or several times in the range. Any other number of one byte passes through unchanged.
enum class UniquenessConditionalFormatOperator : std::uint8_t { DuplicateValues = 0, UniqueValues = 1 };

} // namespace QN::DOM
