#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

#include "Utils/Public/CallableRef.h"
#include "Utils/Public/Export.h"

namespace QN::Environment {

/// A source of random 64-bit numbers that meets the requirements of a uniform random bit generator.
class DOM_API RandomNumberGenerator {
public:
    using result_type = std::uint64_t;
    class Engine;

    explicit RandomNumberGenerator(Engine& engine) : _engine(engine) {}
    RandomNumberGenerator(const RandomNumberGenerator&) = delete;
    RandomNumberGenerator& operator=(const RandomNumberGenerator&) = delete;

    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }

    result_type operator()();

private:
    Engine& _engine;
};

namespace Details {

DOM_API void lendRandomNumberGenerator(const CallableRef<void(RandomNumberGenerator&)>& callback);

} // namespace Details

/// Runs the callback with the one generator of the process and returns its result. The generator is locked for the
/// time of the call: threads take turns, and a callback that asks for the generator again waits for itself.
template <class T>
T processWithRandomNumberGenerator(const CallableRef<T(RandomNumberGenerator&)>& callback)
{
    if constexpr (std::is_void_v<T>) {
        Details::lendRandomNumberGenerator(callback);
    } else {
        std::optional<T> result;
        Details::lendRandomNumberGenerator(
            [&](RandomNumberGenerator& generator) { result.emplace(callback(generator)); });
        return std::move(*result);
    }
}

} // namespace QN::Environment
