// SPDX-License-Identifier: MIT
#pragma once

#include "RegisterSummary.h"
#include "TypeAppearance.h"

#include <QWidget>

class QAbstractButton;

namespace abissora {

class ElidedLabel;
class IconTile;

/// One item that needs service, with two buttons that both lead to the item.
class DueRow : public QWidget
{
    Q_OBJECT

public:
    enum Part { AddMaintenance, Details };

    explicit DueRow(QWidget* parent);

    [[nodiscard]] const Equipment& equipment() const { return m_equipment; }
    void setItem(const RegisterSummary::DueItem& item, const TypeAppearance& appearance);

    [[nodiscard]] QAbstractButton* button(Part part) const { return part == AddMaintenance ? m_add : m_details; }

Q_SIGNALS:
    void chosen();

private:
    void choose(QAbstractButton& button);

    Equipment m_equipment;
    IconTile* m_tile;
    ElidedLabel* m_name;
    ElidedLabel* m_state;
    QAbstractButton* m_add;
    QAbstractButton* m_details;
};

} // namespace abissora
