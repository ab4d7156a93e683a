// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "ApplicationDirectories.h"
#include "EquipmentDetail.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "Fakes.h"
#include "Literals.h"
#include "MaintenanceDocumentStore.h"
#include "RecordJson.h"
#include "ScriptedHttpClient.h"
#include "SettingsViewModel.h"
#include "UpdateCheckerViewModel.h"

#include <QDir>
#include <QFile>
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

/// A record done so many days before the fixed clock's time.
inline Maintenance makeRecord(int id, int daysAgo, const QString& description)
{
    const Calendar calendar{QTimeZone("Europe/Rome")};
    Maintenance record;
    record.id = SequentialIds::at(20'000 + id);
    record.date = calendar.addDays(FixedClock().now(), -daysAgo).value();
    record.nextServiceDate = calendar.addDays(FixedClock().now(), 365 - daysAgo).value();
    record.description = description;
    record.performedBy = u"Blu Service"_s;
    record.isCompleted = true;
    return record;
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

    /// A file outside the register, to be picked; gives its path.
    [[nodiscard]] QString writePdf(const QString& name) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write("%PDF-1.4 ") < 0 || file.write(name.toUtf8()) < 0)
            qFatal("the temporary folder cannot be written");
        return file.fileName();
    }
    /// A file among the documents; gives its name.
    [[nodiscard]] QString storedDocument(const QString& name) { return documents.store(writePdf(name)).value(); }
    [[nodiscard]] QStringList documentFiles() const
    {
        return QDir(directories.maintenanceDocuments()).entryList(QDir::Files, QDir::Name);
    }

    /// What the detail screen of an item works with.
    [[nodiscard]] std::unique_ptr<EquipmentDetail> detail(const Equipment& item)
    {
        return std::make_unique<EquipmentDetail>(equipment, types, documents, ids, almanac, item);
    }

    /// What the form for a record works with; for a new one when none is given.
    [[nodiscard]] std::unique_ptr<MaintenanceDraft> draft(const QUuid& itemId,
                                                          const std::optional<Maintenance>& record = std::nullopt)
    {
        return std::make_unique<MaintenanceDraft>(equipment, types, documents, ids, almanac, itemId, record);
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
