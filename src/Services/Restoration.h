// SPDX-License-Identifier: MIT
#pragma once

#include "Generations.h"

namespace abissora {

/// Puts an earlier state of the register in the place of the present one, which is kept first, so that a restoration
/// can be undone. What was begun is written down and completed by the next start: nobody finds half a state.
class Restoration
{
public:
    /// Everything passed by reference must outlive it.
    Restoration(ApplicationDirectories directories, Generations& generations);

    /// The register and the types come back as they were, of damaged ones the records that can be read; settings come
    /// back and those that the state has not are unset. A state without a register touches only what it has. Whoever
    /// holds what was loaded before must load it anew; documents follow when the register is read.
    [[nodiscard]] IoResult<void> restore(const EarlierState& state);

    /// Completes what a process that ended in the middle has begun. Before anything is read.
    void complete();

private:
    [[nodiscard]] QString journal() const { return m_directories.backups() + u"/restoring"; }
    [[nodiscard]] IoResult<void> apply(const EarlierState& state) const;

    ApplicationDirectories m_directories;
    Generations& m_generations;
};

} // namespace abissora
