// SPDX-License-Identifier: MIT
#include "RowActionsMenu.h"

#include "SymbolIcon.h"

namespace abissora {

RowActionsMenu::RowActionsMenu(QWidget* parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("rowActions"));
    const auto add = [this](const QString& symbol, const QString& text,
                            void (RowActionsMenu::*signal)(const Equipment&)) {
        connect(addAction(symbolIcon(symbol), text), &QAction::triggered, this, [this, signal] {
            Q_EMIT(this->*signal)(m_equipment);
        });
    };
    add(QStringLiteral("info.circle"), QStringLiteral("Visualizza dettagli"), &RowActionsMenu::showRequested);
    add(QStringLiteral("pencil"), QStringLiteral("Modifica attrezzatura"), &RowActionsMenu::editRequested);
    addSeparator();
    add(QStringLiteral("trash.circle.fill"), QStringLiteral("Elimina attrezzatura"), &RowActionsMenu::deleteRequested);
}

} // namespace abissora
