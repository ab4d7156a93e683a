// SPDX-License-Identifier: MIT
#include "Buttons.h"

#include "AccessKeys.h"
#include "SymbolIcon.h"
#include "Tokens.h"

#include <QStyleOptionButton>

namespace abissora {

namespace {

QIcon symbolFor(ButtonLook look, const QString& name)
{
    switch (look) {
    case ButtonLook::Primary:
        return symbolIcon(name, Tokens::of(Scheme::Light).onFill); // the same in both schemes
    case ButtonLook::Destructive:
    case ButtonLook::DestructiveLink:
        return symbolIcon(name, NamedColor::red);
    case ButtonLook::Caution:
        return symbolIcon(name, NamedColor::orange);
    case ButtonLook::Positive:
        return symbolIcon(name, NamedColor::green);
    case ButtonLook::Link:
        return symbolIcon(name, NamedColor::blue);
    case ButtonLook::Plain:
    case ButtonLook::Borderless:
        break;
    }
    return symbolIcon(name);
}

} // namespace

LookButton::LookButton(ButtonLook look, const QString& text, const QString& symbol)
    : QPushButton(text)
    , m_look(look)
{
    setButtonLook(*this, look);
    setAutoDefault(false);
    if (!symbol.isEmpty())
        setSymbol(symbol);
}

void LookButton::setSymbol(const QString& name)
{
    setIcon(symbolFor(m_look, name));
}

void LookButton::initStyleOption(QStyleOptionButton* option) const
{
    QPushButton::initStyleOption(option);
    if (const QChar key = accessKeyOf(*this); !key.isNull())
        option->text = markedText(text(), key, *this);
}

IconButton::IconButton(const QIcon& icon, const QString& name, QWidget* parent)
    : QToolButton(parent)
{
    setIcon(icon);
    setAccessibleName(name);
    setToolTip(name);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
}

} // namespace abissora
