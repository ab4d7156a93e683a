// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

namespace abissora {

/// Runs an action once per pass of the event loop, however often it was asked for: a view redraws once after a verb
/// that changed several properties.
class CoalescedUpdate : public QObject
{
    Q_OBJECT

public:
    explicit CoalescedUpdate(std::function<void()> action, QObject* parent = nullptr);

    void schedule();

private:
    std::function<void()> m_action;
    bool m_scheduled = false;
};

} // namespace abissora
