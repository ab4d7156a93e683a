// SPDX-License-Identifier: MIT
#include "Cards.h"

#include "AccessKeys.h"
#include "Accessibility.h"
#include "IconViews.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace abissora {

Card::Card(QWidget* parent)
    : QFrame(parent)
    , m_content(new QVBoxLayout(this))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    m_content->setContentsMargins(metrics::spaceL, metrics::spaceL, metrics::spaceL, metrics::spaceL);
    m_content->setSpacing(metrics::spaceS);
}

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::cardRadius, tokens.surface, tokens.border);
}

GroupBox::GroupBox(const QString& title, const QString& symbol, QWidget* parent)
    : Card(parent)
    , m_title(new NameLabel)
{
    m_title->setFont(abissora::font(TextStyle::Headline));
    auto* header = new QHBoxLayout;
    header->setSpacing(metrics::spaceS);
    if (!symbol.isEmpty())
        header->addWidget(new IconView(symbolIcon(symbol, NamedColor::blue), metrics::iconSize + 2));
    header->addWidget(m_title, 1);
    content()->addLayout(header);
    setTitle(title);
}

QString GroupBox::title() const
{
    return m_title->text();
}

void GroupBox::setTitle(const QString& title)
{
    m_title->setText(title);
    setAccessibleName(title);
}

void GroupBox::setAccessKey(QChar key, QWidget* widget)
{
    m_title->setAccessKey(key, widget);
}

Separator::Separator(Weight weight, QWidget* parent)
    : QWidget(parent)
    , m_weight(weight)
{
    setAccessibleRole(*this, QAccessible::Separator, AccessibleParts::Hidden);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Separator::sizeHint() const
{
    return {1, 1};
}

void Separator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawHorizontalHairline(painter, 0, width(), 0, m_weight == Weight::Border ? tokens.border : tokens.divider);
}

} // namespace abissora
