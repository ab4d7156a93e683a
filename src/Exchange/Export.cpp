// SPDX-License-Identifier: MIT
#include "Export.h"

#include "CalendarText.h"
#include "CountText.h"
#include "Literals.h"
#include "RecordJson.h"
#include "RegisterTables.h"
#include "Storable.h"

namespace abissora {

namespace {

QByteArray wholeRegister(const ExportSource& source, WorkProgress* progress)
{
    RegisterDocument document;
    document.program = source.version;
    document.exported = source.now;
    document.equipmentTypes = source.types;
    WorkSteps steps(progress, source.equipment.size());
    for (const Equipment& item : source.equipment) {
        if (!steps.goesOn())
            return {};
        document.savedEquipment.append(storable(item));
    }
    return encode(document).value(); // everything in it is storable
}

} // namespace

const QList<SaveFormat>& exportFormats()
{
    static const QList<SaveFormat> formats{{u"Articoli, tabella CSV"_s, u"csv"_s},
                                           {u"Manutenzioni, tabella CSV"_s, u"csv"_s},
                                           {u"Scadenze, calendario"_s, u"ics"_s},
                                           {u"Registro intero"_s, u"json"_s}};
    return formats;
}

std::optional<ExportForm> exportFormOf(const QString& path, ExportForm table)
{
    const auto ends = [&path](QLatin1String suffix) { return path.endsWith(suffix, Qt::CaseInsensitive); };
    if (ends(".csv"_L1))
        return table;
    if (ends(".ics"_L1))
        return ExportForm::Calendar;
    return ends(".json"_L1) ? std::optional(ExportForm::Register) : std::nullopt;
}

QByteArray exported(ExportForm form, const ExportSource& source, WorkProgress* progress)
{
    switch (form) {
    case ExportForm::Items:
        return itemsCsv(source.equipment, source.calendar, source.locale, progress);
    case ExportForm::Records:
        return recordsCsv(source.equipment, source.calendar, source.locale, progress);
    case ExportForm::Calendar:
        return calendarText(source.equipment, source.calendar, source.now, source.version, progress);
    case ExportForm::Register:
        break;
    }
    return wholeRegister(source, progress);
}

QString exportedText(ExportForm form, const ExportSource& source)
{
    qsizetype count = source.equipment.size();
    if (form == ExportForm::Calendar)
        count = std::ranges::count(source.equipment, true, &Equipment::isActive);
    if (form == ExportForm::Records) {
        count = 0;
        for (const Equipment& item : source.equipment)
            count += item.maintenanceHistory.size();
        return (count == 1 ? u"Esportata "_s : u"Esportate "_s) + recordsText(count);
    }
    return (count == 1 ? u"Esportato "_s : u"Esportati "_s) + itemsText(count);
}

} // namespace abissora
