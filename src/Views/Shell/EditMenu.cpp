// SPDX-License-Identifier: MIT
#include "EditMenu.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace abissora {

namespace {

bool isTextField(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           qobject_cast<const QTextEdit*>(widget);
}

bool isReadOnly(const QWidget* field)
{
    return field->property("readOnly").toBool();
}

} // namespace

EditMenu::EditMenu(QWidget* parent)
    : QMenu(QStringLiteral("&Modifica"), parent)
{
    const auto add = [this](const QString& text, QKeySequence::StandardKey key, const char* slot) {
        QAction* action = addAction(text);
        action->setShortcut(key);
        action->setEnabled(false);
        connect(action, &QAction::triggered, this, [slot] {
            if (QWidget* field = QApplication::focusWidget(); isTextField(field))
                QMetaObject::invokeMethod(field, slot);
        });
        m_commands.append({action, slot});
    };
    add(QStringLiteral("&Annulla"), QKeySequence::Undo, "undo");
    add(QStringLiteral("&Ripeti"), QKeySequence::Redo, "redo");
    addSeparator();
    add(QStringLiteral("&Taglia"), QKeySequence::Cut, "cut");
    add(QStringLiteral("&Copia"), QKeySequence::Copy, "copy");
    add(QStringLiteral("&Incolla"), QKeySequence::Paste, "paste");
    addSeparator();
    add(QStringLiteral("&Seleziona tutto"), QKeySequence::SelectAll, "selectAll");
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // An open menu has the focus for a while; what it acts on is what had it before.
        if (!qobject_cast<QMenu*>(now))
            enableFor(now);
    });
}

void EditMenu::enableFor(QWidget* field)
{
    const bool text = isTextField(field);
    for (const Command& command : std::as_const(m_commands)) {
        const QByteArrayView slot(command.slot);
        const bool reads = slot == "copy" || slot == "selectAll";
        command.action->setEnabled(text && (reads || !isReadOnly(field)));
    }
}

} // namespace abissora
