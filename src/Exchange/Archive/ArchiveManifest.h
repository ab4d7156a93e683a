// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"
#include "IoError.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace abissora {

/// One file of a copy, by its name within the register's folder: "preferences/savedEquipment.json".
struct ArchivedFile
{
    QString name;
    qint64 size = 0;
    QByteArray sum; ///< SHA-256, 32 bytes

    friend bool operator==(const ArchivedFile&, const ArchivedFile&) = default;
};

struct ArchiveCounts
{
    qsizetype items = 0;
    qsizetype records = 0; ///< of maintenance
    qsizetype types = 0;
    qsizetype documents = 0;

    /// "12 articoli, 31 manutenzioni, 16 tipologie, 4 documenti"
    [[nodiscard]] QString text() const;

    friend bool operator==(const ArchiveCounts&, const ArchiveCounts&) = default;
};

/// What a copy of a register says of itself: the JSON that is its first entry.
struct ArchiveManifest
{
    /// What this version writes, and the newest that it reads.
    static constexpr int newestFormat = 1;
    /// More bytes are no manifest; some 150,000 files have room.
    static constexpr qint64 mostBytes = qint64{32} * 1024 * 1024;
    static constexpr const char* entryName = "manifest.json";

    QString version; ///< of the program
    Instant created; ///< to the second
    ArchiveCounts counts;
    QList<ArchivedFile> files;

    [[nodiscard]] QByteArray toJson() const;
    /// The error is a sentence for the person. What is accepted names the register's list, every file once, also for
    /// those who do not tell small letters from capitals, and only by names that isArchivedName() allows.
    [[nodiscard]] static IoResult<ArchiveManifest> fromJson(const QByteArray& json);

    [[nodiscard]] qint64 totalSize() const;

    friend bool operator==(const ArchiveManifest&, const ArchiveManifest&) = default;
};

namespace archived {

inline constexpr QLatin1String preferences("preferences/");
inline constexpr QLatin1String documents("MaintenanceDocuments/");
inline constexpr QLatin1String backups("backups/");
inline constexpr QLatin1String oldDocuments("backups/documents/");
inline constexpr QLatin1String registerFile("preferences/savedEquipment.json");

} // namespace archived

/// Whether a copy may hold a file of this name: a preference, a document, or either of them as an earlier state or the
/// archive of documents keeps it. Never a name that leads out of its folder or means something else on another system.
[[nodiscard]] bool isArchivedName(const QString& name);

} // namespace abissora
