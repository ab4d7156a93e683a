// SPDX-License-Identifier: MIT
#include "StatCard.h"

#include "Accessibility.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <algorithm>

namespace abissora {

namespace {

constexpr int symbolSide = 22;

/// Every digit takes the room of the widest, so that a figure does not shift while it changes.
int digitWidth(const QFontMetrics& metrics)
{
    int width = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        width = std::max(width, metrics.horizontalAdvance(QChar(digit)));
    return width;
}

int tabularWidth(const QString& text, const QFontMetrics& metrics)
{
    const int digit = digitWidth(metrics);
    int width = 0;
    for (const QChar c : text)
        width += c.isDigit() ? digit : metrics.horizontalAdvance(c);
    return width;
}

void drawTabular(QPainter& painter, int left, const QRect& line, const QString& text)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int digit = digitWidth(metrics);
    for (const QChar c : text) {
        const int advance = c.isDigit() ? digit : metrics.horizontalAdvance(c);
        painter.drawText(QRect(left, line.top(), advance, line.height()), Qt::AlignCenter | Qt::TextDontClip, c);
        left += advance;
    }
}

} // namespace

StatCard::StatCard(const QString& title, const QString& symbol, NamedColor color, QWidget* parent)
    : QFrame(parent)
    , m_title(title)
    , m_icon(symbolIcon(symbol, color))
{
    setAccessibleRole(*this, QAccessible::StaticText, AccessibleParts::Hidden);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    name();
}

void StatCard::setValue(const QString& value)
{
    if (value == m_value)
        return;
    m_value = value;
    name();
    updateGeometry();
    update();
}

void StatCard::name()
{
    setAccessibleName(m_title + u": "_s + m_value);
}

QSize StatCard::minimumSizeHint() const
{
    const QFontMetrics value(abissora::font(TextStyle::StatisticsValue));
    const QFontMetrics title(abissora::font(TextStyle::Caption));
    return {2 * metrics::spaceL + std::max(tabularWidth(m_value, value), title.horizontalAdvance(m_title)),
            2 * metrics::spaceL + symbolSide + metrics::spaceS + value.height() + metrics::spaceXS + title.height()};
}

QSize StatCard::sizeHint() const
{
    return minimumSizeHint();
}

void StatCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::cardRadius, tokens.surface, tokens.border);
    const QRect inner = rect().adjusted(metrics::spaceL, metrics::spaceL, -metrics::spaceL, -metrics::spaceL);
    m_icon.paint(&painter, QRect(inner.topLeft(), QSize(symbolSide, symbolSide)));

    painter.setFont(abissora::font(TextStyle::StatisticsValue));
    painter.setPen(tokens.text);
    const QRect figure(inner.left(), inner.top() + symbolSide + metrics::spaceS, inner.width(),
                       painter.fontMetrics().height());
    drawTabular(painter, inner.left(), figure, m_value);

    painter.setFont(abissora::font(TextStyle::Caption));
    painter.setPen(tokens.secondaryText);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(m_title, Qt::ElideRight, inner.width()));
}

} // namespace abissora
