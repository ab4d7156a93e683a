// SPDX-License-Identifier: MIT
#include "DueServices.h"

#include "ForeignText.h"
#include "Literals.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace abissora {

QList<DueService> dueServices(const QList<Equipment>& equipment, std::int64_t within, const Almanac& almanac)
{
    QList<DueService> due;
    for (const Equipment& item : equipment) {
        const std::int64_t days = item.daysUntilNextService(almanac.now(), almanac.calendar);
        if (item.isActive && days <= within)
            due.append({item, days});
    }
    std::ranges::stable_sort(due, {}, [](const DueService& entry) { return entry.item.nextServiceDate; });
    return due;
}

QString dueLine(const DueService& due, const Almanac& almanac)
{
    constexpr qsizetype longest = 200;
    const QString make = shownLine(due.item.brand + u' ' + due.item.model, longest);
    const QString days = QString::number(due.days) + (std::abs(due.days) == 1 ? u" giorno"_s : u" giorni"_s);
    const QString name = shownLine(due.item.name, longest) + (make.isEmpty() ? QString() : u" (%1)"_s.arg(make));
    return QStringList{almanac.dates.longDate(due.item.nextServiceDate), days, name}.join(u'\t');
}

QByteArray dueJson(const QList<DueService>& due, const Almanac& almanac)
{
    QJsonArray array;
    for (const auto& [item, days] : due) {
        array.append(QJsonObject{
            {u"id"_s, item.id.toString(QUuid::WithoutBraces).toUpper()},
            {u"name"_s, item.name},
            {u"brand"_s, item.brand},
            {u"model"_s, item.model},
            {u"serialNumber"_s, item.serialNumber},
            {u"type"_s, item.displayTypeName()},
            {u"nextServiceDate"_s, almanac.calendar.local(item.nextServiceDate).date().toString(Qt::ISODate)},
            {u"days"_s, qint64(days)},
        });
    }
    return QJsonDocument(array).toJson(QJsonDocument::Indented);
}

} // namespace abissora
