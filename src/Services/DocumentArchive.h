// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "Clock.h"
#include "Equipment.h"
#include "WritePermission.h"

#include <QSet>
#include <QStringList>

namespace abissora {

/// Where attached documents lie: in the folder of documents while a record names them, in the archive
/// ("backups/documents", each with the time at which it went there before its name) once none does.
class DocumentArchive
{
public:
    /// Everything passed by reference must outlive it.
    DocumentArchive(ApplicationDirectories directories, const Clock& clock, WritePermission& permission);

    /// Moves a document out of the folder of documents; nothing happens to one that is not there. One that cannot be
    /// moved stays, and goes with the next settle().
    void archive(const QString& name) const;

    /// Makes the folder agree with the register, whose records name `named`: what they name and lies in the archive
    /// comes back, what they do not name goes there. Files not named as documents are stay where somebody put them.
    void settle(const QSet<QString>& named) const;

    /// Deletes from the archive what has lain there for 30 days and no kept state of the register names.
    void purge() const;

    /// The documents that the archive holds.
    [[nodiscard]] QSet<QString> archived() const;
    /// The files in the folder of documents that are named as documents are.
    [[nodiscard]] QSet<QString> present() const;

private:
    struct Entry
    {
        QString path;
        Instant archived;
    };

    [[nodiscard]] QHash<QString, Entry> entries() const;

    ApplicationDirectories m_directories;
    const Clock& m_clock;
    WritePermission& m_permission;
};

/// The names that the records of the items hold.
[[nodiscard]] QSet<QString> documentNames(const QList<Equipment>& equipment);

/// A document's stored name: a UUID in its textual form, a dot and an extension that makes it a plain file name.
[[nodiscard]] bool isDocumentName(const QString& name);

} // namespace abissora
