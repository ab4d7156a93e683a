// SPDX-License-Identifier: MIT
#include "PresentItems.h"

#include "Literals.h"

namespace abissora {

namespace {

QString comparable(const QString& text)
{
    return text.simplified().toCaseFolded();
}

/// Plain texts hold no line ends.
QString make(const QString& name, const QString& brand, const QString& model)
{
    return QStringList{comparable(name), comparable(brand), comparable(model)}.join(u'\n');
}

QString make(const Equipment& item)
{
    return make(item.name, item.brand, item.model);
}

/// Whatever a row may say to mean the item.
QSet<QString> hints(const Equipment& item)
{
    return {make(item), make(item.name, item.brand, {}), make(item.name, {}, item.model), make(item.name, {}, {})};
}

} // namespace

PresentItems::PresentItems(const QList<Equipment>& equipment)
{
    for (qsizetype i = 0; i < equipment.size(); ++i) {
        const Equipment& item = equipment.at(i);
        const QString serial = comparable(item.serialNumber);
        m_makes.insert(make(item));
        if (serial.isEmpty())
            m_unnumbered[make(item)].append(i);
        else
            m_bySerial[serial].append(i);
        const auto hintsOfItem = hints(item);
        for (const QString& hint : hintsOfItem) {
            m_byHint[hint].append(i);
            if (serial.isEmpty())
                m_unnumberedHints[hint].append(i);
        }
    }
}

bool PresentItems::contains(const Equipment& item) const
{
    return m_bySerial.contains(comparable(item.serialNumber)) || m_makes.contains(make(item));
}

QList<qsizetype> PresentItems::find(const Equipment& item) const
{
    const QString serial = comparable(item.serialNumber);
    if (const auto bySerial = m_bySerial.value(serial); !bySerial.isEmpty())
        return bySerial;
    QList<qsizetype> found = (serial.isEmpty() ? m_byHint : m_unnumberedHints).value(make(item));
    if (found.size() > 1) {
        if (const auto same = m_unnumbered.value(make(item)); same.size() == 1)
            return same;
    }
    return found;
}

} // namespace abissora
