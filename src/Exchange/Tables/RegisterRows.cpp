// SPDX-License-Identifier: MIT
#include "ImportRows.h"
#include "Literals.h"
#include "PresentItems.h"

#include <QSet>

namespace abissora {

QList<ImportColumn> registerColumns()
{
    QList<ImportColumn> columns;
    for (const ImportField field : {ImportField::Name, ImportField::Type, ImportField::Brand, ImportField::Model,
                                    ImportField::SerialNumber, ImportField::NextService})
        columns.append({{}, field, titleOf(field, ImportSubject::Items)});
    columns.append({{}, ImportField::None, u"Manutenzioni"_s});
    return columns;
}

QList<ImportRow> registerRows(const RegisterDocument& document, const ImportContext& context, WorkProgress* progress)
{
    const PresentItems present(context.equipment);
    QSet<QUuid> ids;
    for (const Equipment& item : context.equipment)
        ids.insert(item.id);
    QList<ImportRow> rows;
    WorkSteps steps(progress, document.savedEquipment.size());
    for (const Equipment& item : document.savedEquipment) {
        if (!steps.goesOn())
            break;
        ImportRow row;
        row.line = static_cast<int>(rows.size()) + 1;
        if (ids.contains(item.id) || present.contains(item))
            row.standing = ImportRow::Standing::Present;
        for (const QString& text :
             {item.name, item.displayTypeName(), item.brand, item.model, item.serialNumber,
              shownDay(item.nextServiceDate, context.calendar), QString::number(item.maintenanceHistory.size())})
            row.cells.append({text, {}});
        row.item = item;
        rows.append(std::move(row));
    }
    return rows;
}

} // namespace abissora
