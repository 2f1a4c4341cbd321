#pragma once

#include <cstdint>

#include "Utils/Public/TaggedValue.h"

namespace QN::CollaborationUtils {

struct IndexIncludingTombstonesTag;
struct IndexExcludingTombstonesTag;

/// A position among live elements and tombstones.
using IndexIncludingTombstones = TaggedValue<std::uint64_t, IndexIncludingTombstonesTag>;
/// A position among live elements only: the place in the vector that holds them.
using IndexExcludingTombstones = TaggedValue<std::uint64_t, IndexExcludingTombstonesTag>;

} // namespace QN::CollaborationUtils
