// SPDX-License-Identifier: MIT
#include "CoalescedUpdate.h"

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

} // namespace abissora
