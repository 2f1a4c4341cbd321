#pragma once

#include <cstdint>

#include "Utils/Public/TaggedValue.h"

namespace QN::DOM {

struct RowIDTag;
struct ColumnIDTag;

/// Stable identifiers of a row and of a column: they do not change when others are inserted or removed around it. 0 is
/// never a valid one.
using RowID = TaggedValue<std::uint64_t, RowIDTag>;
using ColumnID = TaggedValue<std::uint64_t, ColumnIDTag>;

/// The largest table.
inline constexpr std::uint64_t MaxRows = 1048576;
inline constexpr std::uint64_t MaxColumns = 16384;

} // namespace QN::DOM
