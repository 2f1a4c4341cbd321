#pragma once

#include <cstdint>

#include "Utils/Public/TaggedValue.h"

namespace QN {

enum class RowOrColumnTag : std::uint8_t { Row = 0, Column = 1 };

/// Positions of a row and of a column in a table, counted from 0.
using RowIndex = TaggedValue<std::uint64_t, TypeUtils::ValueTag<RowOrColumnTag, RowOrColumnTag::Row>>;
using ColumnIndex = TaggedValue<std::uint64_t, TypeUtils::ValueTag<RowOrColumnTag, RowOrColumnTag::Column>>;

} // namespace QN
