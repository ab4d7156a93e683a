// SPDX-License-Identifier: MIT
#include "RandomRegister.h"

#include "Builders.h"
#include "EquipmentFormState.h"
#include "EquipmentViewModel.h"
#include "Literals.h"

#include <QSet>
#include <cmath>

namespace abissora::test {

namespace {

int upTo(QRandomGenerator& random, int most)
{
    return random.bounded(most + 1);
}

Instant randomInstant(QRandomGenerator& random)
{
    // 1970 to 2099
    return Instant(std::chrono::seconds(random.bounded(qint64(4'102'444'800))));
}

double randomCost(QRandomGenerator& random)
{
    const double scale = std::pow(10.0, upTo(random, 5));
    const double cost = std::round(random.bounded(1e6)) / scale;
    return upTo(random, 9) == 0 ? -cost : cost;
}

Maintenance randomRecord(QRandomGenerator& random, int id, Instant date)
{
    Maintenance record;
    record.id = SequentialIds::at(id);
    record.date = date;
    const auto kinds = allCases<MaintenanceType>();
    record.type = kinds[std::size_t(upTo(random, int(kinds.size()) - 1))];
    record.description = randomText(random, 40);
    record.performedBy = randomText(random);
    record.cost = randomCost(random);
    record.notes = randomText(random, 80);
    record.nextServiceDate = randomInstant(random);
    if (const int outcome = upTo(random, 2); outcome < 2)
        record.isCompleted = outcome == 1;
    return record;
}

} // namespace

QString randomText(QRandomGenerator& random, int longest)
{
    static const QStringList pieces{u"a"_s,
                                    u"Z"_s,
                                    u"è"_s,
                                    u"e\u0301"_s,
                                    u"ß"_s,
                                    u"İ"_s,
                                    u"ж"_s,
                                    u"水"_s,
                                    u"א"_s,
                                    u"😀"_s,
                                    u"👩🏽‍🚀"_s,
                                    u"\u00a0"_s,
                                    u" "_s,
                                    u"  "_s,
                                    u"\t"_s,
                                    u"\n"_s,
                                    u"\r"_s,
                                    u"\r\n"_s,
                                    u"\v"_s,
                                    u"\x01"_s,
                                    u"\x1b"_s,
                                    u"\x7f"_s,
                                    u"\u0085"_s,
                                    u"\u2028"_s,
                                    u"\uFEFF"_s,
                                    u"\uFFFD"_s,
                                    u"\uFFFF"_s,
                                    u"\u202E"_s,
                                    u"\""_s,
                                    u"\"\""_s,
                                    u"'"_s,
                                    u"''"_s,
                                    u"="_s,
                                    u"+"_s,
                                    u"-"_s,
                                    u"@"_s,
                                    u"＝"_s,
                                    u";"_s,
                                    u","_s,
                                    u"|"_s,
                                    u"0"_s,
                                    u"12/05/26"_s,
                                    u"1.234"_s,
                                    u"sep=;"_s,
                                    u"{"_s,
                                    u"["_s,
                                    u"\\"_s,
                                    u"\\n"_s,
                                    u"%1"_s,
                                    u"<b>"_s,
                                    QString(QChar(0xD83E)) + QChar(0xDD3F)};
    QString text;
    for (int count = upTo(random, longest); count > 0; --count)
        text += pieces.at(upTo(random, int(pieces.size()) - 1));
    return text;
}

QList<Equipment> randomRegister(QRandomGenerator& random, const EquipmentTypeViewModel& types, const Almanac& almanac)
{
    QList<Equipment> items;
    QSet<QString> serials;
    int id = 0;
    for (int count = upTo(random, 12); count > 0; --count) {
        EquipmentFormState state;
        state.name = randomText(random);
        state.brand = randomText(random);
        state.model = randomText(random);
        state.serialNumber = randomText(random, 6);
        state.notes = randomText(random, 60);
        state.isActive = upTo(random, 1) == 1;
        const QList<EquipmentTypeModel>& known = types.types();
        const int type = upTo(random, int(known.size()));
        state.selectedTypeName = type < known.size() ? known.at(type).name : u"T"_s + randomText(random);
        state.purchaseDate = randomInstant(random);
        state.lastServiceDate = randomInstant(random);
        Equipment item = state.appliedTo({}, randomInstant(random));
        item.id = SequentialIds::at(++id);
        const QString serial = item.serialNumber.simplified().toCaseFolded();
        const bool isBlank = item.name.simplified().isEmpty() || item.brand.isEmpty();
        if (isBlank || serials.contains(serial))
            continue;
        serials.insert(serial);
        // Days apart: at whole days no two records are the latest one.
        const auto first =
            almanac.calendar.instant(QDate(2000, 1, 1).addDays(upTo(random, 9000)), QTime(9, 30)).value();
        for (int records = upTo(random, 4); records > 0; --records)
            item.maintenanceHistory.append(randomRecord(
                random, ++id,
                almanac.calendar.addDays(first, std::int64_t{3} * records * (1 + upTo(random, 1) * 7)).value()));
        const auto latest = std::ranges::max_element(item.maintenanceHistory, {}, &Maintenance::date);
        if (latest != item.maintenanceHistory.end()) {
            item.lastServiceDate = latest->date;
            item.nextServiceDate = latest->nextServiceDate;
        }
        items.append(item);
    }
    return items;
}

} // namespace abissora::test
