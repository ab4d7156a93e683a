// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "ApplicationDirectories.h"
#include "EquipmentDetail.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "ScriptedHttpClient.h"
#include "SettingsViewModel.h"
#include "TemporaryRegister.h"
#include "UpdateCheckerViewModel.h"

#include <QDir>
#include <QFile>

namespace abissora::test {

/// The state objects over a temporary register, in Italian.
class RegisterFixture : public TemporaryRegister
{
public:
    explicit RegisterFixture(const std::optional<QList<Equipment>>& stored = std::nullopt)
        : equipment(storageManager(stored), documents, console, clock, calendar)
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
    [[nodiscard]] QString storedDocument(const QString& name) { return stored(writePdf(name)).value(); }
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

    Almanac almanac{clock, calendar, DateFormat(QLocale(QLocale::Italian, QLocale::Italy), calendar)};
    RecordingOpener opener;
    FakeSymbolLibrary symbols;
    FakePackageInformation package = release(u"1.2.0"_s, u"42"_s);
    AppInfo info{package, clock, calendar};
    Product product{u"Abissora"_s, QUrl(u"https://abissora.example/"_s),
                    QUrl(u"https://abissora.example/version.json"_s)};
    ScriptedHttpClient http;
    UpdateChecker checker{http, info, product};
    ApplicationDirectories directories{folder.path(), true};
    EquipmentViewModel equipment;
    SettingsViewModel settings;
    EquipmentTypeViewModel types;
    UpdateCheckerViewModel updates{checker, clock};
};

} // namespace abissora::test
