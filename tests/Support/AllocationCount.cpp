#include "Support/AllocationCount.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations = 0;
std::atomic<std::size_t> liveBytes = 0;
// How many more calls it takes to the one that fails; zero for none.
std::atomic<std::size_t> callsToFailure = 0;

void* allocate(std::size_t size) noexcept
{
    ++allocations;
    if (callsToFailure != 0 && --callsToFailure == 0) {
        return nullptr;
    }
    void* const memory = std::malloc(size == 0 ? 1 : size);
    liveBytes += malloc_usable_size(memory);
    return memory;
}

void release(void* memory) noexcept
{
    liveBytes -= malloc_usable_size(memory);
    std::free(memory);
}

void* allocateOrThrow(std::size_t size)
{
    void* const memory = allocate(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

// All forms for ordinary alignment, so that a sanitizer never sees the halves of two pairs.

void* operator new(std::size_t size)
{
    return allocateOrThrow(size);
}

void* operator new[](std::size_t size)
{
    return allocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete[](void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}

namespace QN::Test {

std::size_t getAllocationCount()
{
    return allocations;
}

std::size_t getLiveBytes()
{
    return liveBytes;
}

AllocationFailure::AllocationFailure(std::size_t count)
{
    callsToFailure = count + 1;
}

AllocationFailure::~AllocationFailure()
{
    callsToFailure = 0;
}

bool AllocationFailure::hasHappened() const
{
    return callsToFailure == 0;
}

} // namespace QN::Test
