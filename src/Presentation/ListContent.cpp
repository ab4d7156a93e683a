// SPDX-License-Identifier: MIT
#include "ListContent.h"

#include "Literals.h"

namespace abissora {

namespace {

ListContent::Filter filterBy(const QString& typeName, const EquipmentTypeViewModel& types)
{
    const auto type = types.getTypeByName(typeName);
    return {u"Filtro: "_s + typeName,
            type ? appearanceOf(*type) : TypeAppearance{unknownTypeIcon, NamedColor::primary}};
}

} // namespace

ListContent ListContent::of(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types)
{
    ListContent content;
    content.items = equipment.filteredEquipment();
    if (const auto& name = equipment.filterTypeName())
        content.filter = filterBy(*name, types);
    content.offer = isNarrowed(equipment) ? u"Cancella filtri"_s : u"Aggiungi la prima attrezzatura"_s;
    content.shownCount = u"%1 articoli"_s.arg(content.items.size());
    if (const qsizetype due = equipment.overdueEquipment().size(); due > 0)
        content.dueCount = u"⚠️ %1 manutenzioni scadute"_s.arg(due);
    content.activeCount = u"%1 attivi"_s.arg(std::ranges::count(content.items, true, &Equipment::isActive));
    return content;
}

ListContent::Narrowing ListContent::narrowingOf(const EquipmentViewModel& equipment)
{
    return {equipment.searchText(), equipment.filterTypeName(), equipment.selectedType()};
}

bool ListContent::isNarrowed(const EquipmentViewModel& equipment)
{
    return narrowingOf(equipment) != Narrowing();
}

} // namespace abissora
