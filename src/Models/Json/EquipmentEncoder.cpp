// SPDX-License-Identifier: MIT
#include "EquipmentEncoder.h"

#include "RecordWriter.h"

#include <cmath>

namespace abissora {

namespace {

/// Equal numbers have one text but for zero, whose sign is written.
bool haveOneText(const Equipment& a, const Equipment& b)
{
    const auto sign = [](const Maintenance& record) { return std::signbit(record.cost); };
    return a == b && (a.maintenanceHistory.constData() == b.maintenanceHistory.constData() ||
                      std::ranges::equal(a.maintenanceHistory, b.maintenanceHistory, {}, sign, sign));
}

} // namespace

tl::expected<QByteArray, JsonError> EquipmentEncoder::encode(const QList<Equipment>& equipment)
{
    try {
        replace(equipment, differences(equipment));
        return m_text;
    } catch (const json::EncodingFailure& failure) {
        return tl::unexpected(failure.error);
    }
}

EquipmentEncoder::Span EquipmentEncoder::differences(const QList<Equipment>& equipment) const
{
    const auto [old, present] = std::ranges::mismatch(m_equipment, equipment, haveOneText);
    const auto lastOld = std::make_reverse_iterator(m_equipment.cend());
    const auto [oldEnd, end] =
        std::mismatch(lastOld, std::make_reverse_iterator(old), std::make_reverse_iterator(equipment.cend()),
                      std::make_reverse_iterator(present), haveOneText);
    return {present - equipment.cbegin(), oldEnd - lastOld};
}

void EquipmentEncoder::replace(const QList<Equipment>& equipment, Span span)
{
    const qsizetype end = equipment.size() - span.sameBehind;
    const qsizetype oldEnd = m_equipment.size() - span.sameBehind;
    const bool isLast = span.sameBehind == 0;
    const bool hasBefore = span.first > 0;
    const auto textBegin = [this](qsizetype index) { return m_begins[static_cast<std::size_t>(index)]; };
    // Each item goes with the comma behind it; the last ones, which have none, with the one before them.
    const qsizetype from =
        span.first < m_equipment.size() ? textBegin(span.first) - (isLast && hasBefore ? 1 : 0) : m_text.size() - 1;
    const qsizetype to = isLast ? m_text.size() - 1 : textBegin(oldEnd);

    json::RecordWriter writer;
    std::vector<qsizetype> begins;
    begins.reserve(static_cast<std::size_t>(end - span.first));
    for (qsizetype i = span.first; i < end; ++i) {
        if (isLast && i > 0)
            writer.append(',');
        begins.push_back(from + writer.size());
        writer.writeElement(equipment.at(i), i);
        if (!isLast)
            writer.append(',');
    }

    const QByteArray anew = writer.take();
    m_text.replace(from, to - from, anew);
    const auto place = [this](qsizetype index) { return m_begins.begin() + index; };
    m_begins.insert(m_begins.erase(place(span.first), place(oldEnd)), begins.begin(), begins.end());
    const qsizetype moved = anew.size() - (to - from);
    std::for_each(place(end), m_begins.end(), [moved](qsizetype& begin) { begin += moved; });
    m_equipment = equipment;
}

} // namespace abissora
