// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QComboBox>

namespace abissora {

/// One of the types, by name, each with its picture. The wheel belongs to what is around the picker.
class TypePicker : public QComboBox
{
    Q_OBJECT

public:
    explicit TypePicker(QWidget* parent = nullptr);

    /// Emits nothing. Shows no choice when none of the types has the name.
    void setTypes(const QList<EquipmentTypeModel>& types, const QString& selectedTypeName);

Q_SIGNALS:
    /// The person chose another type.
    void chosen(const QString& typeName);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void choose(int index);

    QList<EquipmentTypeModel> m_types;
    QString m_selected;
};

} // namespace abissora
