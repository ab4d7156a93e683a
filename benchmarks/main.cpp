// SPDX-License-Identifier: MIT
// abissora-benchmark: how long the operations that a person waits for take. The last column is the time divided by
// that of a fixed piece of plain work measured in the same run, so that figures of different machines and days can be
// compared. Build it with the preset "release".
#include "Almanac.h"
#include "Catalogue.h"
#include "DayWatch.h"
#include "EquipmentTypeViewModel.h"
#include "Export.h"
#include "ImportPlan.h"
#include "Literals.h"
#include "Register.h"

#include <QCoreApplication>
#include <QTimeZone>

using namespace abissora;
using namespace abissora::benchmark;

namespace {

void measureJson(const Report& report, const char* encoding, const char* decoding, const QList<Equipment>& equipment)
{
    const QByteArray json = encode(equipment).value();
    const int runs = equipment.size() < 1000 ? 101 : 11;
    report.measure(encoding, runs, [&] { sink = static_cast<std::size_t>(encode(equipment)->size()); });
    report.measure(decoding, runs, [&] { sink = static_cast<std::size_t>(decodeEquipment(json)->size()); });
}

void measureExchange(const Report& report, const QList<Equipment>& equipment, const Clock& clock)
{
    QTemporaryDir folder;
    SilentConsole console;
    RandomIdGenerator ids;
    AnySymbol symbols;
    KeepNothing keeper;
    PreferencesStore preferences(folder.path(), keeper);
    const EquipmentTypeViewModel types(preferences, symbols, console, ids);
    const QLocale locale(QLocale::Italian, QLocale::Italy);
    const Almanac almanac{clock, Calendar(), DateFormat(locale, Calendar())};
    const ExportSource source{equipment, types.types(), almanac.calendar, almanac.now(), locale, u"1"_s};
    const auto measureExport = [&](const char* name, ExportForm form) {
        report.measure(name, 11, [&] { sink = static_cast<std::size_t>(exported(form, source).size()); });
    };
    measureExport("export, 10,000 items, table of items", ExportForm::Items);
    measureExport("export, 10,000 items, table of 40,000 records", ExportForm::Records);
    measureExport("export, 10,000 items, calendar", ExportForm::Calendar);
    measureExport("export, 10,000 items of 4 records, register", ExportForm::Register);

    const auto measureImport = [&](const char* name, ExportForm form, const QList<Equipment>& present) {
        const QByteArray text = exported(form, source);
        report.measure(name, 5, [&] {
            const ImportPlan plan(parseImport(u"a"_s, text).value(),
                                  {present, types.types(), almanac.calendar, almanac.now(), u"€"_s});
            const ImportedRecords records = plan.records(ids);
            sink = static_cast<std::size_t>(records.items.size() + records.records.size());
        });
    };
    measureImport("import, 10,000 items from a table", ExportForm::Items, {});
    measureImport("import, 10,000 items from a table, all there already", ExportForm::Items, equipment);
    QList<Equipment> withoutRecords = equipment;
    for (Equipment& item : withoutRecords)
        item.maintenanceHistory.clear();
    measureImport("import, 40,000 records from a table", ExportForm::Records, withoutRecords);
    measureImport("import, 10,000 items of 4 records from a register", ExportForm::Register, {});
}

void measureLists(const Report& report, Catalogue& catalogue)
{
    const auto measure = [&](const char* name) {
        report.measure(name, 51, [&] { sink = static_cast<std::size_t>(catalogue->filteredEquipment().size()); });
    };
    measure("filteredEquipment, 10,000 items, no filter");
    catalogue->setFilterTypeName(u"GAV"_s);
    measure("filteredEquipment, 10,000 items, by type name");
    catalogue->setFilterTypeName({});
    catalogue->setSelectedType(EquipmentType::bcd);
    measure("filteredEquipment, 10,000 items, by built-in kind");
    catalogue->setSelectedType({});
    catalogue->setSearchText(u"e"_s);
    measure("filteredEquipment, 10,000 items, first letter of a search");
    catalogue->setSearchText(u"è"_s);
    measure("filteredEquipment, 10,000 items, search without a match");
    catalogue->setSearchText({});
    report.measure("overdueEquipment, 10,000 items", 51,
                   [&] { sink = static_cast<std::size_t>(catalogue->overdueEquipment().size()); });
}

void measureDays(const Report& report, const QList<Equipment>& equipment, Instant now, const char* name,
                 const Calendar& calendar)
{
    report.measure(name, 51, [&] {
        std::int64_t days = 0;
        for (const Equipment& item : equipment)
            days += calendar.daysBetween(now, item.nextServiceDate).value_or(0);
        sink = static_cast<std::size_t>(days);
    });
}

} // namespace

// A value that is not there ends it. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const SystemClock clock;
    const QList<Equipment> small = registerOf(300, clock.now());
    const QList<Equipment> large = registerOf(10'000, clock.now());

    const Report report(medianOf(51, reference));
    measureJson(report, "encode, 300 items of 4 records", "decode, 300 items of 4 records", small);
    measureJson(report, "encode, 10,000 items of 4 records", "decode, 10,000 items of 4 records", large);
    measureDays(report, large, clock.now(), "daysBetween, 10,000 times, system's zone", Calendar());
    measureDays(report, large, clock.now(), "daysBetween, 10,000 times, Europe/Rome",
                Calendar(QTimeZone("Europe/Rome")));

    measureExchange(report, large, clock);

    Catalogue catalogue(large, clock, Calendar());
    measureLists(report, catalogue);
    report.measure("summary, 10,000 items", 51,
                   [&] { sink = static_cast<std::size_t>(catalogue->summary().due.size()); });
    DayWatch watch(*catalogue, clock, Calendar());
    report.measure("DayWatch::check, 10,000 items", 51, [&] { watch.check(); });
    report.measure("updateEquipment, 10,000 items, saved and synced", 11,
                   [&] { catalogue->updateEquipment(large.front()); });
    return 0;
}
