// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <QMenu>

namespace abissora {

/// What can be done with one item, from its row's button or by right click.
class RowActionsMenu : public QMenu
{
    Q_OBJECT

public:
    explicit RowActionsMenu(QWidget* parent = nullptr);

    void setEquipment(const Equipment& equipment) { m_equipment = equipment; }

Q_SIGNALS:
    void showRequested(const abissora::Equipment& equipment);
    void editRequested(const abissora::Equipment& equipment);
    void deleteRequested(const abissora::Equipment& equipment);

private:
    Equipment m_equipment;
};

} // namespace abissora
