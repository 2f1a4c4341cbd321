#include "Utils/Public/Environment.h"

#include <algorithm>
#include <array>
#include <functional>
#include <mutex>
#include <random>

namespace QN::Environment {

class RandomNumberGenerator::Engine : public std::mt19937_64 {
public:
    using std::mt19937_64::mt19937_64;
};

namespace {

RandomNumberGenerator::Engine makeSeededEngine()
{
    std::random_device device;
    std::array<std::random_device::result_type, 16> words{};
    std::generate(words.begin(), words.end(), std::ref(device));
    std::seed_seq seed(words.begin(), words.end());
    return RandomNumberGenerator::Engine(seed);
}

} // namespace

RandomNumberGenerator::result_type RandomNumberGenerator::operator()()
{
    return _engine();
}

void Details::lendRandomNumberGenerator(const CallableRef<void(RandomNumberGenerator&)>& callback)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    static RandomNumberGenerator::Engine engine = makeSeededEngine();
    RandomNumberGenerator generator(engine);
    callback(generator);
}

} // namespace QN::Environment
