// SPDX-License-Identifier: MIT
#include "BringForward.h"

#include <QWidget>

namespace abissora {

void bringForward(QWidget& window, const QWidget* over)
{
    if (!window.isVisible()) {
        if (over != nullptr) {
            window.ensurePolished();
            window.adjustSize();
            QRect frame(QPoint(), window.size());
            frame.moveCenter(over->geometry().center());
            window.move(frame.topLeft());
        }
        window.show();
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

} // namespace abissora
