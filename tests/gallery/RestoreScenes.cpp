// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "ScreenStage.h"

namespace abissora::gallery {

namespace {

void write(const test::RegisterFixture& f, const char* name, const QList<Equipment>& equipment)
{
    f.write(u"backups/%1/savedEquipment.json"_s.arg(QLatin1String(name)), encode(equipment).value());
}

/// An earlier state of which something is gone, new or another by now, and others of every kind.
void keepStates(test::RegisterFixture& f)
{
    QDir(f.directories.backups()).removeRecursively();
    const QList<Equipment> now = f.equipment.equipment();
    QList<Equipment> then = now;
    then[0].serialNumber = u"SU456789"_s;
    then[1].isActive = !then[1].isActive;
    then[2].name = u"Pinne"_s;
    then[2].notes = u"Altre note"_s;
    then.removeLast();
    Equipment returning = test::makeItem(70, u"GAV Scubapro Hydros di scorta"_s, EquipmentType::bcd, today);
    returning.maintenanceHistory = {test::makeRecord(71, 30, u"Revisione"_s), test::makeRecord(72, 400, u"Test"_s)};
    returning.maintenanceHistory[0].receiptFileName = f.storedDocument(u"a.pdf"_s);
    returning.maintenanceHistory[1].certificateFileName = f.storedDocument(u"b.pdf"_s);
    for (const Maintenance& record : returning.maintenanceHistory) {
        for (const auto& document : {record.receiptFileName, record.certificateFileName})
            f.archive.archive(document.value_or(QString()));
    }
    then.append(returning);
    then.append(test::makeItem(73, u"Pinne Mares Avanti Quattro"_s, EquipmentType::fins, today));
    write(f, "20261121T084200.000Z-deleted-item", then);
    write(f, "20261121T080500.000Z-first-of-day", then);
    write(f, "20261120T201700.000Z-import", now.mid(1));
    write(f, "20261108T093300.000Z-restoration", now.mid(2));
    write(f, "20261103T071200.000Z-deleted-record", now.mid(6));
    write(f, "20261003T071200.000Z-foreign", {});
    write(f, "20251103T071200.000Z-unknown-members", now);
    QByteArray damaged = encode(now).value();
    damaged.replace(damaged.indexOf("\"name\""), 6, "\"nome\"");
    f.write(u"backups/20261114T165000.000Z-unreadable/savedEquipment.json"_s, damaged);
}

/// The sheet by itself.
Scene restoreSheet(const QString& name, const std::function<void(test::RegisterFixture&)>& keep)
{
    return form(name, [keep](test::ShellFixture& f) {
        keep(f);
        return std::unique_ptr<QWidget>(f.makeRestore(nullptr));
    });
}

void keepNothing(test::RegisterFixture& f)
{
    QDir(f.directories.backups()).removeRecursively();
}

void keepLongNames(test::RegisterFixture& f)
{
    keepNothing(f);
    QList<Equipment> then = f.equipment.equipment();
    for (Equipment& item : then) {
        item.name = QString(200, u'm');
        item.serialNumber = QString(200, u'8');
    }
    then[0].name = f.equipment.equipment().at(0).name;
    then[1].id = test::SequentialIds::at(900);
    write(f, "20261121T084200.000Z-unreadable", then);
}

} // namespace

QList<Scene> restoreScenes()
{
    return {
        restoreSheet(u"restore"_s, keepStates),
        restoreSheet(u"restore-nothing"_s, keepNothing),
        restoreSheet(u"restore-long-names"_s, keepLongNames),
    };
}

} // namespace abissora::gallery
