// SPDX-License-Identifier: MIT
#include "FilterButton.h"

#include "ControlLook.h"
#include "FilterMenu.h"
#include "Literals.h"
#include "SymbolIcon.h"

#include <QStyleOptionToolButton>

namespace abissora {

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
