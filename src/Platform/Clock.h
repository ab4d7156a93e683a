// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace abissora {

/// A point in time, UTC, to the millisecond. Shown and computed with in the user's zone through Calendar.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
};

class SystemClock final : public Clock
{
public:
    [[nodiscard]] Instant now() const override
    {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }
};

} // namespace abissora
