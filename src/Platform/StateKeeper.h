// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"
#include "Occasion.h"

namespace abissora {

/// Is asked before stored files are written, and keeps what they hold so far where that is worth it.
class StateKeeper
{
public:
    virtual ~StateKeeper() = default;

    /// The file of `key`, which need not exist yet, is about to be replaced. A failure forbids it.
    [[nodiscard]] virtual IoResult<void> beforeWriting(const QString& key, Occasion occasion) = 0;
    /// The owner of the key's data cannot decode it; nothing is about to be replaced yet.
    [[nodiscard]] virtual IoResult<void> keepUnreadable(const QString& key) = 0;
};

/// Allows everything and keeps nothing.
class KeepNothing final : public StateKeeper
{
public:
    [[nodiscard]] IoResult<void> beforeWriting(const QString& /*key*/, Occasion /*occasion*/) override { return {}; }
    [[nodiscard]] IoResult<void> keepUnreadable(const QString& /*key*/) override { return {}; }
};

} // namespace abissora
