// SPDX-License-Identifier: MIT
#include "TypeManagement.h"

#include "Literals.h"
#include "TextSearch.h"

#include <algorithm>

namespace abissora {

QList<EquipmentTypeModel> typesNamed(const QString& searchText, QList<EquipmentTypeModel> types)
{
    const TextSearch search(searchText);
    types.removeIf([&search](const EquipmentTypeModel& type) { return !search.foundIn(type.name); });
    return types;
}

qsizetype activeTypes(const QList<EquipmentTypeModel>& types)
{
    return std::ranges::count_if(types, &EquipmentTypeModel::isActive);
}

QString activeTypesText(qsizetype count)
{
    return u"%1 tipologie attive"_s.arg(count);
}

QString daysText(std::int64_t days)
{
    return u"%1 giorni"_s.arg(days);
}

QString intervalText(std::int64_t days)
{
    return u"Intervallo: "_s + daysText(days);
}

QString deletionQuestion(const std::optional<EquipmentTypeModel>& typeToDelete)
{
    return typeToDelete ? u"Sei sicuro di voler eliminare la tipologia '%1'?"_s.arg(typeToDelete->name)
                        : u"Sei sicuro di voler eliminare questa tipologia?"_s;
}

} // namespace abissora
