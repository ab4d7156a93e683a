// SPDX-License-Identifier: MIT
#include "ControlPainting.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QHeaderView>
#include <QPainter>

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

/// A text that is too wide, in two lines where there is room for them.
QString headerText(const QString& text, const QFontMetrics& metrics, QSize room)
{
    const auto elided = [&](const QString& line) { return metrics.elidedText(line, Qt::ElideRight, room.width()); };
    const qsizetype space = text.indexOf(u' ');
    const bool twoLines = QFontMetricsF(metrics).horizontalAdvance(text) > room.width() && space > 0 &&
                          metrics.height() + metrics.lineSpacing() <= room.height();
    return twoLines ? QString(elided(text.left(space)) + u'\n' + elided(text.mid(space + 1))) : elided(text);
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
    QRect place = option.rect.adjusted(0, 0, 2, 0);
    if (const auto* header = qobject_cast<const QHeaderView*>(widget);
        header != nullptr && header->orientation() == Qt::Horizontal)
        place = QRect(place.left(), 0, place.width(), header->height()); // two lines want all of the height
    if (option.position == QStyleOptionHeader::Beginning || option.position == QStyleOptionHeader::OnlyOneSection)
        place.setLeft(place.left() + 2); // further from the frame
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
    style.drawItemText(&painter, QStyle::visualRect(option.direction, option.rect, place),
                       static_cast<int>((alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter), ink, enabled,
                       headerText(option.text, option.fontMetrics, place.size()), QPalette::ButtonText);
}

} // namespace abissora::itemviews
