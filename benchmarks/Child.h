// SPDX-License-Identifier: MIT
#pragma once

#include "Stopwatch.h"

#include <QStringList>

namespace abissora::benchmark {

struct Run
{
    Duration time{};   ///< from its start to its end
    double memory = 0; ///< the most that was resident, in MB
};

/// Runs a program to its end, without what it prints. Ends this one when that fails.
[[nodiscard]] Run run(const QString& program, const QStringList& arguments);

/// The middle one of several, time and memory each by itself. The first, which warms caches, does not count.
[[nodiscard]] Run medianRun(int count, const QString& program, const QStringList& arguments);

} // namespace abissora::benchmark
