// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

class QSplitter;
class QWidget;

namespace abissora {

/// Keeps a window's size and its splitter across starts. Not the position: not every desktop can restore it.
class WindowState
{
public:
    explicit WindowState(const QString& file);

    void restore(QWidget& window, QSplitter& splitter) const;
    void save(const QWidget& window, const QSplitter& splitter);

private:
    QSettings m_settings;
};

} // namespace abissora
