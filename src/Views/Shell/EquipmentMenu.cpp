// SPDX-License-Identifier: MIT
#include "EquipmentMenu.h"

#include "Command.h"
#include "ContentView.h"
#include "ControlLook.h"
#include "Literals.h"
#include "SymbolIcon.h"

namespace abissora {

EquipmentMenu::EquipmentMenu(ContentView& content, QWidget* parent)
    : QMenu(u"A&rticolo"_s, parent)
    , m_content(content)
{
    setObjectName(u"equipmentMenu"_s);
    ListPage* const page = &content.listPage();
    const auto onItem = [&content](void (ContentView::*verb)(const Equipment&)) {
        return [&content, verb] {
            if (const auto item = content.item())
                std::invoke(verb, content, *item);
        };
    };
    const auto add = [this](const QString& symbol, const QString& text, const QKeySequence& key, auto* receiver,
                            auto slot) {
        QAction* const command = addCommand(*this, text, key, receiver, slot);
        command->setIcon(symbolIcon(symbol));
        return command;
    };
    QAction* const show =
        add(u"info.circle"_s, u"&Visualizza dettagli"_s, Qt::Key_Return, page, &ListPage::showDetails);
    add(u"pencil"_s, u"&Modifica attrezzatura"_s, Qt::Key_F2, &content, onItem(&ContentView::editEquipment));
    add(u"wrench"_s, u"&Aggiungi Manutenzione"_s, Qt::CTRL | Qt::Key_M, page, &ListPage::addMaintenance);
    m_toggleActive = add({}, {}, {}, page, &ListPage::toggleActive);
    add(u"doc.on.doc"_s, u"D&uplica…"_s, Qt::CTRL | Qt::Key_D, &content, onItem(&ContentView::duplicateEquipment));
    addSeparator();
    QAction* const remove =
        add(u"trash"_s, u"&Elimina attrezzatura"_s, QKeySequence::Delete, page, &ListPage::confirmDeletion);
    remove->setIcon(symbolIcon(u"trash"_s, NamedColor::red));
    setDestructiveLook(*remove);
    // The list itself hears these keys; anywhere else they have other meanings.
    for (QAction* command : {show, remove})
        command->setShortcutContext(Qt::WidgetShortcut);
    connect(&content, &ContentView::itemChanged, this, &EquipmentMenu::follow);
    follow();
}

void EquipmentMenu::follow()
{
    const auto item = m_content.item();
    const auto commands = actions();
    for (QAction* command : commands)
        command->setEnabled(item.has_value());
    const bool active = !item || item->isActive;
    m_toggleActive->setText(active ? u"&Disattiva"_s : u"A&ttiva"_s);
    m_toggleActive->setIcon(symbolIcon(active ? u"pause.circle"_s : u"play.circle"_s));
}

} // namespace abissora
