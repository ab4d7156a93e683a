// SPDX-License-Identifier: MIT
#include "Snapshot.h"

#include <QEvent>
#include <QImageWriter>
#include <QPixmap>
#include <QWidget>

namespace abissora {

Snapshot::Snapshot(QWidget& window, QString file, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_file(std::move(file))
{
    m_window.installEventFilter(this);
}

bool Snapshot::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Paint) {
        m_window.removeEventFilter(this);
        // After the paint event, and after the redraws that were queued before it.
        QMetaObject::invokeMethod(this, &Snapshot::take, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void Snapshot::take()
{
    QImageWriter writer(m_file, "png");
    if (writer.write(m_window.grab().toImage()))
        Q_EMIT taken();
    else
        Q_EMIT failed(writer.errorString());
}

} // namespace abissora
