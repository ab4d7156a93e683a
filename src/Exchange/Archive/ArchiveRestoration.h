// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"
#include "Generations.h"
#include "Restoration.h"
#include "UnpackedArchive.h"

namespace abissora {

/// Puts a copy of a register in the place of the present one, which is kept first. The copy becomes an earlier state,
/// and that state is restored: what was begun is completed by the next start, as with any other.
class ArchiveRestoration
{
public:
    /// Everything passed by reference must outlive it.
    ArchiveRestoration(ApplicationDirectories directories, Generations& generations, WritePermission& permission,
                       Instant now);

    /// Register, types and settings become the copy's, its earlier states and archived documents come along where they
    /// are not there. Its documents lie in the archive then, from where they come to their place when the register is
    /// read. The error is a sentence for the person.
    [[nodiscard]] IoResult<void> restore(const UnpackedArchive& unpacked) const;
    /// Likewise, with what was read of the copy.
    [[nodiscard]] IoResult<void> restore(const UnpackedArchive& unpacked, const RestorableFiles& files) const;
    /// On any thread. The error is a sentence, too.
    [[nodiscard]] static IoResult<RestorableFiles> read(const UnpackedArchive& unpacked);

private:
    [[nodiscard]] IoResult<void> bringDocuments(const UnpackedArchive& unpacked) const;
    [[nodiscard]] IoResult<void> bringStates(const UnpackedArchive& unpacked) const;
    [[nodiscard]] IoResult<EarlierState> bringRegister(const UnpackedArchive& unpacked) const;
    void makeRoomForDocuments(const UnpackedArchive& unpacked) const;
    void drop(const EarlierState& state) const;
    [[nodiscard]] QString archivedName(const QString& document, Instant when) const;

    ApplicationDirectories m_directories;
    Generations& m_generations;
    WritePermission& m_permission;
    Instant m_now;
};

} // namespace abissora
