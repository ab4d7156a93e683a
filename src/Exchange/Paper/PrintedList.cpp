// SPDX-License-Identifier: MIT
#include "PrintedList.h"

#include "CountText.h"
#include "EquipmentRow.h"
#include "RegisterFigures.h"

namespace abissora {

namespace PrintedList {

namespace {

QString titleOf(EquipmentRow::Column column)
{
    return EquipmentRow::title(column);
}

QString narrowingText(const ListContent::Narrowing& narrowing, qsizetype count)
{
    QStringList parts;
    if (narrowing.filterTypeName && !narrowing.filterTypeName->isEmpty())
        parts.append(u"Filtro: "_s + *narrowing.filterTypeName);
    else if (narrowing.selectedType)
        parts.append(u"Filtro: "_s + rawValue(*narrowing.selectedType));
    if (!narrowing.searchText.isEmpty())
        parts.append(u"Ricerca: «%1»"_s.arg(narrowing.searchText));
    if (parts.isEmpty())
        parts.append(itemsText(count));
    return parts.join(u" · "_s);
}

PrintedRow rowOf(const EquipmentRow& row)
{
    return {.cells = {{row.name},
                      {row.typeName},
                      {orDash(row.brand)},
                      {orDash(row.model)},
                      {row.nextServiceDate},
                      {row.remaining, row.isDue},
                      {row.state}}};
}

} // namespace

PrintedPaper listOf(const EquipmentExcerpt& items, const ListContent::Narrowing& narrowing,
                    const EquipmentTypeViewModel& types, const Almanac& almanac)
{
    PrintedPaper paper{
        .kind = u"Elenco"_s,
        .title = u"Attrezzatura Subacquea"_s,
        .subtitle = narrowingText(narrowing, items.size()),
        .columns = {{.title = titleOf(EquipmentRow::NameColumn), .share = 150},
                    {.title = u"Tipologia"_s, .share = 92},
                    {.title = titleOf(EquipmentRow::BrandColumn), .share = 78},
                    {.title = titleOf(EquipmentRow::ModelColumn), .share = 84},
                    {.title = titleOf(EquipmentRow::NextServiceColumn), .share = 106, .isKeptWhole = true},
                    {.title = u"Giorni rimanenti"_s, .share = 88},
                    {.title = titleOf(EquipmentRow::StateColumn), .share = 46}},
        .rows = {},
        .withoutRows = u"Nessuna attrezzatura trovata"_s,
        .closing = {itemsText(items.size())},
        .foot = u"Attrezzatura Subacquea"_s,
        .printedOn = printedOn(almanac),
    };
    const EquipmentRowMaker rows(types, almanac);
    paper.rows.reserve(items.size());
    for (const Equipment& item : items)
        paper.rows.append(rowOf(rows.row(item)));
    return paper;
}

PrintedPaper dueOf(const RegisterSummary& summary, const EquipmentTypeViewModel& types, const Almanac& almanac)
{
    PrintedPaper paper{
        .kind = u"Panoramica Manutenzione"_s,
        .title = u"Manutenzioni Scadute"_s,
        .subtitle = itemsText(summary.due.size()),
        .columns = {{.title = titleOf(EquipmentRow::NameColumn), .share = 174},
                    {.title = u"Tipologia"_s, .share = 92},
                    {.title = titleOf(EquipmentRow::BrandColumn), .share = 78},
                    {.title = titleOf(EquipmentRow::ModelColumn), .share = 84},
                    {.title = titleOf(EquipmentRow::NextServiceColumn), .share = 106, .isKeptWhole = true},
                    {.title = titleOf(EquipmentRow::StateColumn), .share = 110}},
        .rows = {},
        .withoutRows = u"Tutte le attrezzature sono in regola!"_s,
        .closing = {itemsText(summary.due.size())},
        .foot = u"Manutenzioni Scadute"_s,
        .printedOn = printedOn(almanac),
    };
    const EquipmentRowMaker rows(types, almanac);
    paper.rows.reserve(summary.due.size());
    for (const RegisterSummary::DueItem& due : summary.due) {
        PrintedRow row = rowOf(rows.row(due.equipment));
        row.cells.resize(5);
        row.cells.append({dueText(due), true});
        paper.rows.append(row);
    }
    return paper;
}

} // namespace PrintedList

QString printedOn(const Almanac& almanac)
{
    return u"Stampato il %1 con Abissora"_s.arg(almanac.dates.longDate(almanac.now()));
}

} // namespace abissora
