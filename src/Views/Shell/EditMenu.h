// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMenu>

namespace abissora {

/// The platform's usual editing commands, for whatever text field has the focus.
class EditMenu : public QMenu
{
    Q_OBJECT

public:
    explicit EditMenu(QWidget* parent = nullptr);

private:
    void enableFor(QWidget* field);

    struct Command
    {
        QAction* action;
        const char* slot;
    };
    QList<Command> m_commands;
};

} // namespace abissora
