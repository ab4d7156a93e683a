// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <QHash>
#include <QSet>

namespace abissora {

/// Finds the items of a register that are what a row of another list tells of: those of the same serial number, or else
/// of the same name, brand and model, whatever the letter case and the blanks.
class PresentItems
{
public:
    explicit PresentItems(const QList<Equipment>& equipment);

    /// Whether there is one; an empty serial number tells nothing.
    [[nodiscard]] bool contains(const Equipment& item) const;
    /// Their places in the list; without a brand or a model in the row, of any brand or model, and without a serial
    /// number of any number, unless just one is the same in all of it. Never one of another serial number.
    [[nodiscard]] QList<qsizetype> find(const Equipment& item) const;

private:
    using Places = QHash<QString, QList<qsizetype>>;

    QSet<QString> m_makes;
    Places m_bySerial;
    Places m_byHint;          ///< by every text that may mean the item
    Places m_unnumbered;      ///< by their make, those without a serial number
    Places m_unnumberedHints; ///< the same by every text that may mean them
};

} // namespace abissora
