#pragma once

#include <cstdint>

namespace QN::DOM {

/// What a tracked change did to a run. Any other number passes through unchanged.
enum class TrackChangesType : std::int32_t {
    Insertion = 0,
    Deletion = 1,
    MoveFrom = 2, ///< taken from here by a move
    MoveTo = 3,   ///< put here by a move
};

} // namespace QN::DOM
