// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace abissora::test {

/// Drags what a file manager would over the place and lets go there. Whether the pointer said that it would be taken.
inline bool dropOn(QWidget& widget, QPoint place, const QList<QUrl>& urls,
                   Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
    if (!enter.isAccepted() || !move.isAccepted())
        return false;
    QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
    return drop.isAccepted();
}

} // namespace abissora::test
