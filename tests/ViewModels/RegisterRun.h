// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "Fakes.h"
#include "Purge.h"
#include "RegisterStart.h"
#include "SaveRetry.h"
#include "SettingsViewModel.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimeZone>

namespace abissora::test {

/// What outlives a run of the program: the folders, the clock, whoever gives the ids, the log of all runs.
struct RegisterPlace
{
    /// Where files need no disk every write is synced at no cost, and thousands of them take no time.
    [[nodiscard]] static bool isFast() { return QFileInfo(u"/dev/shm"_s).isWritable(); }

    RegisterPlace() { qputenv("XDG_STATE_HOME", path(u"state"_s).toUtf8()); }
    ~RegisterPlace() { qunsetenv("XDG_STATE_HOME"); }
    Q_DISABLE_COPY_MOVE(RegisterPlace)

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder{(isFast() ? u"/dev/shm"_s : QDir::tempPath()) + u"/abissora-XXXXXX"_s};
    ApplicationDirectories directories{folder.filePath(u"register"_s), true};
    FixedClock clock;
    Calendar calendar{QTimeZone("Europe/Rome")};
    SequentialIds ids;
    RecordingConsole console;
    ScriptedFilePanel panel;
    ScriptedWork work;
    FakeSymbolLibrary symbols;
    AlwaysPermitted permission;
};

/// The services and state objects of one run of the program, made in its order. Each notification is printed as the
/// signal's name in angle brackets.
struct RegisterRun
{
    explicit RegisterRun(RegisterPlace& place)
        : generations(place.directories, place.clock, place.calendar, place.console, place.permission)
        , preferences(place.directories.preferences(), generations)
        , archive(place.directories, place.clock, place.permission)
        , documents(place.directories.maintenanceDocuments(), archive, place.panel, place.work, place.ids,
                    place.console)
        , catalogue((clearUp(place.directories, generations),
                     StorageManager(preferences, place.console, place.clock, place.calendar, place.ids)),
                    documents, place.console, place.clock, place.calendar)
        , settings(preferences, place.console)
        , types(preferences, place.symbols, place.console, place.ids)
        , saveRetry(preferences, place.console)
    {
        const auto follow = [&console = place.console](const auto& object, auto signal, const QString& name) {
            QObject::connect(&object, signal, [&console, name] { console.print(name); });
        };
        follow(catalogue, &EquipmentViewModel::equipmentChanged, u"<equipmentChanged>"_s);
        follow(catalogue, &EquipmentViewModel::changed, u"<changed>"_s);
        follow(types, &EquipmentTypeViewModel::typesChanged, u"<typesChanged>"_s);
        follow(types, &EquipmentTypeViewModel::changed, u"<changed>"_s);
        follow(settings, &SettingsViewModel::reminderDaysChanged, u"<reminderDaysChanged>"_s);
        follow(settings, &SettingsViewModel::changed, u"<changed>"_s);
        purge(archive);
    }

    Generations generations;
    PreferencesStore preferences;
    DocumentArchive archive;
    MaintenanceDocumentStore documents;
    EquipmentViewModel catalogue;
    SettingsViewModel settings;
    EquipmentTypeViewModel types;
    SaveRetry saveRetry;
};

} // namespace abissora::test
