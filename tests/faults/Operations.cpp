// SPDX-License-Identifier: MIT
#include "Operations.h"

#include "Builders.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "FolderLock.h"
#include "RegisterStart.h"
#include "SaveRetry.h"
#include "SettingsViewModel.h"
#include "StateContent.h"

#include <QDir>
#include <QDirIterator>

namespace abissora::test {

namespace {

const QByteArray documentContent = "%PDF-1.4 " + QByteArray(70'000, 'x'); // more than one block

QString documentName(int n)
{
    return u"00000000-0000-4000-9000-%1.pdf"_s.arg(n, 12, 10, '0'_L1);
}

void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot prepare %s", qPrintable(path));
}

QList<Equipment> threeItems()
{
    QList<Equipment> items;
    for (int i = 1; i <= 3; ++i) {
        Maintenance record = maintenance(10 * i);
        record.receiptFileName = documentName(i);
        items.append(equipmentWith(i, {record, maintenance(10 * i + 1)}));
    }
    return items;
}

/// The program's objects without a window, in their order.
struct World
{
    explicit World(const ApplicationDirectories& where)
        : directories(where)
        , lock(where.root())
    {
        if (lock.mayWrite())
            clearUp(directories, generations);
        equipment.emplace(StorageManager(preferences, console, clock, calendar, ids), documents, console, clock,
                          calendar);
        types.emplace(preferences, symbols, console, ids);
        retry.emplace(preferences, console);
    }

