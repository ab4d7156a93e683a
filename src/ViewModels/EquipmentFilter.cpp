// SPDX-License-Identifier: MIT
#include "EquipmentFilter.h"

#include "TextSearch.h"

#include <numeric>

namespace abissora {

namespace {

/// Positions in the catalogue, so that records are copied only once they are chosen.
using Positions = std::vector<qsizetype>;

void keepTypeName(const QString& name, const QList<Equipment>& catalogue, Positions& kept, QString& log)
{
    log += QStringLiteral("\n   ✅ Applico filtro per nome: '") + name + QLatin1Char('\'');
    std::erase_if(kept, [&](qsizetype at) {
        const Equipment& item = catalogue.at(at);
        const QString typeName = item.typeName();
        const bool match = typeName == name;
        log += QStringLiteral("\n      - ") + item.name + QStringLiteral(": displayName='") + typeName +
               QStringLiteral("' match=") + (match ? QStringLiteral("true") : QStringLiteral("false"));
        return !match;
    });
}

void keepType(EquipmentType type, const QList<Equipment>& catalogue, Positions& kept, QString& log)
{
    log += QStringLiteral("\n   ✅ Applico filtro per enum: ") + rawValue(type);
    std::erase_if(kept, [&](qsizetype at) { return catalogue.at(at).type != type; });
}

void keepFound(const QString& searchText, const QList<Equipment>& catalogue, Positions& kept, QString& log)
{
    log += QStringLiteral("\n   ✅ Applico filtro ricerca: ") + searchText;
    const TextSearch search(searchText);
    std::erase_if(kept, [&](qsizetype at) {
        const Equipment& item = catalogue.at(at);
        return !search.foundIn(item.name) && !search.foundIn(item.brand) && !search.foundIn(item.model);
    });
}

} // namespace

QString orNil(const std::optional<QString>& text)
{
    return text ? *text : QStringLiteral("nil");
}

FilteredEquipment apply(const EquipmentFilter& filter, const QList<Equipment>& catalogue)
{
    const QString total = QString::number(catalogue.size());
    QString log = QStringLiteral("🔍 FILTRO ATTIVO:\n   filterTypeName: ") + orNil(filter.filterTypeName) +
                  QStringLiteral("\n   selectedType: ") +
                  (filter.selectedType ? rawValue(*filter.selectedType) : QStringLiteral("nil")) +
                  QStringLiteral("\n   searchText: ") + filter.searchText + QStringLiteral("\n   Totale equipment: ") +
                  total;

    Positions kept(static_cast<std::size_t>(catalogue.size()));
    std::iota(kept.begin(), kept.end(), qsizetype(0));
    if (filter.filterTypeName && !filter.filterTypeName->isEmpty())
        keepTypeName(*filter.filterTypeName, catalogue, kept, log);
    else if (filter.selectedType)
        keepType(*filter.selectedType, catalogue, kept, log);
    if (!filter.searchText.isEmpty())
        keepFound(filter.searchText, catalogue, kept, log);
    log += QStringLiteral("\n   📊 Risultati: ") + QString::number(kept.size()) + QStringLiteral(" su ") + total;

    std::stable_sort(kept.begin(), kept.end(), [&](qsizetype a, qsizetype b) {
        return catalogue.at(a).nextServiceDate < catalogue.at(b).nextServiceDate;
    });
    QList<Equipment> equipment;
    equipment.reserve(static_cast<qsizetype>(kept.size()));
    for (const qsizetype at : kept)
        equipment.append(catalogue.at(at));
    return {equipment, log};
}

} // namespace abissora
