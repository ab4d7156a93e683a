// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <QHash>

namespace abissora {

/// Finds the items of a register that are what a row of another list tells of: those of the same serial number, or else
/// of the same name, brand and model, whatever the letter case and the blanks.
class PresentItems
{
public:
    explicit PresentItems(const QList<Equipment>& equipment);

    /// Whether there is one; an empty serial number tells nothing.
    [[nodiscard]] bool contains(const Equipment& item) const;
    /// Their places in the list; without a brand or a model in the row, of any brand or model.
    [[nodiscard]] QList<qsizetype> find(const Equipment& item) const;

private:
    QHash<QString, QList<qsizetype>> m_bySerial;
    QHash<QString, QList<qsizetype>> m_byName;
    QList<Equipment> m_equipment;
};

} // namespace abissora
