// SPDX-License-Identifier: MIT
#include "EquipmentRow.h"

#include "Literals.h"

namespace abissora {

QString EquipmentRow::text(Column column) const
{
    switch (column) {
    case NameColumn:
        return name + u'\n' + typeName;
    case BrandColumn:
        return brand;
    case ModelColumn:
        return model;
    case NextServiceColumn:
        return nextServiceDate + u'\n' + remaining;
    case StateColumn:
        return state;
    default:
        return title(column);
    }
}

QString EquipmentRow::title(Column column)
{
    static const std::array<QString, ColumnCount> titles{u"Nome"_s,  u"Marca"_s, u"Modello"_s, u"Prossimo Tagliando"_s,
                                                         u"Stato"_s, u"Azioni"_s};
    return titles.at(column);
}

EquipmentRowMaker::EquipmentRowMaker(const EquipmentTypeViewModel& types, Almanac almanac)
    : m_types(&types)
    , m_almanac(std::move(almanac))
    , m_now(m_almanac.now())
{}

EquipmentRow EquipmentRowMaker::row(const Equipment& item) const
{
    const std::int64_t days = item.daysUntilNextService(m_now, m_almanac.calendar);
    const bool isDue = days <= dueThresholdDays;
    return {
        .name = item.name,
        .typeName = item.displayTypeName(),
        .appearance = appearanceOf(item, *m_types),
        .brand = item.brand,
        .model = item.model,
        .nextServiceDate = m_almanac.dates.longDate(item.nextServiceDate),
        .nextServiceDateAbbreviated = m_almanac.dates.abbreviatedDate(item.nextServiceDate),
        .remaining = isDue ? u"SCADUTO!"_s : u"%1 giorni"_s.arg(days),
        .isDue = isDue,
        .isActive = item.isActive,
        .state = item.isActive ? u"Attivo"_s : u"Inattivo"_s,
    };
}

} // namespace abissora
