// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

class QSplitter;
class QWidget;

namespace abissora {

/// Keeps a window's size, its splitters and the columns of its table across starts. Not the position: not every desktop
/// can restore it.
class WindowState
{
public:
    explicit WindowState(const QString& file);

    /// Splitters are known by their object names. With its frame the window has no more than `room`, its minimum size
    /// apart.
    void restore(QWidget& window, const QList<QSplitter*>& splitters, const QRect& room) const;
    void save(const QWidget& window, const QList<QSplitter*>& splitters);

    /// As they were saved, whatever the file holds by now.
    [[nodiscard]] QList<int> columnWidths() const;
    void saveColumnWidths(const QList<int>& widths);

private:
    QSettings m_settings;
};

} // namespace abissora
