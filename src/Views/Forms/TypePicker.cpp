// SPDX-License-Identifier: MIT
#include "TypePicker.h"

#include "SymbolIcon.h"
#include "TypeAppearance.h"

#include <QWheelEvent>

namespace abissora {

namespace {

constexpr int entriesShown = 17;

} // namespace

TypePicker::TypePicker(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(entriesShown);
    connect(this, &QComboBox::activated, this, &TypePicker::choose);
}

void TypePicker::setTypes(const QList<EquipmentTypeModel>& types, const QString& selectedTypeName)
{
    if (types != m_types) {
        m_types = types;
        clear();
        for (const EquipmentTypeModel& type : types) {
            const TypeAppearance appearance = appearanceOf(type);
            addItem(typeIcon(appearance.icon, appearance.color), type.name);
        }
    }
    m_selected = selectedTypeName;
    setCurrentIndex(findText(selectedTypeName, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void TypePicker::choose(int index)
{
    const QString name = itemText(index);
    if (name == m_selected)
        return;
    m_selected = name;
    Q_EMIT chosen(name);
}

void TypePicker::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace abissora
