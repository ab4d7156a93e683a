// SPDX-License-Identifier: MIT
#include "ControlPainting.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QMenu>
#include <QPainter>

namespace abissora::menus {

namespace {

constexpr int rowHeight = 28;
constexpr int rowPadding = metrics::spaceS;
constexpr int checkColumn = 20;
constexpr int shortcutGap = metrics::spaceXL;
constexpr int arrowColumn = 16;

int iconColumn(const QStyleOptionMenuItem& option)
{
    return option.maxIconWidth > 0 ? metrics::iconSize + metrics::spaceS : 0;
}

/// Where entries have pictures, what is chosen is marked at its picture, or in its place.
int markColumn(const QStyleOptionMenuItem& option)
{
    return option.menuHasCheckableItems && option.maxIconWidth == 0 ? checkColumn : 0;
}

int leadingWidth(const QStyleOptionMenuItem& option)
{
    return rowPadding + markColumn(option) + iconColumn(option);
}

bool isDestructive(const QStyleOptionMenuItem& option, const QWidget* widget)
{
    const auto* const menu = qobject_cast<const QMenu*>(widget);
    return menu != nullptr && hasDestructiveLook(menu->actionAt(option.rect.center()));
}

void drawMark(const QStyleOptionMenuItem& option, QPainter& painter, const QRect& place, const QColor& ink)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool usual = ink == tokens.text;
    if (option.icon.isNull())
        drawGlyph(painter, place, Glyph::Check, ink, 10);
    else
        drawPanel(painter, place.adjusted(-3, -3, 3, 3), metrics::controlRadius - 2,
                  usual ? tokens.accentTint : QColor(), usual ? tokens.accentInk : ink);
}

int mnemonicFlag(const QStyle& style, const QStyleOption& option, const QWidget* widget)
{
    return style.styleHint(QStyle::SH_UnderlineShortcut, &option, widget) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
}

void drawSeparator(const QStyleOptionMenuItem& option, QPainter& painter)
{
    drawHorizontalHairline(painter, option.rect.left() + rowPadding, option.rect.right() + 1 - rowPadding,
                           option.rect.center().y(), Tokens::of(option.palette).border);
}

} // namespace

void drawMenuPanel(const QStyleOption& option, QPainter& painter)
{
    const Tokens& tokens = Tokens::of(option.palette);
    drawPanel(painter, option.rect, metrics::controlRadius, tokens.surface, tokens.border);
}

void drawMenuItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style, const QWidget* widget)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator && option.text.isEmpty()) {
        drawSeparator(option, painter);
        return;
    }
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool current = enabled && (option.state & QStyle::State_Selected);
    if (current)
        drawPanel(painter, option.rect, metrics::controlRadius - 2, tokens.accentFill, {});
    const QColor usual = isDestructive(option, widget) ? tokens.danger : tokens.text;
    const QColor ink = !enabled ? tokens.disabled : current ? tokens.onFill : usual;
    const QRect row = option.rect.adjusted(rowPadding, 0, -rowPadding, 0);
    const auto mirrored = [&](const QRect& place) { return QStyle::visualRect(option.direction, option.rect, place); };

    int left = row.left();
    const QRect place(left, row.center().y() - metrics::iconSize / 2 + 1, metrics::iconSize, metrics::iconSize);
    if (option.checked)
        drawMark(option, painter, mirrored(place), ink);
    left += markColumn(option);
    if (!option.icon.isNull()) {
        const QIcon::Mode mode = !enabled ? QIcon::Disabled : current ? QIcon::Selected : QIcon::Normal;
        option.icon.paint(&painter, mirrored(place.translated(left - place.left(), 0)), Qt::AlignCenter, mode);
    }
    left += iconColumn(option);

    painter.save();
    painter.setPen(ink);
    painter.setFont(option.font);
    const int flags = Qt::AlignVCenter | Qt::TextSingleLine | mnemonicFlag(style, option, widget);
    const qsizetype tab = option.text.indexOf(u'\t');
    const QRect text(left, row.top(), row.right() + 1 - left, row.height());
    painter.drawText(mirrored(text), flags | Qt::AlignLeft, option.text.left(tab));
    if (tab >= 0) {
        if (!current && enabled)
            painter.setPen(tokens.secondaryText);
        painter.drawText(mirrored(text), flags | Qt::AlignRight, option.text.mid(tab + 1));
    }
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRect arrow(row.right() + 1 - arrowColumn, row.top(), arrowColumn, row.height());
        drawGlyph(painter, mirrored(arrow),
                  option.direction == Qt::RightToLeft ? Glyph::ChevronLeft : Glyph::ChevronRight, ink, 8);
    }
    painter.restore();
}

QSize menuItemSize(const QStyleOptionMenuItem& option, QSize contents)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator && option.text.isEmpty())
        return {contents.width(), 9};
    int width = leadingWidth(option) + option.fontMetrics.horizontalAdvance(option.text.section(u'\t', 0, 0)) +
                rowPadding + metrics::spaceS;
    if (option.text.contains(u'\t'))
        width += shortcutGap;
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu)
        width += arrowColumn;
    return {width, std::max(rowHeight, option.fontMetrics.height() + metrics::spaceM)};
}

void drawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    painter.fillRect(option.rect, tokens.window);
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool current = enabled && (option.state & (QStyle::State_Selected | QStyle::State_Sunken));
    if (current)
        drawPanel(painter, option.rect.adjusted(1, 1, -1, -1), metrics::controlRadius - 2, tokens.accentFill, {});
    painter.save();
    painter.setPen(!enabled ? tokens.disabled : current ? tokens.onFill : tokens.text);
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine | mnemonicFlag(style, option, widget),
                     option.text);
    painter.restore();
}

void drawToolTipPanel(const QStyleOption& option, QPainter& painter)
{
    const Tokens& tokens = Tokens::of(option.palette);
    painter.fillRect(option.rect, tokens.surface);
    drawPanel(painter, option.rect, 0, tokens.surface, tokens.strongBorder);
}

} // namespace abissora::menus
