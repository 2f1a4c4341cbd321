#pragma once

#include <cstddef>

namespace QN::Test {

/// How often `operator new` was called in this process so far, the library's share included.
std::size_t getAllocationCount();

/// What `operator new` has given out and not got back, with what the allocator rounds it up to.
std::size_t getLiveBytes();

/// How often a function calls `operator new`.
template <class Function>
std::size_t countAllocations(const Function& function)
{
    const std::size_t before = getAllocationCount();
    function();
    return getAllocationCount() - before;
}

} // namespace QN::Test
