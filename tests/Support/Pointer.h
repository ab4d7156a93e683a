// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

namespace abissora::test {

/// As a person does who works with the pointer: nothing shows that it has the focus until a key is pressed.
inline void useThePointer()
{
    QWidget place;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(), QPointF(), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&place, &press);
}

} // namespace abissora::test
