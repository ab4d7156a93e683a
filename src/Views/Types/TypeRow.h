// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QWidget>

class QAbstractButton;

namespace abissora {

class IconTile;
class LookButton;
class WrapLabel;

/// One type of the management screen with its actions.
class TypeRow : public QWidget
{
    Q_OBJECT

public:
    explicit TypeRow(QWidget* parent = nullptr);

    void setType(const EquipmentTypeModel& type);
    [[nodiscard]] const EquipmentTypeModel& type() const { return m_type; }
    [[nodiscard]] QList<QAbstractButton*> buttons() const;

    /// Whether a row of this width shows the name without breaking it; cheaper to ask than the height.
    [[nodiscard]] bool showsInOneLine(const QString& name, int width) const;

Q_SIGNALS:
    void editRequested();
    void deleteRequested();

private:
    EquipmentTypeModel m_type;
    IconTile* m_tile;
    WrapLabel* m_name;
    WrapLabel* m_interval;
    LookButton* m_edit;
    LookButton* m_delete;
};

} // namespace abissora
