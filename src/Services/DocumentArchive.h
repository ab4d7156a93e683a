// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "Clock.h"
#include "Equipment.h"
#include "FileIdentity.h"
#include "WorkProgress.h"
#include "WritePermission.h"

#include <QMultiHash>
#include <QSet>
#include <QStringList>

namespace abissora {

/// What has lain in the archive for 30 days, and the registers that may name it still.
struct OldDocuments
{
    struct Register
    {
        QString path;
        std::optional<FileIdentity> file; ///< as it was found

        friend bool operator==(const Register&, const Register&) = default;
    };

    QMultiHash<QByteArray, QString> paths; ///< by the part of the name that a register is searched for
    QList<Register> registers;             ///< the stored one and those of all kept states
};

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

    /// What has lain in the archive for 30 days leaves it in three steps, unless the register or a kept state names it.
    /// The first finds nothing where this process may not write, and no registers where nothing is old.
    [[nodiscard]] OldDocuments oldDocuments() const;
    /// Strikes off what the registers name. On any thread; reads one after the other, none twice, and none once nothing
    /// is left. Fails where one cannot be read.
    [[nodiscard]] static IoResult<void> strikeOffNamed(OldDocuments& old, const WorkProgress& progress);
    /// Deletes the rest. Nothing goes when the registers are not those any more that were read.
    void remove(const OldDocuments& unnamed) const;

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
    [[nodiscard]] QList<OldDocuments::Register> registers() const;

    ApplicationDirectories m_directories;
    const Clock& m_clock;
    WritePermission& m_permission;
};

/// The names that the records of the items hold.
[[nodiscard]] QSet<QString> documentNames(const QList<Equipment>& equipment);

/// A document's stored name: a UUID in its textual form, a dot and an extension that makes it a plain file name.
[[nodiscard]] bool isDocumentName(const QString& name);

} // namespace abissora
