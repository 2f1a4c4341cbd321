#include "HeapCount.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t liveBytes = 0;
std::size_t peakBytes = 0;
std::size_t allocations = 0;

void* allocate(std::size_t size)
{
    void* const memory = std::malloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    liveBytes += malloc_usable_size(memory);
    peakBytes = std::max(peakBytes, liveBytes);
    ++allocations;
    return memory;
}

void release(void* memory)
{
    if (memory != nullptr) {
        liveBytes -= malloc_usable_size(memory);
        std::free(memory);
    }
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}

void* operator new[](std::size_t size)
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

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

namespace HeapCount {

Figures get()
{
    return {liveBytes, peakBytes, allocations};
}

void resetPeak()
{
    peakBytes = liveBytes;
}

} // namespace HeapCount
