#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <vector>

/// What the benchmarks measure with. These machines are noisy: only what was taken in turns is compared.

namespace Timing {

/// The seconds that a call takes.
template <class Function>
double measure(Function&& function)
{
    const auto begin = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// The seconds of processor time that a call of a millisecond or more takes: other processes do not count.
template <class Function>
double measureProcessor(Function&& function)
{
    const std::clock_t begin = std::clock();
    function();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// Adds up the times of one competitor.
class Stopwatch {
public:
    template <class Function>
    double measure(Function&& function)
    {
        const double seconds = Timing::measure(function);
        _total += seconds;
        return seconds;
    }
    double getTotal() const { return _total; }

private:
    double _total = 0;
};

/// Runs `single` and `twice`, which does the same for twice as much, in turns. The processor time of the second is reported;
/// "growth" is the median of their ratios, 2 where the cost is linear.
/// @return the seconds that all runs of `twice` took.
template <class Single, class Twice>
double compareSizes(benchmark::State& state, Single&& single, Twice&& twice)
{
    std::vector<double> ratios;
    double total = 0;
    for (auto _ : state) {
        const double singleTime = measureProcessor(single);
        const double time = measureProcessor(twice);
        ratios.push_back(time / singleTime);
        total += time;
        state.SetIterationTime(time);
    }
    const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
    std::nth_element(ratios.begin(), middle, ratios.end());
    state.counters["growth"] = *middle;
    return total;
}

} // namespace Timing
