// SPDX-License-Identifier: MIT
#include "PrintedItem.h"

#include "CostText.h"
#include "CountText.h"
#include "DetailContent.h"
#include "EquipmentRow.h"
#include "Literals.h"
#include "MaintenanceRecords.h"
#include "PrintedList.h"

namespace abissora::PrintedItem {

namespace {

constexpr int picturePixels = 440; // 720 to the inch
constexpr qsizetype descriptionColumn = 2;
constexpr qsizetype costColumn = 4;

QString documentsOf(const Maintenance& record)
{
    QStringList labels;
    for (const DocumentSlot slot : documentSlots) {
        if (documentName(record, slot))
            labels.append(labels.isEmpty() ? documentLabel(slot) : documentLabel(slot).toLower());
    }
    return labels.join(u", "_s);
}

PrintedRow rowOf(const Maintenance& record, const DateFormat& dates)
{
    const bool isDone = record.isCompleted.value_or(true);
    return {.cells = {{dates.abbreviatedDate(record.date)},
                      {rawValue(record.type)},
                      {orDash(record.description)},
                      {orDash(record.performedBy)},
                      {costText::listed(record.cost).value_or(dash)},
                      {isDone ? u"Avvenuta"_s : u"Non avvenuta"_s, !isDone},
                      {orDash(documentsOf(record))}},
            .notes = record.notes.isEmpty() ? QString() : u"Note: "_s + record.notes};
}

/// Of what the column shows.
QString totalCost(const QList<Maintenance>& history)
{
    double total = 0;
    for (const Maintenance& record : history)
        total += std::max(record.cost, 0.0);
    return costText::listed(total).value_or(dash);
}

QList<PrintedFact> factsOf(const Equipment& item, const DetailContent& detail)
{
    QList<PrintedFact> facts{
        {EquipmentRow::title(EquipmentRow::BrandColumn), orDash(item.brand)},
        {EquipmentRow::title(EquipmentRow::ModelColumn), orDash(item.model)},
    };
    // The first line is the type, which stands under the title.
    for (const auto& [label, value] : detail.technicalDetails.sliced(1))
        facts.append({label, value});
    facts.insert(3, {EquipmentRow::title(EquipmentRow::StateColumn), item.isActive ? u"Attivo"_s : u"Inattivo"_s});
    const auto next =
        std::ranges::find(facts, EquipmentRow::title(EquipmentRow::NextServiceColumn), &PrintedFact::label);
    if (next != facts.end())
        next->isStrong = true;
    return facts;
}

} // namespace

PrintedPaper sheetOf(const Equipment& item, const EquipmentTypeViewModel& types, const Almanac& almanac,
                     const PictureOf& pictureOf)
{
    const DetailContent detail = DetailContent::of(item, types, almanac);
    PrintedPaper paper{
        .kind = u"Scheda di manutenzione"_s,
        .title = item.name,
        .subtitle = detail.typeName,
        .picture = pictureOf(detail.appearance.icon, picturePixels),
        .facts = factsOf(item, detail),
        .notes = item.notes,
        .tableTitle = u"Cronologia Manutenzione"_s,
        .columns = {{.title = u"Data"_s, .share = 67, .isKeptWhole = true},
                    {.title = u"Tipo"_s, .share = 78},
                    {.title = u"Descrizione"_s, .share = 197},
                    {.title = u"Eseguito da"_s, .share = 75},
                    {.title = u"Costo"_s, .share = 56, .isRightAligned = true, .isKeptWhole = true},
                    {.title = u"Esito"_s, .share = 54},
                    {.title = u"Documenti"_s, .share = 67}},
        .notesColumn = descriptionColumn,
        .rows = {},
        .withoutRows = u"Nessuna manutenzione registrata"_s,
        .closing = {u"Costo totale di %1"_s.arg(recordsText(item.maintenanceHistory.size())),
                    totalCost(item.maintenanceHistory), costColumn},
        .foot = item.serialNumber.isEmpty() ? item.name : u"%1 · %2"_s.arg(item.name, item.serialNumber),
        .printedOn = printedOn(almanac),
    };
    for (const Maintenance& record : newestFirst(item.maintenanceHistory))
        paper.rows.append(rowOf(record, almanac.dates));
    return paper;
}

} // namespace abissora::PrintedItem
