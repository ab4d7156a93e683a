// SPDX-License-Identifier: MIT
#include "Segment.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace abissora {

namespace {

constexpr int padding = metrics::spaceL;
constexpr int radius = metrics::controlRadius - 1;

} // namespace

Segment::Segment(QAccessible::Role role, const QString& symbol, const QString& text, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setAccessibleChoice(*this, role);
    setText(text);
    setCheckable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QFont Segment::textFont() const
{
    QFont medium = font();
    medium.setWeight(QFont::Medium);
    return medium;
}

int Segment::contentWidth() const
{
    const int textWidth = QFontMetrics(textFont()).horizontalAdvance(text());
    return m_symbol.isEmpty() ? textWidth : textWidth + metrics::iconSize + metrics::spaceS;
}

QSize Segment::sizeHint() const
{
    return {contentWidth() + 2 * padding, controlHeight(fontMetrics()) - 2};
}

QSize Segment::minimumSizeHint() const
{
    return {contentWidth() + padding, sizeHint().height()};
}

void Segment::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    QStyleOptionButton option;
    option.initFrom(this);
    if (isChecked()) {
        drawPanel(painter, rect(), radius, tokens.surface, isEnabled() ? tokens.strongBorder : tokens.border);
    } else if (isEnabled() && (underMouse() || isDown())) {
        QColor veil = tokens.text;
        veil.setAlphaF(isDown() ? 0.12F : 0.06F);
        drawPanel(painter, rect(), radius, veil, {});
    }
    if (showsFocusRing(option))
        drawFocusRing(painter, rect(), radius, palette());

    const NamedColor role = isChecked() ? NamedColor::primary : NamedColor::secondary;
    const QColor ink = isEnabled() ? tokens.named(role) : tokens.disabled;
    QRect content(0, 0, contentWidth(), height());
    content.moveCenter(rect().center());
    if (!m_symbol.isEmpty()) {
        const QRect place(content.left(), (height() - metrics::iconSize) / 2, metrics::iconSize, metrics::iconSize);
        symbolIcon(m_symbol, ink).paint(&painter, place);
        content.setLeft(place.right() + 1 + metrics::spaceS);
    }
    painter.setFont(textFont());
    painter.setPen(ink);
    painter.drawText(content.adjusted(0, 0, padding, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
}

void Segment::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void Segment::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace abissora
