// SPDX-License-Identifier: MIT
#pragma once

#include "RegisterArchive.h"
#include "RegisterInventory.h"
#include "ZipWriter.h"

#include <map>

namespace abissora {

/// Attempts to write one copy. What was read once and is the same file since is not summed up again.
class ArchiveWriting
{
public:
    struct Trouble
    {
        IoError error;
        /// The register was changed meanwhile; another attempt may find it at rest.
        bool isChange = false;
    };
    template <typename T>
    using Result = tl::expected<T, Trouble>;

    ArchiveWriting(const ApplicationDirectories& directories, const ArchiveLibrary& library, Instant now,
                   RegisterArchive::GoesOn goesOn);

    /// `target` is a file's path in a folder that exists.
    [[nodiscard]] Result<ArchiveManifest> write(const QString& target);

private:
    struct Sum
    {
        qint64 size = 0;
        QByteArray bytes;
    };
    using Key = std::tuple<quint64, quint64, qint64, qint64>;

    [[nodiscard]] Result<ArchiveManifest> makeManifest(const QList<InventoryFile>& files);
    [[nodiscard]] Result<Sum> sumOf(const InventoryFile& file);
    [[nodiscard]] Result<void> pack(const ArchiveManifest& manifest, const QList<InventoryFile>& files,
                                    SyncedFile& file);
    [[nodiscard]] Result<void> packFile(ZipWriter& zip, const ArchivedFile& file, const InventoryFile& source);
    [[nodiscard]] Result<void> confirm(const ArchiveManifest& manifest, const QList<InventoryFile>& files,
                                       const QString& written);
    /// Gives each block of a file to `take`, and how many bytes there were.
    template <typename Take>
    [[nodiscard]] Result<qint64> readAll(const QString& path, Take take);
    [[nodiscard]] bool isSteady(const QList<InventoryFile>& files) const;

    ApplicationDirectories m_directories;
    ArchiveLibrary m_library;
    Instant m_now;
    RegisterArchive::GoesOn m_goesOn;
    std::map<Key, Sum> m_sums;
    QString m_target;
    qint64 m_done = 0;
    qint64 m_whole = 0; ///< each byte three times: summed up, written, read back
};

} // namespace abissora
