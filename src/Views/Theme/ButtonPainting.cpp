// SPDX-License-Identifier: MIT
#include "ControlPainting.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <QPushButton>

namespace abissora::buttons {

namespace {

constexpr int iconGap = metrics::spaceS;
constexpr int arrowWidth = 16;

ButtonLook lookOf(const QStyleOptionButton& option, const QWidget* widget)
{
    // Dialogs of the toolkit know no looks, but they know a default button.
    const bool isDefault = option.features & QStyleOptionButton::DefaultButton;
    const bool isFlat = option.features & QStyleOptionButton::Flat;
    return buttonLook(widget, isDefault ? ButtonLook::Primary : isFlat ? ButtonLook::Borderless : ButtonLook::Plain);
}

QColor inkOf(const QStyleOptionButton& option, ButtonLook look)
{
    const Tokens& tokens = Tokens::of(option.palette);
    if (!(option.state & QStyle::State_Enabled))
        return tokens.disabled;
    switch (look) {
    case ButtonLook::Primary:
        return tokens.onFill;
    case ButtonLook::Destructive:
    case ButtonLook::DestructiveLink:
        return tokens.danger;
    case ButtonLook::Caution:
        return tokens.warning;
    case ButtonLook::Positive:
        return tokens.ok;
    case ButtonLook::Link:
        return tokens.accentInk;
    case ButtonLook::Plain:
    case ButtonLook::Borderless:
        break;
    }
    return tokens.text;
}

bool isLink(ButtonLook look)
{
    return look == ButtonLook::Link || look == ButtonLook::DestructiveLink;
}

int paddingOf(ButtonLook look)
{
    return isLink(look) ? metrics::spaceXS : metrics::controlPadding;
}

QFont fontOf(const QWidget* widget)
{
    QFont font = widget != nullptr ? widget->font() : QFont();
    font.setWeight(QFont::Medium);
    return font;
}

int contentWidth(const QStyleOptionButton& option, const QFontMetrics& metrics)
{
    int width = option.text.isEmpty() ? 0 : metrics.size(Qt::TextShowMnemonic, option.text).width();
    if (!option.icon.isNull())
        width += option.iconSize.width() + (option.text.isEmpty() ? 0 : iconGap);
    if (option.features & QStyleOptionButton::HasMenu)
        width += arrowWidth;
    return width;
}

void drawFilledPanel(const QStyleOptionButton& option, QPainter& painter)
{
    const Tokens& tokens = Tokens::of(option.palette);
    QRectF rect = option.rect;
    QColor fill = tokens.accentFill;
    if (!(option.state & QStyle::State_Enabled))
        fill = tokens.border;
    else if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        fill = fill.darker(125);
    else if (option.state & QStyle::State_MouseOver)
        fill = fill.darker(110);
    qreal radius = metrics::controlRadius;
    if (showsFocusRing(option)) {
        drawFocusRing(painter, rect, radius, option.palette);
        constexpr qreal gap = metrics::focusRingWidth + 1.5;
        rect.adjust(gap, gap, -gap, -gap);
        radius -= gap;
    }
    drawPanel(painter, rect, radius, fill, {});
}

} // namespace

void drawPushButtonPanel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const ButtonLook look = lookOf(option, widget);
    const bool enabled = option.state & QStyle::State_Enabled;
    if (look == ButtonLook::Primary) {
        drawFilledPanel(option, painter);
        return;
    }
    if (look == ButtonLook::Borderless || isLink(look)) {
        if (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_On))
            drawPanel(painter, option.rect, metrics::controlRadius, touched(tokens.surface, option), {});
    } else {
        drawPanel(painter, option.rect, metrics::controlRadius,
                  enabled ? touched(tokens.surface, option) : tokens.window,
                  enabled ? tokens.strongBorder : tokens.border);
    }
    if (showsFocusRing(option))
        drawFocusRing(painter, option.rect, metrics::controlRadius, option.palette);
}

