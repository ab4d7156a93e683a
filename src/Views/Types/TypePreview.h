// SPDX-License-Identifier: MIT
#pragma once

#include "Card.h"
#include "EquipmentTypeModel.h"

namespace abissora {

class IconTile;
class WrapLabel;

/// "Anteprima": a type as it will look.
class TypePreview : public Card
{
    Q_OBJECT

public:
    explicit TypePreview(QWidget* parent = nullptr);

    void setType(const EquipmentTypeModel& type);

private:
    IconTile* m_tile;
    WrapLabel* m_name;
    WrapLabel* m_interval;
};

} // namespace abissora
