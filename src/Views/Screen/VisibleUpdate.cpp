// SPDX-License-Identifier: MIT
#include "VisibleUpdate.h"

#include <QEvent>
#include <QWidget>

namespace abissora {

VisibleUpdate::VisibleUpdate(QWidget& widget, std::function<void()> action)
    : m_widget(widget)
    , m_action(std::move(action))
    , m_update([this] { run(); })
{
    widget.installEventFilter(this);
}

void VisibleUpdate::schedule()
{
    m_isDue = true;
    if (m_widget.isVisible())
        m_update.schedule();
}

bool VisibleUpdate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        run();
    return QObject::eventFilter(watched, event);
}

void VisibleUpdate::run()
{
    if (!m_isDue || !m_widget.isVisible())
        return;
    m_isDue = false;
    m_action();
}

} // namespace abissora
