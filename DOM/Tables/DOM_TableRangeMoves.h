#pragma once

#include <cstdint>
#include <limits>

#include "Utils/Public/TableIndices/TableRange.h"

/// What the caches of ranges do when a row or a column comes or goes. Nothing of it fails, so that the change of a table
/// is never left half done: a range that ends at the largest index of 64 bits does not move on.

namespace QN::DOM {

inline void moveDown(TableRange& range)
{
    if (range.getEndRow().get() != std::numeric_limits<std::uint64_t>::max()) {
        range = {range.getBeginRow() + 1, range.getEndRow() + 1, range.getBeginColumn(),
                 range.getEndColumn()};
    }
}

inline void moveRight(TableRange& range)
{
    if (range.getEndColumn().get() != std::numeric_limits<std::uint64_t>::max()) {
        range = {range.getBeginRow(), range.getEndRow(), range.getBeginColumn() + 1,
                 range.getEndColumn() + 1};
    }
}

/// The range does not begin at row 0.
inline void moveUp(TableRange& range)
{
    range = {range.getBeginRow() - 1, range.getEndRow() - 1, range.getBeginColumn(), range.getEndColumn()};
}

/// The range does not begin at column 0.
inline void moveLeft(TableRange& range)
{
    range = {range.getBeginRow(), range.getEndRow(), range.getBeginColumn() - 1, range.getEndColumn() - 1};
}

} // namespace QN::DOM
