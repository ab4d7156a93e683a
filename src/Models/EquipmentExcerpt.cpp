// SPDX-License-Identifier: MIT
#include "EquipmentExcerpt.h"

#include <algorithm>

namespace abissora {

EquipmentExcerpt::EquipmentExcerpt(QList<Equipment> all)
    : m_all(std::move(all))
{
    m_items.reserve(m_all.size());
    for (const Equipment& item : std::as_const(m_all))
        m_items.append(&item);
}

EquipmentExcerpt::EquipmentExcerpt(QList<Equipment> all, const std::vector<qsizetype>& positions)
    : m_all(std::move(all))
{
    const Equipment* const items = m_all.constData();
    m_items.reserve(static_cast<qsizetype>(positions.size()));
    for (const qsizetype position : positions)
        m_items.append(items + position);
}

bool operator==(const EquipmentExcerpt& left, const EquipmentExcerpt& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end());
}

} // namespace abissora
