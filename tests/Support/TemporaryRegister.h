// SPDX-License-Identifier: MIT
#pragma once

#include "Builders.h"
#include "MaintenanceDocumentStore.h"
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
    PreferencesStore preferences{folder.filePath(QStringLiteral("preferences")),
                                 folder.filePath(QStringLiteral("backups")), clock};
    MaintenanceDocumentStore documents{folder.filePath(QStringLiteral("MaintenanceDocuments")), panel, ids, console};

    [[nodiscard]] StorageManager storageManager() { return {preferences, console, clock, calendar, ids}; }

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

inline const QString registerFile = QStringLiteral("preferences/savedEquipment.json");
inline const QString typesFile = QStringLiteral("preferences/equipmentTypes.json");

} // namespace abissora::test
