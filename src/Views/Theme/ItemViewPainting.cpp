// SPDX-License-Identifier: MIT
#include "ItemViewPainting.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace abissora::itemviews {

namespace {

constexpr int leastRowHeight = 28;

} // namespace

void drawItemPanel(const QStyleOptionViewItem& option, QPainter& painter)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool selected = option.state & QStyle::State_Selected;
    if (option.backgroundBrush.style() != Qt::NoBrush)
        painter.fillRect(option.rect, option.backgroundBrush);
    const bool hovered = (option.state & QStyle::State_MouseOver) && (option.state & QStyle::State_Enabled);
    if (!selected && !hovered)
        return;
    if (selectionLook(option.widget) == SelectionLook::Pill) {
        QColor veil = tokens.text;
        veil.setAlphaF(0.06F);
        drawPanel(painter, option.rect, metrics::controlRadius, selected ? tokens.accentFill : veil, {});
        return;
    }
    // Cells meet without a seam at fractional scales, whatever render hints a delegate has set.
    painter.fillRect(onDeviceGrid(painter, option.rect),
                     selected ? tokens.selection : mix(tokens.surface, tokens.text, 0.03));
}

void drawItemFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const bool pill = selectionLook(widget) == SelectionLook::Pill;
    if (pill && option.state & QStyle::State_Selected) {
        // The accent's ring would not show on the accent's fill.
        drawPanel(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), metrics::controlRadius - 2, {},
                  Tokens::of(option.palette).onFill, 1.5);
        return;
    }
    drawFocusRing(painter, option.rect, pill ? metrics::controlRadius : 4, option.palette);
}

QStyleOptionViewItem contentOf(const QStyleOptionViewItem& option)
{
    QStyleOptionViewItem content(option);
    content.backgroundBrush = Qt::NoBrush;
    content.state &= ~(QStyle::State_MouseOver | QStyle::State_Selected);
    return content;
}

QSize itemSize(const QStyleOptionViewItem& option, QSize contents)
{
    return contents.expandedTo({0, withText(leastRowHeight, option.fontMetrics)});
}

void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter)
{
    const Tokens& tokens = Tokens::of(option.palette);
    if (option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled)
        painter.fillRect(option.rect, mix(tokens.surface, tokens.text, 0.03));
    drawHorizontalHairline(painter, option.rect.left(), option.rect.right() + 1,
                           option.rect.bottom() + 1 - hairlineWidth(painter), tokens.border);
}

void drawHeaderLabel(const QStyleOptionHeader& option, QPainter& painter, const QStyle& style, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    QRect place = option.rect;
    if (option.sortIndicator != QStyleOptionHeader::None) {
        const QRect mark(place.right() - metrics::spaceM, place.top(), metrics::spaceM, place.height());
        drawGlyph(painter, QStyle::visualRect(option.direction, place, mark),
                  option.sortIndicator == QStyleOptionHeader::SortDown ? Glyph::ChevronDown : Glyph::ChevronUp,
                  enabled ? tokens.secondaryText : tokens.disabled, 7);
        place.setRight(mark.left() - 2);
    }
    QPalette ink = option.palette;
    ink.setColor(QPalette::ButtonText, enabled ? tokens.secondaryText : tokens.disabled);
    const Qt::Alignment alignment = QStyle::visualAlignment(option.direction, option.textAlignment);
    const QString text = option.fontMetrics.elidedText(option.text, Qt::ElideRight, place.width());
    Q_UNUSED(widget)
    style.drawItemText(&painter, QStyle::visualRect(option.direction, option.rect, place),
                       static_cast<int>((alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter), ink, enabled, text,
                       QPalette::ButtonText);
}

} // namespace abissora::itemviews
