// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"

#include <QWidget>

namespace abissora {

class Chip;

/// The title, the chip of the active type filter and the buttons above the register's table.
class ListHeader : public QWidget
{
    Q_OBJECT

public:
    explicit ListHeader(QWidget* parent = nullptr);

    /// Nothing hides the chip.
    void setFilter(const std::optional<QString>& typeName, const EquipmentTypeViewModel& types);

Q_SIGNALS:
    void addClicked();
    void refreshClicked();
    void clearFilterClicked();

private:
    Chip* m_chip;
};

} // namespace abissora
