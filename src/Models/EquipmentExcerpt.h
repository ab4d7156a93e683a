// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <cstddef>
#include <iterator>
#include <vector>

namespace abissora {

/// Items of a register in an order of their own, as they were when it was made, whatever becomes of the register. It
/// shares the register's list instead of copying items; references to them hold as long as the excerpt or a copy of it.
class EquipmentExcerpt
{
public:
    class Iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Equipment;
        using difference_type = std::ptrdiff_t;
        using pointer = const Equipment*;
        using reference = const Equipment&;

        Iterator() = default;

        reference operator*() const { return **m_item; }
        pointer operator->() const { return *m_item; }
        Iterator& operator++()
        {
            ++m_item;
            return *this;
        }
        Iterator operator++(int) { return Iterator(m_item++); }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        friend class EquipmentExcerpt;
        explicit Iterator(const pointer* item)
            : m_item(item)
        {}

        const pointer* m_item = nullptr;
    };

    EquipmentExcerpt() = default;
    /// All of them, in their order.
    EquipmentExcerpt(QList<Equipment> all); // NOLINT(google-explicit-constructor)
    /// Those at `positions`, each within the list, in their order.
    EquipmentExcerpt(QList<Equipment> all, const std::vector<qsizetype>& positions);

    [[nodiscard]] qsizetype size() const { return m_items.size(); }
    [[nodiscard]] bool isEmpty() const { return m_items.isEmpty(); }
    [[nodiscard]] const Equipment& at(qsizetype index) const { return *m_items.at(index); }
    [[nodiscard]] const Equipment& first() const { return at(0); }
    [[nodiscard]] Iterator begin() const { return Iterator(m_items.constData()); }
    [[nodiscard]] Iterator end() const { return Iterator(m_items.constData() + m_items.size()); }

    /// Compares the items themselves.
    friend bool operator==(const EquipmentExcerpt& left, const EquipmentExcerpt& right);

private:
    QList<Equipment> m_all; ///< never changed here, so that it stays where the items are
    QList<const Equipment*> m_items;
};

} // namespace abissora
