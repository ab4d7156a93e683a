// SPDX-License-Identifier: MIT
#include "DetailContent.h"

#include "Literals.h"

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

} // namespace abissora
