// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace abissora {

/// An entry of a menu that calls `slot` of `receiver`.
template <typename Receiver, typename Slot>
QAction* addCommand(QMenu& menu, const QString& text, const QKeySequence& shortcut, Receiver* receiver, Slot slot)
{
    QAction* command = menu.addAction(text);
    command->setShortcut(shortcut);
    QObject::connect(command, &QAction::triggered, receiver, slot);
    return command;
}

} // namespace abissora
