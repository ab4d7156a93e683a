// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "ArchiveManifest.h"
#include "RegularFile.h"

namespace abissora {

/// Writes the whole folder of a register into one zip file. Nothing of the register is changed, and it may be worked
/// on meanwhile: the copy is of one moment. May be used on any thread.
class RegisterArchive
{
public:
    using GoesOn = RegularFile::GoesOn;

    explicit RegisterArchive(ApplicationDirectories directories);

    /// The file appears whole and read back, in the place of an existing one, or not at all. Gives what it holds; an
    /// error is a sentence for the person, "Operation canceled" apart. A link is followed; what exists there must be a
    /// file, and it must lie outside the register's folder.
    [[nodiscard]] IoResult<ArchiveManifest> write(const QString& target, Instant now, const GoesOn& goesOn) const;

private:
    ApplicationDirectories m_directories;
};

} // namespace abissora
