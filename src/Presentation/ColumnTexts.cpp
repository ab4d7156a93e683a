// SPDX-License-Identifier: MIT
#include "ColumnTexts.h"

#include <QSet>
#include <algorithm>
#include <functional>

namespace abissora {

namespace {

/// The texts with the most letters, each once; how wide they are nobody knows here. Of a long register hardly any is
/// copied.
template <typename Text>
QStringList longest(const QList<Equipment>& items, Text text)
{
    QStringList texts; // the longest first
    QSet<QString> known;
    for (const Equipment& item : items) {
        const QString& next = std::invoke(text, item);
        const bool isFull = texts.size() == ColumnTexts::mostTexts;
        if ((isFull && next.size() <= texts.last().size()) || known.contains(next))
            continue;
        if (isFull)
            known.remove(texts.takeLast());
        texts.insert(
            std::ranges::upper_bound(std::as_const(texts), next.size(), std::ranges::greater(), &QString::size), next);
        known.insert(next);
    }
    return texts;
}

/// One item for each month, on a day of two digits.
QList<Equipment> yearOf(Equipment item)
{
    using namespace std::chrono;
    QList<Equipment> year;
    for (int month = 1; month <= 12; ++month) {
        item.nextServiceDate = sys_days{std::chrono::year(2028) / month / 28} + hours(12);
        year.append(item);
    }
    return year;
}

} // namespace

ColumnTexts ColumnTexts::of(const QList<Equipment>& items, const EquipmentRowMaker& rows)
{
    ColumnTexts texts{.names = longest(items, &Equipment::name),
                      .typeNames = longest(items, &Equipment::displayTypeName),
                      .brands = longest(items, &Equipment::brand),
                      .models = longest(items, &Equipment::model),
                      .dates = {},
                      .abbreviatedDates = {},
                      .remaining = {}};
    const bool isShort = items.size() <= shortRegister;
    for (const Equipment& item : isShort ? items : yearOf(items.first())) {
        const EquipmentRow row = rows.row(item);
        texts.dates.append(row.nextServiceDate);
        texts.abbreviatedDates.append(row.nextServiceDateAbbreviated);
        texts.remaining.append(row.remaining);
    }
    return texts;
}

} // namespace abissora
