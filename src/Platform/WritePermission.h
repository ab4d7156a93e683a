// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

namespace abissora {

/// Whether this process may change the register's folder: another one may be working on it.
class WritePermission
{
public:
    virtual ~WritePermission() = default;
    /// The reason when it may not. Asked before every change, so it may try again to be granted.
    [[nodiscard]] virtual IoResult<void> mayWrite() = 0;
};

class AlwaysPermitted final : public WritePermission
{
public:
    [[nodiscard]] IoResult<void> mayWrite() override { return {}; }
};

} // namespace abissora
