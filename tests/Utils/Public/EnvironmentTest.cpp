#include "Utils/Public/Environment.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace QN::EnvironmentTest {

namespace {

using QN::Environment::processWithRandomNumberGenerator;
using QN::Environment::RandomNumberGenerator;

TEST(EnvironmentTest, GeneratorDrivesAStandardDistribution)
{
    static_assert(std::uniform_random_bit_generator<RandomNumberGenerator>);
    std::set<unsigned long> drawn;
    for (int count = 0; count < 1000; ++count) {
        drawn.insert(processWithRandomNumberGenerator<unsigned long>([](RandomNumberGenerator& generator) {
            return std::uniform_int_distribution<unsigned long>(10, 19)(generator);
        }));
    }
    EXPECT_EQ(drawn, (std::set<unsigned long>{10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
}

TEST(EnvironmentTest, BoundsAreThoseOf64Bits)
{
    static_assert(RandomNumberGenerator::min() == 0);
    static_assert(RandomNumberGenerator::max() == std::numeric_limits<std::uint64_t>::max());
}

TEST(EnvironmentTest, ResultOfTheCallbackIsReturned)
{
    EXPECT_EQ(processWithRandomNumberGenerator<int>([](RandomNumberGenerator&) { return 5; }), 5);
    const auto owned = processWithRandomNumberGenerator<std::unique_ptr<int>>(
        [](RandomNumberGenerator&) { return std::make_unique<int>(6); });
    EXPECT_EQ(*owned, 6);
    int calls = 0;
    processWithRandomNumberGenerator<void>([&calls](RandomNumberGenerator&) { ++calls; });
    EXPECT_EQ(calls, 1);
}

TEST(EnvironmentTest, DrawsGoOnFromCallToCall)
{
    const auto draw = [] {
        return processWithRandomNumberGenerator<std::uint64_t>(
            [](RandomNumberGenerator& generator) { return generator(); });
    };
    std::set<std::uint64_t> drawn;
    for (int count = 0; count < 1000; ++count) {
        drawn.insert(draw());
    }
    EXPECT_EQ(drawn.size(), 1000U);
}

TEST(EnvironmentTest, GeneratorIsFreeAgainAfterACallbackThatThrows)
{
    EXPECT_THROW(processWithRandomNumberGenerator<int>(
                     [](RandomNumberGenerator&) -> int { throw std::runtime_error("failed"); }),
                 std::runtime_error);
    EXPECT_EQ(processWithRandomNumberGenerator<int>([](RandomNumberGenerator&) { return 5; }), 5);
}

TEST(EnvironmentTest, ThreadsTakeTurns)
{
    constexpr std::size_t Draws = 2000;
    std::vector<std::vector<std::uint64_t>> drawn(4);
    std::vector<std::thread> threads;
    for (std::vector<std::uint64_t>& numbers : drawn) {
        threads.emplace_back([&numbers] {
            for (std::size_t count = 0; count < Draws; ++count) {
                numbers.push_back(processWithRandomNumberGenerator<std::uint64_t>(
                    [](RandomNumberGenerator& generator) { return generator(); }));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::set<std::uint64_t> all;
    for (const std::vector<std::uint64_t>& numbers : drawn) {
        all.insert(numbers.begin(), numbers.end());
    }
    EXPECT_EQ(all.size(), drawn.size() * Draws);
}

} // namespace

} // namespace QN::EnvironmentTest