void drawPushButtonLabel(const QStyleOptionButton& option, QPainter& painter, const QStyle& style,
                         const QWidget* widget)
{
    const ButtonLook look = lookOf(option, widget);
    const bool enabled = option.state & QStyle::State_Enabled;
    painter.save();
    painter.setFont(fontOf(widget));
    const QFontMetrics metrics(painter.font());

    const int width = std::min(contentWidth(option, metrics), option.rect.width());
    QRect content(option.rect.center().x() - width / 2, option.rect.top(), width, option.rect.height());
    if (option.features & QStyleOptionButton::HasMenu) {
        const QRect arrow(content.right() - arrowWidth + 1, content.top(), arrowWidth, content.height());
        drawGlyph(painter, QStyle::visualRect(option.direction, content, arrow), Glyph::ChevronDown,
                  inkOf(option, look), 8);
        content.setRight(arrow.left() - 1);
    }
    if (!option.icon.isNull()) {
        const QRect place(content.left(), content.center().y() - option.iconSize.height() / 2 + 1,
                          option.iconSize.width(), option.iconSize.height());
        option.icon.paint(&painter, QStyle::visualRect(option.direction, content, place), Qt::AlignCenter,
                          enabled ? QIcon::Normal : QIcon::Disabled);
        content.setLeft(place.right() + 1 + iconGap);
    }
    painter.setPen(inkOf(option, look));
    int flags = Qt::AlignVCenter | Qt::AlignLeft;
    flags |=
        style.styleHint(QStyle::SH_UnderlineShortcut, &option, widget) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter.drawText(content, flags, metrics.elidedText(option.text, Qt::ElideRight, content.width(), flags));
    painter.restore();
}

QSize pushButtonSize(const QStyleOptionButton& option, const QWidget* widget)
{
    const QFontMetrics metrics(fontOf(widget));
    const ButtonLook look = lookOf(option, widget);
    const int width = contentWidth(option, metrics) + 2 * paddingOf(look);
    const int height = isLink(look) ? metrics.height() + metrics::spaceS : controlHeight(metrics);
    return {std::max(width, height), height};
}

void drawToolButtonPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    if (buttonLook(widget, ButtonLook::Borderless) == ButtonLook::Plain && enabled && option.state & QStyle::State_On) {
        drawPanel(painter, option.rect, metrics::controlRadius, touched(tokens.accentTint, option), tokens.accentInk);
    } else if (buttonLook(widget, ButtonLook::Borderless) == ButtonLook::Plain) {
        drawPanel(painter, option.rect, metrics::controlRadius,
                  enabled ? touched(tokens.surface, option) : tokens.window,
                  enabled ? tokens.strongBorder : tokens.border);
    } else if (enabled && option.state & (QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_On)) {
        QColor veil = tokens.text;
        veil.setAlphaF(option.state & (QStyle::State_Sunken | QStyle::State_On) ? 0.16F : 0.08F);
        drawPanel(painter, option.rect, metrics::controlRadius, veil, {});
    }
}

void drawCheckBox(const QStyleOption& option, QPainter& painter)
{
    constexpr int room = 3; // for the ring
    constexpr int radius = 4;
    const Tokens& tokens = Tokens::of(option.palette);
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const bool isChecked = option.state & QStyle::State_On;
    const QRect box = option.rect.adjusted(room, room, -room, -room);
    if (!isEnabled)
        drawPanel(painter, box, radius, mix(tokens.window, tokens.border, 0.4), tokens.border);
    else if (isChecked)
        drawPanel(painter, box, radius, tokens.accentFill, {});
    else
        drawPanel(painter, box, radius, touched(tokens.surface, option), tokens.strongBorder);
    if (isChecked)
        drawGlyph(painter, box, Glyph::Check, isEnabled ? tokens.onFill : tokens.disabled, 12);
}

} // namespace abissora::buttons
