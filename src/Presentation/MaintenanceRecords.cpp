// SPDX-License-Identifier: MIT
#include "MaintenanceRecords.h"

#include "Literals.h"

namespace abissora {

QString documentLabel(DocumentSlot slot)
{
    return slot == DocumentSlot::Receipt ? u"Scontrino"_s : u"Certificato"_s;
}

std::optional<QString>& documentName(Maintenance& maintenance, DocumentSlot slot)
{
    return slot == DocumentSlot::Receipt ? maintenance.receiptFileName : maintenance.certificateFileName;
}

const std::optional<QString>& documentName(const Maintenance& maintenance, DocumentSlot slot)
{
    return slot == DocumentSlot::Receipt ? maintenance.receiptFileName : maintenance.certificateFileName;
}

void forgetDocument(Maintenance& maintenance, const QString& name)
{
    for (const DocumentSlot slot : documentSlots) {
        if (documentName(maintenance, slot) == name)
            documentName(maintenance, slot).reset();
    }
}

TypeAppearance appearanceOf(MaintenanceType type)
{
    switch (type) {
    case MaintenanceType::annual:
        return {u"calendar.circle.fill"_s, NamedColor::blue};
    case MaintenanceType::repair:
        return {u"wrench.fill"_s, NamedColor::red};
    case MaintenanceType::test:
        return {u"checkmark.circle.fill"_s, NamedColor::green};
    case MaintenanceType::cleaning:
        return {u"drop.circle.fill"_s, NamedColor::cyan};
    case MaintenanceType::other:
        break;
    }
    return {u"ellipsis.circle.fill"_s, NamedColor::gray};
}

QList<Maintenance> newestFirst(const QList<Maintenance>& history)
{
    QList<const Maintenance*> order;
    for (const Maintenance& record : history)
        order.append(&record);
    std::ranges::stable_sort(order, std::ranges::greater(), &Maintenance::date);
    QList<Maintenance> sorted;
    for (const Maintenance* record : order)
        sorted.append(*record);
    return sorted;
}

std::optional<Maintenance> recordOf(const QList<Maintenance>& history, const QUuid& id)
{
    const auto found = std::ranges::find(history, id, &Maintenance::id);
    return found == history.end() ? std::nullopt : std::optional(*found);
}

void replaceRecord(QList<Maintenance>& history, const Maintenance& record)
{
    const auto found = std::ranges::find(history, record.id, &Maintenance::id);
    if (found != history.end())
        *found = record;
}

} // namespace abissora
