// SPDX-License-Identifier: MIT
#include "ReturnKey.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QRadioButton>

namespace abissora {

namespace {

bool isPlainReturn(const QKeyEvent& key)
{
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return isReturn && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

void ReturnKey::attachTo(QAbstractButton& button)
{
    const bool isChosen =
        qobject_cast<QCheckBox*>(&button) != nullptr || qobject_cast<QRadioButton*>(&button) != nullptr;
    if (!isChosen)
        button.installEventFilter(this); // once, however often it is called
}

bool ReturnKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!isPlainReturn(key))
        return false;
    if (!key.isAutoRepeat())
        static_cast<QAbstractButton*>(watched)->click();
    return true;
}

} // namespace abissora
