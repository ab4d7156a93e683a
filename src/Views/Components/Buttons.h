// SPDX-License-Identifier: MIT
#pragma once

#include "ControlLook.h"

#include <QPushButton>
#include <QToolButton>

namespace abissora {

/// A push button in one look. None is made the default button by merely having the focus.
class LookButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LookButton(ButtonLook look, const QString& text = {}, const QString& symbol = {});

    /// In the colour of the look's text.
    void setSymbol(const QString& name);

protected:
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    ButtonLook m_look;
};

class PrimaryButton final : public LookButton
{
    Q_OBJECT

public:
    explicit PrimaryButton(const QString& text, const QString& symbol = {})
        : LookButton(ButtonLook::Primary, text, symbol)
    {}
};

class PlainButton final : public LookButton
{
    Q_OBJECT

public:
    explicit PlainButton(const QString& text, const QString& symbol = {})
        : LookButton(ButtonLook::Plain, text, symbol)
    {}
};

class DestructiveButton final : public LookButton
{
    Q_OBJECT

public:
    explicit DestructiveButton(const QString& text, const QString& symbol = {})
        : LookButton(ButtonLook::Destructive, text, symbol)
    {}
};

class LinkButton final : public LookButton
{
    Q_OBJECT

public:
    explicit LinkButton(const QString& text, const QString& symbol = {})
        : LookButton(ButtonLook::Link, text, symbol)
    {}
};

/// A button without text; its name is read by screen readers and shown as tool tip.
class IconButton : public QToolButton
{
    Q_OBJECT

public:
    IconButton(const QIcon& icon, const QString& name, QWidget* parent = nullptr);
};

} // namespace abissora
