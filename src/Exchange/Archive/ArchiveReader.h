// SPDX-License-Identifier: MIT
#pragma once

#include "ArchiveManifest.h"
#include "RegularFile.h"

namespace abissora {

/// Reads copies of registers, of any origin. Nothing that it says is true before it has read the whole file and
/// compared every sum. Errors are sentences for the person, "Operation canceled" apart. May be used on any thread.
class ArchiveReader
{
public:
    using GoesOn = RegularFile::GoesOn;

    /// Takes what is read. What it was given counts for nothing when the reading fails in the end.
    class Target
    {
    public:
        virtual ~Target() = default;
        /// Before the first file.
        [[nodiscard]] virtual IoResult<void> open(const ArchiveManifest& manifest) = 0;
        [[nodiscard]] virtual IoResult<void> begin(const ArchivedFile& file) = 0;
        [[nodiscard]] virtual IoResult<void> write(const char* bytes, qsizetype size) = 0;
        /// The file had the size and the sum that it should have.
        [[nodiscard]] virtual IoResult<void> end() = 0;
    };

    [[nodiscard]] static IoResult<ArchiveManifest> read(const QString& path, const GoesOn& goesOn,
                                                        Target* target = nullptr);
    [[nodiscard]] static IoResult<ArchiveManifest> readBytes(const QByteArray& bytes);
};

/// Told by its first bytes.
[[nodiscard]] bool beginsLikeZip(const QString& path);

} // namespace abissora
