// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

class QWidget;

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

/// A CoalescedUpdate that lets a hidden widget be: what was asked for meanwhile is done when the widget is next shown,
/// before it is painted. The first showing always asks.
class VisibleUpdate : public QObject
{
    Q_OBJECT

public:
    /// `widget` must outlive it.
    VisibleUpdate(QWidget& widget, std::function<void()> action);

    void schedule();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void run();

    QWidget& m_widget;
    std::function<void()> m_action;
    CoalescedUpdate m_update;
    bool m_isDue = true;
};

} // namespace abissora
