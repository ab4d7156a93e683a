// SPDX-License-Identifier: MIT
#include "DetailContent.h"

namespace abissora {

DetailContent DetailContent::of(const Equipment& item, const EquipmentTypeViewModel& types, const DateFormat& dates,
                                const Calendar& calendar, Instant now)
{
    const std::int64_t days = item.daysUntilNextService(now, calendar);
    const bool isDue = days <= dueThresholdDays;
    return {
        .name = item.name,
        .typeName = item.displayTypeName(),
        .appearance = appearanceOf(item, types),
        .isActive = item.isActive,
        .isDue = isDue,
        .technicalDetails =
            {
                {QStringLiteral("Tipologia"), item.displayTypeName()},
                {QStringLiteral("Numero Seriale"),
                 item.serialNumber.isEmpty() ? QStringLiteral("Non specificato") : item.serialNumber},
                {QStringLiteral("Data Acquisto"), dates.longDate(item.purchaseDate)},
                {QStringLiteral("Ultimo Tagliando"), dates.longDate(item.lastServiceDate)},
                {QStringLiteral("Prossimo Tagliando"), dates.longDate(item.nextServiceDate)},
                {QStringLiteral("Giorni rimanenti"),
                 isDue ? QStringLiteral("Scaduto") : QStringLiteral("%1 giorni").arg(days)},
            },
        .notes = item.notes.isEmpty() ? QStringLiteral("Nessuna nota inserita") : item.notes,
    };
}

} // namespace abissora
