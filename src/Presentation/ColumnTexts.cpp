// SPDX-License-Identifier: MIT
#include "ColumnTexts.h"

#include <algorithm>
#include <functional>

namespace abissora {

namespace {

/// Those with the most letters; how wide they are nobody knows here.
template <typename Text>
QStringList longest(const QList<Equipment>& items, Text text)
{
    QStringList texts;
    texts.reserve(items.size());
    for (const Equipment& item : items)
        texts.append(std::invoke(text, item));
    const qsizetype count = std::min(texts.size(), ColumnTexts::mostTexts);
    std::ranges::partial_sort(texts, texts.begin() + count, std::ranges::greater(), &QString::size);
    texts.resize(count);
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
