// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QWidget>

namespace abissora {

/// Ctrl+W wherever the program runs; the toolkit's own choice for closing differs from desktop to desktop.
inline QKeySequence closeKey()
{
    return {Qt::CTRL | Qt::Key_W};
}

inline void closeByKeyboard(QWidget& window)
{
    auto* close = new QAction(&window);
    close->setShortcut(closeKey());
    QObject::connect(close, &QAction::triggered, &window, &QWidget::close);
    window.addAction(close);
}

} // namespace abissora
