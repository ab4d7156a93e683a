// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "ApplicationDirectories.h"
#include "Fakes.h"
#include "MaintenanceDocumentStore.h"
#include "RecordJson.h"
#include "ScriptedHttpClient.h"
#include "SymbolIcon.h"

#include <QTemporaryDir>
#include <QTest>

namespace abissora::test {

inline Equipment makeItem(int id, const QString& name, EquipmentType type, Instant nextServiceDate)
{
    Equipment item;
    item.id = SequentialIds::at(10'000 + id);
    item.name = name;
    item.type = type;
    item.brand = QStringLiteral("Marca%1").arg(id);
    item.model = QStringLiteral("Modello%1").arg(id);
    item.nextServiceDate = nextServiceDate;
    return item;
}

/// The state objects over a register in a temporary folder, at the fixed clock's time, in Italian and the zone of Rome.
class ScreenFixture
{
public:
    explicit ScreenFixture(const std::optional<QList<Equipment>>& stored = std::nullopt)
        : directories(folder.path(), true)
        , preferences(directories.preferences(), directories.backups(), clock)
        , documents(directories.maintenanceDocuments(), panel, ids, console)
        , equipment(StorageManager(seeded(stored), console, clock, calendar, ids), documents, console, clock, calendar)
        , settings(preferences, console)
        , types(preferences, symbols, console, ids)
        , context{equipment,
                  types,
                  settings,
                  updates,
                  console,
                  clock,
                  ids,
                  documents,
                  opener,
                  info,
                  product,
                  calendar,
                  DateFormat(QLocale(QLocale::Italian, QLocale::Italy), calendar)}
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
    SequentialIds ids;
    RecordingConsole console;
    ScriptedFilePanel panel;
    RecordingOpener opener;
    ResourceSymbolLibrary symbols;
    FakePackageInformation package = release(QStringLiteral("1.2.0"), QStringLiteral("42"));
    AppInfo info{package, clock, calendar};
    Product product{QStringLiteral("Abissora"), QUrl(QStringLiteral("https://abissora.example/")),
                    QUrl(QStringLiteral("https://abissora.example/version.json"))};
    ScriptedHttpClient http;
    UpdateChecker checker{http, info, product};
    ApplicationDirectories directories;
    PreferencesStore preferences;
    MaintenanceDocumentStore documents;
    EquipmentViewModel equipment;
    SettingsViewModel settings;
    EquipmentTypeViewModel types;
    UpdateCheckerViewModel updates{checker, clock};
    AppContext context;

private:
    PreferencesStore& seeded(const std::optional<QList<Equipment>>& stored)
    {
        if (stored && !preferences.setData(StorageManager::equipmentKey, encode(*stored).value()))
            qFatal("the temporary folder cannot be written");
        return preferences;
    }
};

} // namespace abissora::test
