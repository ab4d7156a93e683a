// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"

#include <QStringList>

namespace abissora::test {

/// The column "size": of the smallest window, and of the usual one.
inline void addWindowSizes()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smallest window") << QSize(1000, 700);
    QTest::newRow("usual window") << QSize(1280, 800);
}

/// The part of the focused widget that a person has to see: the whole, or the cursor's line where it is taller than
/// what it scrolls in.
inline bool isFocusInSight(const QWidget& window)
{
    const QWidget& focused = *window.focusWidget();
    const QRect seen = focused.visibleRegion().boundingRect();
    const QRect cursor = focused.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return seen.contains(focused.rect()) || (cursor.isValid() && focused.height() > 300 && seen.contains(cursor));
}

/// Goes round with Tab, backwards if told so. The names of those that have the focus out of sight; one more entry when
/// it does not come back to where it began.
inline QStringList stopsOutOfSight(const QWidget& window, bool backwards = false)
{
    constexpr int mostStops = 200;
    QStringList hidden;
    const QWidget* const first = window.focusWidget();
    int stops = 0;
    do {
        QTest::keyClick(window.focusWidget(), backwards ? Qt::Key_Backtab : Qt::Key_Tab,
                        backwards ? Qt::ShiftModifier : Qt::NoModifier);
        if (!isFocusInSight(window))
            hidden.append(window.focusWidget()->objectName());
    } while (window.focusWidget() != first && ++stops < mostStops);
    if (stops == mostStops)
        hidden.append(QStringLiteral("no way round"));
    return hidden;
}

} // namespace abissora::test
