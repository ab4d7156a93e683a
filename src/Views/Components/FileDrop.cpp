// SPDX-License-Identifier: MIT
#include "FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace abissora {

namespace {

/// Empty for anything but one file of this computer.
QString fileIn(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

} // namespace

FileDrop::FileDrop(QWidget& target, Accepts accepts)
    : QObject(&target)
    , m_accepts(std::move(accepts))
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    default:
        return QObject::eventFilter(watched, event);
    }
    auto& drop = static_cast<QDropEvent&>(*event); // the base of all three
    // The file stays where it is, whatever the other program offers.
    const bool isTaken = takes(drop) && drop.possibleActions().testFlag(Qt::CopyAction);
    drop.setDropAction(isTaken ? Qt::CopyAction : Qt::IgnoreAction);
    drop.setAccepted(isTaken);
    if (isTaken && event->type() == QEvent::Drop)
        Q_EMIT dropped(fileIn(*drop.mimeData()), drop.position().toPoint());
    return true;
}

bool FileDrop::takes(const QDropEvent& event) const
{
    const QString path = fileIn(*event.mimeData());
    return !path.isEmpty() && m_accepts(path, event.position().toPoint());
}

} // namespace abissora