    ApplicationDirectories directories;
    FolderLock lock;
    FixedClock clock;
    Calendar calendar{QTimeZone("Europe/Rome")};
    SequentialIds ids;
    RecordingConsole console;
    ScriptedFilePanel panel;
    ScriptedWork work;
    FakeSymbolLibrary symbols;
    Generations generations{directories, clock, calendar, console, lock};
    PreferencesStore preferences{directories.preferences(), generations};
    DocumentArchive archive{directories, clock, lock};
    MaintenanceDocumentStore documents{directories.maintenanceDocuments(), archive, panel, work, ids, console};
    std::optional<EquipmentViewModel> equipment;
    std::optional<EquipmentTypeViewModel> types;
    std::optional<SaveRetry> retry;
};

void run(World& world, Operation operation)
{
    EquipmentViewModel& equipment = *world.equipment;
    const Equipment first = equipment.equipment().value(0);
    switch (operation) {
    case Operation::firstSaveOfDay:
        world.clock.advance(std::chrono::hours(24 * 40));
        [[fallthrough]];
    case Operation::save: {
        Equipment edited = first;
        edited.notes = u"altre note"_s;
        equipment.updateEquipment(edited);
        break;
    }
    case Operation::attach: {
        Maintenance record = maintenance(99);
        record.receiptFileName = QCoro::waitFor(world.documents.store(world.directories.root() + u".source.pdf"_s));
        if (record.receiptFileName)
            equipment.addMaintenance(first.id, record);
        break;
    }
    case Operation::deleteRecord:
        equipment.deleteMaintenance(first.id, first.maintenanceHistory.value(0).id);
        break;
    case Operation::deleteItem:
    case Operation::prune:
        equipment.deleteEquipment(first);
        break;
    case Operation::deleteType:
        world.types->deleteType(world.types->types().value(0));
        break;
    case Operation::restore:
        static_cast<void>(
            Restoration(world.directories, world.generations).restore(world.generations.list().constLast()));
        break;
    case Operation::start:
        break;
    }
}

QStringList unfinished(const ApplicationDirectories& directories)
{
    QStringList found;
    QDirIterator files(directories.root(), {u".abissora-*"_s, u"restoring"_s},
                       QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(u"unfinished: "_s + files.next());
    return found;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray storedState(const ApplicationDirectories& directories)
{
    QByteArray all;
    for (const QString& name : QDir(directories.preferences()).entryList(QDir::Files, QDir::Name))
        all += name.toUtf8() + '=' + contentOf(directories.preferences() + u'/' + name) + '\n';
    return all;
}

} // namespace

const char* nameOf(Operation operation)
{
    switch (operation) {
    case Operation::save:
        return "save";
    case Operation::firstSaveOfDay:
        return "first save of a day";
    case Operation::attach:
        return "attach";
    case Operation::deleteRecord:
        return "delete a record";
    case Operation::deleteItem:
        return "delete an item";
    case Operation::deleteType:
        return "delete a type";
    case Operation::prune:
        return "delete and prune";
    case Operation::restore:
        return "restore";
    case Operation::start:
        return "start";
    }
    return "";
}

void prepare(const ApplicationDirectories& directories, Operation operation)
{
    const QList<Equipment> items = threeItems();
    const QString preferences = directories.preferences() + u'/';
    put(preferences + u"savedEquipment.json"_s, encode(items).value());
    put(preferences + u"equipmentTypes.json"_s, "[]");
    put(preferences + u"iconSetVersion.json"_s, "4");
    put(preferences + u"darkMode.json"_s, "true");
    put(directories.root() + u".source.pdf"_s, documentContent);
    for (int n = 1; n <= 3; ++n)
        put(directories.maintenanceDocuments() + u'/' + documentName(n), documentContent);
    {
        World world(directories);
        world.types->resetToDefaults(); // keeps a state of today
    }
    const int states = operation == Operation::prune ? 21 : 2;
    for (int i = 0; i < states; ++i) {
        const Instant kept = at("2026-03-01T10:00:00Z") + std::chrono::minutes(i);
        const QString state = directories.backups() + u'/' + stateName(kept, Occasion::deletedItem) + u'/';
        put(state + u"savedEquipment.json"_s, encode(items.first(1)).value());
        put(state + u"equipmentTypes.json"_s, "[]");
    }
    if (operation == Operation::start) {
        // As a killed process leaves it: an orphan, a document that the register names in the archive, temporary files.
        const QString documents = directories.maintenanceDocuments() + u'/';
        put(documents + documentName(4), documentContent);
        put(documents + u".abissora-0123456789abcdef.tmp"_s, "half");
        put(directories.backups() + u"/.abissora-0123456789abcdef.tmp/savedEquipment.json"_s, "half");
        put(directories.archivedDocuments() + u"/20260301T000000.000Z-"_s + documentName(1), documentContent);
        QFile::remove(documents + documentName(1));
    }
}

bool perform(const ApplicationDirectories& directories, Operation operation, const std::function<void()>& begin,
             const std::function<void()>& end)
{
    if (operation == Operation::start)
        begin();
    World world(directories);
    if (operation != Operation::start)
        begin();
    run(world, operation);
    end();
    return operation == Operation::restore || world.retry->retry();
}

Finding inspect(const ApplicationDirectories& directories)
{
    Finding finding;
    QStringList& complaints = finding.complaints;
    World world(directories);
    if (world.lock.acquire() != FolderLock::Outcome::Held)
        complaints.append(u"cannot be locked"_s);
    complaints += world.console.lines().filter(u"Error"_s);

    const QSet<QString> archived = world.archive.archived();
    const QSet<QString> named = documentNames(world.equipment->equipment());
    for (const QString& name : named) {
        if (contentOf(directories.maintenanceDocuments() + u'/' + name) != documentContent)
            complaints.append(u"missing or damaged: "_s + name);
    }
    for (int n = 1; n <= 3; ++n) {
        if (!named.contains(documentName(n)) && !archived.contains(documentName(n)))
            complaints.append(u"lost: "_s + documentName(n));
    }
    for (const EarlierState& state : world.generations.list()) {
        const StateContent content = readContent(state);
        if (!content.isWhole() || !content.equipment.isStored)
            complaints.append(u"an earlier state cannot be read: "_s + state.name);
    }
    complaints += unfinished(directories);
    finding.state = storedState(directories);
    return finding;
}

} // namespace abissora::test
