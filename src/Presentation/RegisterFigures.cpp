// SPDX-License-Identifier: MIT
#include "RegisterFigures.h"

#include "Literals.h"

namespace abissora {

QList<RegisterFigure> overviewFigures(const RegisterSummary& summary)
{
    return {
        {u"Totale Articoli"_s, u"folder.fill"_s, NamedColor::blue, summary.total},
        {u"Manutenzioni Scadute"_s, u"exclamationmark.triangle.fill"_s, NamedColor::red, summary.due.size()},
        {u"In Scadenza (30gg)"_s, u"clock.fill"_s, NamedColor::orange, summary.expiring},
        {u"In Regola"_s, u"checkmark.circle.fill"_s, NamedColor::green, summary.inOrder},
    };
}

QList<RegisterFigure> statisticsFigures(const RegisterSummary& summary, qsizetype types)
{
    return {
        {u"Totale Attrezzatura"_s, u"list.bullet.circle.fill"_s, NamedColor::blue, summary.total},
        {u"Attrezzatura Attiva"_s, u"checkmark.circle.fill"_s, NamedColor::green, summary.active},
        {u"Manutenzioni Scadute"_s, u"exclamationmark.triangle.fill"_s, NamedColor::red, summary.due.size()},
        {u"In Scadenza (30gg)"_s, u"clock.fill"_s, NamedColor::orange, summary.expiring},
        {u"In Regola"_s, u"checkmark.seal.fill"_s, NamedColor::green, summary.inOrder},
        {u"Tipologie"_s, u"folder.fill"_s, NamedColor::purple, types},
    };
}

QString dueText(const RegisterSummary::DueItem& item)
{
    return u"Scaduto da %1 giorni"_s.arg(std::abs(item.days));
}

QList<TypeShare> typeShares(const QList<Equipment>& equipment, const QList<EquipmentTypeModel>& types)
{
    const QHash<QString, qsizetype> counts = activeItemsByTypeName(equipment);
    QList<TypeShare> shares;
    for (const EquipmentTypeModel& type : types)
        shares.append({type.name, appearanceOf(type), counts.value(type.name)});
    return shares;
}

} // namespace abissora
