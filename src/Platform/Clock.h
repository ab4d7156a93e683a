// SPDX-License-Identifier: MIT
#pragma once

#include "Instant.h"

namespace abissora {

class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
};

class SystemClock final : public Clock
{
public:
    [[nodiscard]] Instant now() const override;
};

} // namespace abissora
