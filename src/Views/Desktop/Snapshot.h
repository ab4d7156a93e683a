// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace abissora {

/// Writes what a window shows to a PNG file, once it has been painted whole for the first time.
class Snapshot : public QObject
{
    Q_OBJECT

public:
    /// `window` must outlive it.
    Snapshot(QWidget& window, QString file, QObject* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void taken();
    /// The reason, in the words of the system.
    void failed(const QString& reason);

private:
    void take();

    QWidget& m_window;
    QString m_file;
};

} // namespace abissora
