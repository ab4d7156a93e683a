// SPDX-License-Identifier: MIT
#pragma once

#include "CoalescedUpdate.h"

class QWidget;

namespace abissora {

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
