// SPDX-License-Identifier: MIT
#include "EmptyState.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "IconViews.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeScale.h"

#include <QLabel>

namespace abissora {

namespace {

constexpr int symbolSide = 44;

QLabel* secondaryLabel(TextStyle style)
{
    auto* label = new QLabel;
    label->setFont(abissora::font(style));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent)
    , m_icon(new IconView({}, symbolSide))
    , m_title(secondaryLabel(TextStyle::Headline))
    , m_text(secondaryLabel(TextStyle::Body))
    , m_button(named(new PlainButton({}), u"emptyStateButton"_s))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    m_text->hide();
    m_button->hide();
    setLayout(inColumn(
        metrics::spaceM,
        {Stretch(), {m_icon, 0, Qt::AlignHCenter}, m_title, m_text, {m_button, 0, Qt::AlignHCenter}, Stretch()},
        {metrics::spaceXL, metrics::spaceXL, metrics::spaceXL, metrics::spaceXL}));
    connect(m_button, &QAbstractButton::clicked, this, &EmptyState::buttonClicked);
}

EmptyState::EmptyState(const QString& symbol, const QString& title, QWidget* parent)
    : EmptyState(parent)
{
    setSymbol(symbol);
    setTitle(title);
}

void EmptyState::setSymbol(const QString& name, NamedColor color)
{
    m_icon->setIcon(symbolIcon(name, color));
}

void EmptyState::setTitle(const QString& title)
{
    m_title->setText(title);
    setAccessibleName(title);
}

void EmptyState::setText(const QString& text)
{
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

void EmptyState::setButtonText(const QString& text)
{
    m_button->setText(text);
    m_button->setVisible(!text.isEmpty());
    setFocusProxy(text.isEmpty() ? nullptr : m_button); // a hidden one would swallow the focus
}

} // namespace abissora
