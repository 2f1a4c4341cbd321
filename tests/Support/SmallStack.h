#pragma once

#include <pthread.h>

#include <cstddef>
#include <functional>

namespace QN::Test {

/// Runs a function on a thread with a stack of 512 KiB, on which nothing can recurse far.
inline void runOnSmallStack(std::function<void()> function)
{
    constexpr std::size_t StackSize = 512U * 1024U;
    const auto run = [](void* context) -> void* {
        (*static_cast<std::function<void()>*>(context))();
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, StackSize);
    pthread_t thread{};
    pthread_create(&thread, &attributes, run, &function);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

} // namespace QN::Test
