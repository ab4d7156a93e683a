// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "Fakes.h"
#include "Literals.h"

#include <QDateTime>
#include <QTimeZone>

// Short ways to write down records. Every record has all its required members set, each to a value of its own.
namespace abissora::test {

/// "2026-06-15T10:00:00Z", also with milliseconds.
inline Instant at(const char* isoText)
{
    const QDateTime time = QDateTime::fromString(QLatin1String(isoText), Qt::ISODateWithMs);
    Q_ASSERT(time.isValid());
    return Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

inline Maintenance maintenance(int id, Instant date, Instant next)
{
    Maintenance record;
    record.id = SequentialIds::at(id);
    record.date = date;
    record.type = MaintenanceType::repair;
    record.description = u"Revisione primo stadio"_s;
    record.performedBy = u"Officina Blu"_s;
    record.cost = 120.5;
    record.notes = u"O-ring sostituiti"_s;
    record.nextServiceDate = next;
    return record;
}

inline Maintenance maintenance(int id)
{
    return maintenance(id, at("2025-03-14T09:26:53Z"), at("2026-03-14T09:26:53Z"));
}

inline Equipment equipment(int id, const QString& name = u"Erogatore di prova"_s)
{
    Equipment item;
    item.id = SequentialIds::at(id);
    item.name = name;
    item.type = EquipmentType::bcd;
    item.brand = u"Marca"_s;
    item.model = u"Modello"_s;
    item.serialNumber = u"SN-01"_s;
    item.purchaseDate = at("2024-01-02T03:04:05Z");
    item.lastServiceDate = at("2025-06-07T08:09:10Z");
    item.nextServiceDate = at("2026-12-31T23:59:59Z");
    item.notes = u"Note"_s;
    return item;
}

inline Equipment equipmentWith(int id, const QList<Maintenance>& history)
{
    Equipment item = equipment(id);
    item.maintenanceHistory = history;
    return item;
}

/// One that says only what a list shows.
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

inline EquipmentTypeModel equipmentType(int id, const QString& name)
{
    return {SequentialIds::at(id), name, u"dive.tank"_s, u"gray"_s, 180, true};
}

} // namespace abissora::test
