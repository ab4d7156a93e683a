// SPDX-License-Identifier: MIT
#include "EquipmentRow.h"

#include "Literals.h"

namespace abissora {

EquipmentRowMaker::EquipmentRowMaker(const EquipmentTypeViewModel& types, DateFormat format, Calendar calendar,
                                     Instant now)
    : m_types(&types)
    , m_format(std::move(format))
    , m_calendar(std::move(calendar))
    , m_now(now)
{}

EquipmentRow EquipmentRowMaker::row(const Equipment& item) const
{
    const std::int64_t days = item.daysUntilNextService(m_now, m_calendar);
    const bool isDue = days <= dueThresholdDays;
    return {
        .name = item.name,
        .typeName = item.displayTypeName(),
        .appearance = appearanceOf(item, *m_types),
        .brand = item.brand,
        .model = item.model,
        .nextServiceDate = m_format.longDate(item.nextServiceDate),
        .nextServiceDateAbbreviated = m_format.abbreviatedDate(item.nextServiceDate),
        .remaining = isDue ? u"SCADUTO!"_s : u"%1 giorni"_s.arg(days),
        .isDue = isDue,
        .isActive = item.isActive,
        .state = item.isActive ? u"Attivo"_s : u"Inattivo"_s,
    };
}

} // namespace abissora
