// SPDX-License-Identifier: MIT
#include "RowActionsMenu.h"

#include "Literals.h"
#include "SymbolIcon.h"

namespace abissora {

RowActionsMenu::RowActionsMenu(QWidget* parent)
    : QMenu(parent)
{
    setObjectName(u"rowActions"_s);
    const auto add = [this](const QString& symbol, const QString& text,
                            void (RowActionsMenu::*signal)(const Equipment&)) {
        connect(addAction(symbolIcon(symbol), text), &QAction::triggered, this, [this, signal] {
            Q_EMIT(this->*signal)(m_equipment);
        });
    };
    add(u"info.circle"_s, u"Visualizza dettagli"_s, &RowActionsMenu::showRequested);
    add(u"pencil"_s, u"Modifica attrezzatura"_s, &RowActionsMenu::editRequested);
    addSeparator();
    add(u"trash.circle.fill"_s, u"Elimina attrezzatura"_s, &RowActionsMenu::deleteRequested);
}

} // namespace abissora
