// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace abissora::benchmark {

using Duration = std::chrono::duration<double, std::milli>;

/// Half of the runs are faster than this, half slower. The first run, which warms caches, does not count.
template <typename Operation>
[[nodiscard]] Duration medianOf(int runs, Operation operation)
{
    std::vector<Duration> durations;
    operation();
    for (int i = 0; i < runs; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        operation();
        durations.emplace_back(std::chrono::steady_clock::now() - begin);
    }
    const auto middle = durations.begin() + runs / 2;
    std::nth_element(durations.begin(), middle, durations.end());
    return *middle;
}

} // namespace abissora::benchmark
