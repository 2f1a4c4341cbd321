#pragma once

#include <cstdint>

namespace QN::DOM {

/// Whether a value occurs once or several times in the range. Other numbers pass through uninterpreted.
enum class UniquenessConditionalFormatOperator : std::uint8_t { DuplicateValues = 0, UniqueValues = 1 };

} // namespace QN::DOM
