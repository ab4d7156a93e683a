// SPDX-License-Identifier: MIT
#include "DetailContent.h"

#include "CostText.h"
#include "Literals.h"
#include "MaintenanceRecords.h"

namespace abissora {

DetailContent DetailContent::of(const Equipment& item, const EquipmentTypeViewModel& types, const Almanac& almanac)
{
    const DateFormat& dates = almanac.dates;
    const std::int64_t days = item.daysUntilNextService(almanac.now(), almanac.calendar);
    const bool isDue = days <= dueThresholdDays;
    return {
        .name = item.name,
        .typeName = item.displayTypeName(),
        .appearance = appearanceOf(item, types),
        .isActive = item.isActive,
        .isDue = isDue,
        .technicalDetails =
            {
                {u"Tipologia"_s, item.displayTypeName()},
                {u"Numero Seriale"_s, item.serialNumber.isEmpty() ? u"Non specificato"_s : item.serialNumber},
                {u"Data Acquisto"_s, dates.longDate(item.purchaseDate)},
                {u"Ultimo Tagliando"_s, dates.longDate(item.lastServiceDate)},
                {u"Prossimo Tagliando"_s, dates.longDate(item.nextServiceDate)},
                {u"Giorni rimanenti"_s, isDue ? u"Scaduto"_s : u"%1 giorni"_s.arg(days)},
            },
        .notes = item.notes.isEmpty() ? u"Nessuna nota inserita"_s : item.notes,
    };
}

MaintenanceRowContent MaintenanceRowContent::of(const Maintenance& record, const DateFormat& dates,
                                                const MaintenanceDocumentStore& documents)
{
    const auto isPresent = [&documents](const std::optional<QString>& name) { return name && documents.url(*name); };
    const QString date = dates.abbreviatedDate(record.date);
    return {
        .id = record.id,
        .typeName = rawValue(record.type),
        .appearance = appearanceOf(record.type),
        .cost = costText::listed(record.cost).value_or(QString()),
        .description = record.description,
        .dateAndPerformer = u"%1 · Eseguito da: %2"_s.arg(date, record.performedBy),
        .isCompleted = record.isCompleted.value_or(true),
        .hasReceipt = isPresent(record.receiptFileName),
        .hasCertificate = isPresent(record.certificateFileName),
        .whichRecord = u"%1, %2, %3"_s.arg(rawValue(record.type), date, record.description),
    };
}

} // namespace abissora
