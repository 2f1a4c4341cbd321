#pragma once

#include <cstdint>

namespace QN::DOM {

/// How tracked changes are to be seen: a set of flags, of which the properties of text know the one named. Other flags are
/// their users' own.
enum class TrackChangesViewMode : std::uint32_t {
    None = 0,
    TrackedProps = 4, ///< the properties that are kept with a tracked change, where there are such
};

constexpr TrackChangesViewMode operator|(TrackChangesViewMode left, TrackChangesViewMode right)
{
    return static_cast<TrackChangesViewMode>(static_cast<std::uint32_t>(left) |
                                             static_cast<std::uint32_t>(right));
}

constexpr TrackChangesViewMode operator&(TrackChangesViewMode left, TrackChangesViewMode right)
{
    return static_cast<TrackChangesViewMode>(static_cast<std::uint32_t>(left) &
                                             static_cast<std::uint32_t>(right));
}

} // namespace QN::DOM
