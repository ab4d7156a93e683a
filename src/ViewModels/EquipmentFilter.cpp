// SPDX-License-Identifier: MIT
#include "EquipmentFilter.h"

#include "Literals.h"
#include "TextSearch.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace abissora {

namespace {

/// In the catalogue.
using Positions = std::vector<qsizetype>;

void keepTypeName(const QString& name, const QList<Equipment>& catalogue, Positions& kept, QString& log)
{
    log += u"\n   ✅ Applico filtro per nome: '"_s + name + u'\'';
    std::erase_if(kept, [&](qsizetype at) {
        const Equipment& item = catalogue.at(at);
        const QString typeName = item.typeName();
        const bool match = typeName == name;
        log += u"\n      - "_s + item.name + u": displayName='"_s + typeName + u"' match="_s +
               (match ? u"true"_s : u"false"_s);
        return !match;
    });
}

void keepType(EquipmentType type, const QList<Equipment>& catalogue, Positions& kept, QString& log)
{
    log += u"\n   ✅ Applico filtro per enum: "_s + rawValue(type);
    std::erase_if(kept, [&](qsizetype at) { return catalogue.at(at).type != type; });
}

void keepFound(const QString& searchText, const QList<Equipment>& catalogue, Positions& kept, QString& log)
{
    log += u"\n   ✅ Applico filtro ricerca: "_s + searchText;
    const TextSearch search(searchText);
    std::erase_if(kept, [&](qsizetype at) {
        const Equipment& item = catalogue.at(at);
        return !search.foundIn(item.name) && !search.foundIn(item.brand) && !search.foundIn(item.model);
    });
}

EquipmentExcerpt soonestDueFirst(Positions kept, const QList<Equipment>& catalogue)
{
    // Of equal dates the one that stands first in the catalogue. Beside each other dates are compared quickest.
    std::vector<std::pair<Instant, qsizetype>> order;
    order.reserve(kept.size());
    for (const qsizetype at : kept)
        order.emplace_back(catalogue.at(at).nextServiceDate, at);
    std::ranges::sort(order);

    std::ranges::transform(order, kept.begin(), &std::pair<Instant, qsizetype>::second);
    return {catalogue, kept};
}

} // namespace

QString orNil(const std::optional<QString>& text)
{
    return text ? *text : u"nil"_s;
}

FilteredEquipment apply(const EquipmentFilter& filter, const QList<Equipment>& catalogue)
{
    const QString total = QString::number(catalogue.size());
    QString log = u"🔍 FILTRO ATTIVO:\n   filterTypeName: "_s + orNil(filter.filterTypeName) + u"\n   selectedType: "_s +
                  (filter.selectedType ? rawValue(*filter.selectedType) : u"nil"_s) + u"\n   searchText: "_s +
                  filter.searchText + u"\n   Totale equipment: "_s + total;

    Positions kept(static_cast<std::size_t>(catalogue.size()));
    std::iota(kept.begin(), kept.end(), qsizetype(0));
    if (filter.filterTypeName && !filter.filterTypeName->isEmpty())
        keepTypeName(*filter.filterTypeName, catalogue, kept, log);
    else if (filter.selectedType)
        keepType(*filter.selectedType, catalogue, kept, log);
    if (!filter.searchText.isEmpty())
        keepFound(filter.searchText, catalogue, kept, log);
    log += u"\n   📊 Risultati: "_s + QString::number(kept.size()) + u" su "_s + total;

    return {soonestDueFirst(std::move(kept), catalogue), log};
}

} // namespace abissora
