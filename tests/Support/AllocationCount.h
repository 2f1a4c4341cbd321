#pragma once

#include <cstddef>

namespace QN::Test {

/// How often `operator new` was called in this process so far, the library's share included.
std::size_t getAllocationCount();

/// What `operator new` has given out and not got back, with what the allocator rounds it up to.
std::size_t getLiveBytes();

/// While it lives, `operator new` fails once: at the call that comes after `count` others. For one at a time, and for tests
/// that allocate on one thread.
class AllocationFailure {
public:
    explicit AllocationFailure(std::size_t count);
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;
    ~AllocationFailure();

    bool hasHappened() const;
};

/// How often a function calls `operator new`.
template <class Function>
std::size_t countAllocations(const Function& function)
{
    const std::size_t before = getAllocationCount();
    function();
    return getAllocationCount() - before;
}

} // namespace QN::Test
