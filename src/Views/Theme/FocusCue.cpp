// SPDX-License-Identifier: MIT
#include "FocusCue.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QWidget>

namespace abissora {

bool FocusCue::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        m_usesKeys = true;
        break;
    case QEvent::MouseButtonPress:
        m_usesKeys = false;
        break;
    case QEvent::FocusIn:
        break;
    default:
        return false;
    }
    if (watched->isWidgetType())
        show(*static_cast<QWidget*>(watched)->window());
    return false;
}

void FocusCue::show(QWidget& window) const
{
    if (window.testAttribute(Qt::WA_KeyboardFocusChange) == m_usesKeys)
        return;
    window.setAttribute(Qt::WA_KeyboardFocusChange, m_usesKeys);
    QWidget* const focused = window.focusWidget();
    if (focused == nullptr)
        return;
    focused->update();
    if (const auto* const area = qobject_cast<QAbstractScrollArea*>(focused))
        area->viewport()->update();
}

} // namespace abissora
