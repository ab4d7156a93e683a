// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "ArchiveReader.h"

#include <QSet>
#include <memory>

namespace abissora {

/// A copy of a register, checked and written out in a temporary folder under the register's backups, as in the copy.
/// The folder goes away with it, and after a kill with the next start.
class UnpackedArchive
{
public:
    ~UnpackedArchive();
    Q_DISABLE_COPY_MOVE(UnpackedArchive)

    /// Reads the copy to its end and compares every sum. Errors as ArchiveReader's, or a sentence why it could not be
    /// written. Documents that the register has already, byte by byte, are not written. May be used on any thread.
    [[nodiscard]] static IoResult<std::shared_ptr<UnpackedArchive>>
    unpack(const QString& path, const ApplicationDirectories& directories, const ArchiveReader::GoesOn& goesOn);

    /// What the preferences of a copy are, in a folder that exists and is empty; the rest of it is only checked.
    [[nodiscard]] static IoResult<ArchiveManifest> unpackPreferences(const QString& path, const QString& folder,
                                                                     const ArchiveReader::GoesOn& goesOn);

    [[nodiscard]] const ArchiveManifest& manifest() const { return m_manifest; }
    /// Where a file lies, or would lie.
    [[nodiscard]] QString path(const QString& name) const { return m_folder + u'/' + name; }
    /// The names, without their folder, of the copy's documents that are not in the register.
    [[nodiscard]] const QStringList& newDocuments() const { return m_newDocuments; }

private:
    class Writing;
    class PreferencesOnly;
    class Unpacking;

    explicit UnpackedArchive(QString folder);

    QString m_folder;
    ArchiveManifest m_manifest;
    QStringList m_newDocuments;
};

} // namespace abissora
