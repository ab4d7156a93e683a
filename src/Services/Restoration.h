// SPDX-License-Identifier: MIT
#pragma once

#include "Generations.h"

namespace abissora {

/// What restoring a state writes, by key: of damaged lists the records that can be read.
using RestorableFiles = QHash<QString, QByteArray>;

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
    /// Likewise, with what was read of the state or of one with the same files.
    [[nodiscard]] IoResult<void> restore(const EarlierState& state, const RestorableFiles& files);
    /// On any thread. Fails where nothing can be read of the list that matters, or where there is neither.
    [[nodiscard]] static IoResult<RestorableFiles> read(const EarlierState& state);

    /// Completes what a process that ended in the middle has begun. Before anything is read.
    void complete();

private:
    [[nodiscard]] QString journal() const { return m_directories.backups() + u"/restoring"; }
    [[nodiscard]] IoResult<void> apply(const EarlierState& state, const RestorableFiles& files) const;

    ApplicationDirectories m_directories;
    Generations& m_generations;
};

} // namespace abissora
