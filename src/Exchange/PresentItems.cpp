// SPDX-License-Identifier: MIT
#include "PresentItems.h"

namespace abissora {

namespace {

QString plain(const QString& text)
{
    return text.simplified().toCaseFolded();
}

bool agree(const QString& asked, const QString& present)
{
    return plain(asked).isEmpty() || plain(asked) == plain(present);
}

} // namespace

PresentItems::PresentItems(const QList<Equipment>& equipment)
    : m_equipment(equipment)
{
    for (qsizetype i = 0; i < equipment.size(); ++i) {
        if (const QString serial = plain(equipment.at(i).serialNumber); !serial.isEmpty())
            m_bySerial[serial].append(i);
        m_byName[plain(equipment.at(i).name)].append(i);
    }
}

bool PresentItems::contains(const Equipment& item) const
{
    if (m_bySerial.contains(plain(item.serialNumber)))
        return true;
    const QList<qsizetype> named = m_byName.value(plain(item.name));
    return std::ranges::any_of(named, [&](qsizetype i) {
        const Equipment& present = m_equipment.at(i);
        return plain(present.brand) == plain(item.brand) && plain(present.model) == plain(item.model);
    });
}

QList<qsizetype> PresentItems::find(const Equipment& item) const
{
    if (const auto bySerial = m_bySerial.value(plain(item.serialNumber)); !bySerial.isEmpty())
        return bySerial;
    QList<qsizetype> found = m_byName.value(plain(item.name));
    found.removeIf([&](qsizetype i) {
        const Equipment& present = m_equipment.at(i);
        return !agree(item.brand, present.brand) || !agree(item.model, present.model);
    });
    return found;
}

} // namespace abissora
