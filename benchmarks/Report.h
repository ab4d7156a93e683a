// SPDX-License-Identifier: MIT
#pragma once

#include "Stopwatch.h"

#include <cstdint>
#include <cstdio>

namespace abissora::benchmark {

/// Keeps the optimiser from dropping what nobody reads.
inline volatile std::size_t sink = 0;

/// Mixes two million numbers: no memory, no system calls.
inline void reference()
{
    std::uint64_t mixed = 1;
    for (std::uint64_t i = 0; i < 2'000'000; ++i)
        mixed = (mixed ^ i) * 0x100000001B3;
    sink = mixed;
}

/// Prints one line per operation: its time, and its time divided by that of the reference in the same run.
class Report
{
public:
    explicit Report(Duration unit)
        : m_unit(unit)
    {
        std::printf("%-66s %10s %9s\n", "", "ms", "ratio");
        line("reference", unit);
    }

    template <typename Operation>
    void measure(const char* name, int runs, Operation operation) const
    {
        line(name, medianOf(runs, operation));
    }

private:
    void line(const char* name, Duration duration) const
    {
        std::printf("%-66s %10.3f %9.3f\n", name, duration.count(), duration / m_unit);
    }

    Duration m_unit;
};

} // namespace abissora::benchmark
