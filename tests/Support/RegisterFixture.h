// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "ApplicationDirectories.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "Fakes.h"
#include "Literals.h"
#include "MaintenanceDocumentStore.h"
#include "RecordJson.h"
#include "ScriptedHttpClient.h"
#include "SettingsViewModel.h"
#include "UpdateCheckerViewModel.h"

#include <QTemporaryDir>

namespace abissora::test {

inline Equipment makeItem(int id, const QString& name, EquipmentType type, Instant nextServiceDate)
{
    Equipment item;
    item.id = SequentialIds::at(10'000 + id);
    item.name = name;
    item.type = type;
    item.brand = u"Marca%1"_s.arg(id);
    item.model = u"Modello%1"_s.arg(id);
    item.nextServiceDate = nextServiceDate;
    return item;
}

/// The state objects over a register in a temporary folder, at the fixed clock's time, in Italian and the zone of Rome.
class RegisterFixture
{
public:
    explicit RegisterFixture(const std::optional<QList<Equipment>>& stored = std::nullopt)
        : directories(folder.path(), true)
        , preferences(directories.preferences(), directories.backups(), clock)
        , documents(directories.maintenanceDocuments(), panel, ids, console)
        , equipment(StorageManager(seeded(stored), console, clock, calendar, ids), documents, console, clock, calendar)
        , settings(preferences, console)
        , types(preferences, symbols, console, ids)
    {
        console.clear();
    }

    /// So many days after the fixed clock's time.
    [[nodiscard]] Instant inDays(int days) const { return calendar.addDays(clock.now(), days).value(); }

    /// The lines of the log since the last call.
    QStringList takeLog()
    {
        const QStringList lines = console.lines();
        console.clear();
        return lines;
    }

    QTemporaryDir folder;
    FixedClock clock;
    Calendar calendar{QTimeZone("Europe/Rome")};
    Almanac almanac{clock, calendar, DateFormat(QLocale(QLocale::Italian, QLocale::Italy), calendar)};
    SequentialIds ids;
    RecordingConsole console;
    ScriptedFilePanel panel;
    RecordingOpener opener;
    FakeSymbolLibrary symbols;
    FakePackageInformation package = release(u"1.2.0"_s, u"42"_s);
    AppInfo info{package, clock, calendar};
    Product product{u"Abissora"_s, QUrl(u"https://abissora.example/"_s),
                    QUrl(u"https://abissora.example/version.json"_s)};
    ScriptedHttpClient http;
    UpdateChecker checker{http, info, product};
    ApplicationDirectories directories;
    PreferencesStore preferences;
    MaintenanceDocumentStore documents;
    EquipmentViewModel equipment;
    SettingsViewModel settings;
    EquipmentTypeViewModel types;
    UpdateCheckerViewModel updates{checker, clock};

private:
    PreferencesStore& seeded(const std::optional<QList<Equipment>>& stored)
    {
        if (stored && !preferences.setData(StorageManager::equipmentKey, encode(*stored).value()))
            qFatal("the temporary folder cannot be written");
        return preferences;
    }
};

} // namespace abissora::test
