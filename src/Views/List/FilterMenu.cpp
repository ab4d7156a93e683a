// SPDX-License-Identifier: MIT
#include "FilterMenu.h"

#include "ControlLook.h"
#include "Literals.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"

#include <QStyleOptionToolButton>

namespace abissora {

namespace {

constexpr int menuIconSize = 14;

/// A name is shown as it is, not with one of its letters underlined.
QString menuText(QString name)
{
    return name.replace(u'&', "&&"_L1);
}

} // namespace

FilterMenu::FilterMenu(QWidget* parent)
    : QMenu(parent)
{
    setObjectName(u"filterMenu"_s);
}

void FilterMenu::setEntries(const QList<EquipmentTypeModel>& types, bool canClear)
{
    clear();
    connect(addAction(u"Tutti"_s), &QAction::triggered, this, &FilterMenu::allChosen);
    addSeparator();
    for (const EquipmentTypeModel& type : types) {
        const TypeAppearance look = appearanceOf(type);
        QAction* action = addAction(typeIconForMenu(look.icon, menuIconSize, look.color), menuText(type.name));
        connect(action, &QAction::triggered, this, [this, name = type.name] { Q_EMIT typeChosen(name); });
    }
    if (canClear) {
        addSeparator();
        connect(addAction(symbolIcon(u"xmark.circle"_s), u"Cancella filtri"_s), &QAction::triggered, this,
                &FilterMenu::clearChosen);
    }
}

FilterButton::FilterButton(FilterMenu& menu, QWidget* parent)
    : QToolButton(parent)
{
    const QString name = u"Filtro"_s;
    setIcon(symbolIcon(u"line.3.horizontal.decrease"_s));
    setAccessibleName(name);
    setToolTip(name);
    setPopupMode(InstantPopup);
    setMenu(&menu);
    setButtonLook(*this, ButtonLook::Plain);
}

void FilterButton::initStyleOption(QStyleOptionToolButton* option) const
{
    QToolButton::initStyleOption(option);
    option->features &= ~QStyleOptionToolButton::HasMenu;
}

} // namespace abissora
