// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentFormView.h"
#include "FormFields.h"
#include "Gui.h"
#include "RegisterFixture.h"

/// The form of a new item, and the picker of the type in the forms of an item.
namespace abissora::test {

/// The form over a window of the smallest size.
struct OpenEquipmentForm
{
    explicit OpenEquipmentForm(RegisterFixture& f, QSize size = QSize(1000, 700))
        : form((window.resize(size), window.show(), f.equipment), f.types, f.almanac, f.ids, std::nullopt, &window)
    {
        form.open();
        activate(form);
    }

    QWidget window;
    EquipmentFormView form;
};

/// With the arrow keys, as a closed picker takes them.
inline void choose(const QWidget& form, const QString& typeName)
{
    auto& picker = usable<TypePicker>(form, "type");
    const int index = picker.findText(typeName);
    if (index < 0)
        qFatal("the type is not offered");
    picker.setFocus(Qt::TabFocusReason);
    while (picker.currentIndex() < index)
        QTest::keyClick(&picker, Qt::Key_Down);
    while (picker.currentIndex() > index)
        QTest::keyClick(&picker, Qt::Key_Up);
}

inline QString chosenType(const QWidget& form)
{
    return usable<TypePicker>(form, "type").currentText();
}

inline QStringList offeredTypes(const QWidget& form)
{
    const auto& picker = usable<TypePicker>(form, "type");
    QStringList names;
    for (int i = 0; i < picker.count(); ++i)
        names.append(picker.itemText(i));
    return names;
}

} // namespace abissora::test
