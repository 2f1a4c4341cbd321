#pragma once

#include <cstddef>

/// Counts what `operator new` hands out in this process, the library's share included.

namespace HeapCount {

struct Figures {
    std::size_t liveBytes;
    std::size_t peakBytes;
    std::size_t allocations;
};

Figures get();

/// Starts a new peak at what is live now.
void resetPeak();

} // namespace HeapCount
