// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAbstractButton;

namespace abissora {

/// Lets Return, also the keypad's Enter, press the button that has the focus, as the space bar does, whatever the
/// desktop has its buttons do otherwise; no other button answers in its place. A key that is held presses nothing more.
/// Check boxes and radio buttons are chosen, not pressed: they keep to the desktop.
class ReturnKey final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void attachTo(QAbstractButton& button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace abissora
