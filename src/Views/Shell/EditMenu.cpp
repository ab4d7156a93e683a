// SPDX-License-Identifier: MIT
#include "EditMenu.h"

#include "Literals.h"

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
    : QMenu(u"&Modifica"_s, parent)
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
    add(u"&Annulla"_s, QKeySequence::Undo, "undo");
    add(u"&Ripeti"_s, QKeySequence::Redo, "redo");
    addSeparator();
    add(u"&Taglia"_s, QKeySequence::Cut, "cut");
    add(u"&Copia"_s, QKeySequence::Copy, "copy");
    add(u"&Incolla"_s, QKeySequence::Paste, "paste");
    addSeparator();
    add(u"&Seleziona tutto"_s, QKeySequence::SelectAll, "selectAll");
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
