// SPDX-License-Identifier: MIT
#include "VisibleUpdate.h"

#include <QEvent>
#include <QWidget>

namespace abissora {

CoalescedUpdate::CoalescedUpdate(std::function<void()> action, QObject* parent)
    : QObject(parent)
    , m_action(std::move(action))
{}

void CoalescedUpdate::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_scheduled = false;
            m_action();
        },
        Qt::QueuedConnection);
}

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
