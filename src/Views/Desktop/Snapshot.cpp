// SPDX-License-Identifier: MIT
#include "Snapshot.h"

#include <QBuffer>
#include <QEvent>
#include <QFile>
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
    QBuffer picture;
    m_window.grab().save(&picture, "PNG");
    QFile file(m_file);
    if (file.open(QIODevice::WriteOnly) && file.write(picture.data()) == picture.size() && file.flush())
        Q_EMIT taken();
    else
        Q_EMIT failed(file.errorString());
}

} // namespace abissora
