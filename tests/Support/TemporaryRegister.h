// SPDX-License-Identifier: MIT
#pragma once

#include "Builders.h"
#include "Generations.h"
#include "Literals.h"
#include "MaintenanceDocumentStore.h"
#include "RecordJson.h"
#include "StorageManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimeZone>

namespace abissora::test {

/// The services over an empty folder that goes away with it, at the fixed clock's time, in the zone of Rome. The
/// folders inside it do not exist before something is written. Paths are relative to the folder.
struct TemporaryRegister
{
    QTemporaryDir folder;
    FixedClock clock;
    Calendar calendar{QTimeZone("Europe/Rome")};
    SequentialIds ids;
    RecordingConsole console;
    ScriptedFilePanel panel;
    ScriptedWork work;
    ApplicationDirectories directories{folder.path(), true};
    AlwaysPermitted permission;
    Generations generations{directories, clock, calendar, console, permission};
    PreferencesStore preferences{directories.preferences(), generations};
    DocumentArchive archive{directories, clock, permission};
    MaintenanceDocumentStore documents{directories.maintenanceDocuments(), archive, panel, work, ids, console};

    /// What comes of storing a document.
    std::optional<QString> stored(const QString& source) { return QCoro::waitFor(documents.store(source)); }

    /// Over what is stored, or over `stored`, which takes its place.
    [[nodiscard]] StorageManager storageManager(const std::optional<QList<Equipment>>& stored = std::nullopt)
    {
        if (stored && !preferences.setData(StorageManager::equipmentKey, encode(*stored).value()))
            qFatal("the temporary folder cannot be written");
        return {preferences, console, clock, calendar, ids};
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    /// Creates the file with its folders, and gives its path.
    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
            file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    [[nodiscard]] QByteArray content(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
    }

    /// What a folder holds, hidden files too.
    [[nodiscard]] QStringList names(const QString& folderName) const
    {
        return QDir(path(folderName))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }
};

inline const QString registerFile = u"preferences/savedEquipment.json"_s;
inline const QString typesFile = u"preferences/equipmentTypes.json"_s;

} // namespace abissora::test
