// SPDX-License-Identifier: MIT
#include "ColumnTexts.h"

#include <QSet>
#include <algorithm>

namespace abissora {

namespace {

/// The texts with the most letters, each once; how wide they are nobody knows here. Of a long register hardly any is
/// looked at: its items share their texts, or have names that are shorter than others.
class LongestTexts
{
public:
    void add(const QString& text)
    {
        const bool isFull = m_texts.size() == ColumnTexts::mostTexts;
        if ((isFull && text.size() <= m_texts.last().size()) || m_places.contains(text.constData()))
            return;
        if (m_known.contains(text))
            return;
        m_places.insert(text.constData());
        m_known.insert(text);
        if (isFull)
            m_texts.removeLast();
        const auto longer =
            std::ranges::upper_bound(std::as_const(m_texts), text.size(), std::ranges::greater(), &QString::size);
        m_texts.insert(longer, text);
    }

    [[nodiscard]] const QStringList& texts() const { return m_texts; }

private:
    QStringList m_texts; ///< the longest first
    QSet<QString> m_known;
    QSet<const QChar*> m_places; ///< of the known ones in memory, found without reading them
};

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

ColumnTexts ColumnTexts::of(const EquipmentExcerpt& items, const EquipmentRowMaker& rows)
{
    LongestTexts names;
    LongestTexts typeNames;
    LongestTexts brands;
    LongestTexts models;
    for (const Equipment& item : items) {
        names.add(item.name);
        typeNames.add(item.displayTypeName());
        brands.add(item.brand);
        models.add(item.model);
    }
    ColumnTexts texts{.names = names.texts(),
                      .typeNames = typeNames.texts(),
                      .brands = brands.texts(),
                      .models = models.texts(),
                      .dates = {},
                      .abbreviatedDates = {},
                      .remaining = {}};
    const bool isShort = items.size() <= shortRegister;
    for (const Equipment& item : isShort ? items : EquipmentExcerpt(yearOf(items.first()))) {
        const EquipmentRow row = rows.row(item);
        texts.dates.append(row.nextServiceDate);
        texts.abbreviatedDates.append(row.nextServiceDateAbbreviated);
        texts.remaining.append(row.remaining);
    }
    return texts;
}

} // namespace abissora
