// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

class QSplitter;
class QWidget;

namespace abissora {

/// Keeps a window's size and its splitters across starts. Not the position: not every desktop can restore it.
class WindowState
{
public:
    explicit WindowState(const QString& file);

    /// Splitters are known by their object names.
    void restore(QWidget& window, const QList<QSplitter*>& splitters) const;
    void save(const QWidget& window, const QList<QSplitter*>& splitters);

private:
    QSettings m_settings;
};

} // namespace abissora
