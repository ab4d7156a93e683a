// SPDX-License-Identifier: MIT
#include "ControlPainting.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace abissora::fields {

namespace {

constexpr int comboArrowWidth = 30;
constexpr int sideButtonWidth = 27;
constexpr int stackedButtonWidth = 24;

bool sideBySide(const QStyleOptionSpinBox& option)
{
    return option.buttonSymbols == QAbstractSpinBox::PlusMinus;
}

int buttonsWidth(const QStyleOptionSpinBox& option)
{
    return sideBySide(option) ? 2 * sideButtonWidth : stackedButtonWidth;
}

void drawSpinButton(const QStyleOptionSpinBox& option, QPainter& painter, QStyle::SubControl part, Glyph glyph)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const QRect place = spinBoxPart(option, part);
    const auto step =
        part == QStyle::SC_SpinBoxUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled;
    const bool enabled = (option.state & QStyle::State_Enabled) && (option.stepEnabled & step);
    if (enabled && (option.activeSubControls & part) &&
        (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken))) {
        QColor veil = tokens.text;
        veil.setAlphaF(option.state & QStyle::State_Sunken ? 0.16F : 0.08F);
        drawPanel(painter, place.adjusted(2, 2, -2, -2), metrics::controlRadius - 3, veil, {});
    }
    drawGlyph(painter, place, glyph, enabled ? tokens.secondaryText : tokens.disabled, sideBySide(option) ? 9 : 7);
}

} // namespace

bool isTextEdit(const QWidget* widget)
{
    return qobject_cast<const QTextEdit*>(widget) != nullptr || qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
}

void drawFieldPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool focused = option.state & QStyle::State_HasFocus;
    const bool invalid = enabled && hasInvalidLook(widget);
    const QColor border = invalid ? tokens.danger : tokens.strongBorder;
    drawPanel(painter, option.rect, metrics::controlRadius, enabled ? tokens.field : tokens.window,
              enabled ? border : tokens.border);
    if (focused && invalid)
        drawPanel(painter, option.rect, metrics::controlRadius, {}, tokens.danger, metrics::focusRingWidth);
    else if (focused)
        drawFocusRing(painter, option.rect, metrics::controlRadius, option.palette);
}

void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    drawFieldPanel(option, painter, widget);
    const QRect arrow = comboBoxPart(option, QStyle::SC_ComboBoxArrow);
    drawGlyph(painter, arrow, Glyph::ChevronUpDown, enabled ? tokens.text : tokens.disabled, 10);
}

void drawComboBoxLabel(const QStyleOptionComboBox& option, QPainter& painter, const QStyle& style)
{
    if (option.editable)
        return;
    const bool enabled = option.state & QStyle::State_Enabled;
    QRect place = comboBoxPart(option, QStyle::SC_ComboBoxEditField).adjusted(2, 0, 0, 0);
    if (!option.currentIcon.isNull()) {
        const QSize size = option.iconSize;
        const QRect icon(place.left(), place.center().y() - size.height() / 2 + 1, size.width(), size.height());
        option.currentIcon.paint(&painter, QStyle::visualRect(option.direction, option.rect, icon), Qt::AlignCenter,
                                 enabled ? QIcon::Normal : QIcon::Disabled);
        place.setLeft(icon.right() + 1 + metrics::spaceS);
    }
    const QString text = option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, place.width());
    style.drawItemText(&painter, QStyle::visualRect(option.direction, option.rect, place),
                       Qt::AlignVCenter | Qt::AlignLeft, option.palette, enabled, text);
}

QRect comboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part)
{
    const QRect& all = option.rect;
    QRect place;
    switch (part) {
    case QStyle::SC_ComboBoxFrame:
    case QStyle::SC_ComboBoxListBoxPopup:
        return all;
    case QStyle::SC_ComboBoxArrow:
        place = QRect(all.right() + 1 - comboArrowWidth, all.top(), comboArrowWidth, all.height());
        break;
    case QStyle::SC_ComboBoxEditField:
        place = all.adjusted(metrics::fieldPadding, 1, -comboArrowWidth, -1);
        break;
    default:
        return {};
    }
    return QStyle::visualRect(option.direction, all, place);
}

QSize comboBoxSize(const QStyleOptionComboBox& option, QSize contents)
{
    const int iconGap = option.currentIcon.isNull() ? 0 : metrics::spaceS;
    return {contents.width() + metrics::fieldPadding + comboArrowWidth + iconGap + metrics::spaceS,
            controlHeight(option.fontMetrics)};
}

void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget)
{
    drawFieldPanel(option, painter, widget);
    const bool side = sideBySide(option);
    if (side) {
        const QRect minus = spinBoxPart(option, QStyle::SC_SpinBoxDown);
        const QRect plus = spinBoxPart(option, QStyle::SC_SpinBoxUp);
        const int edge = std::min(minus.left(), plus.left());
        drawVerticalHairline(painter, option.rect.top() + 6, option.rect.bottom() - 5, edge,
                             Tokens::of(option.palette).border);
    }
    drawSpinButton(option, painter, QStyle::SC_SpinBoxUp, side ? Glyph::Plus : Glyph::ChevronUp);
    drawSpinButton(option, painter, QStyle::SC_SpinBoxDown, side ? Glyph::Minus : Glyph::ChevronDown);
}

QRect spinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part)
{
    const QRect& all = option.rect;
    const int buttons = buttonsWidth(option);
    const QRect strip(all.right() + 1 - buttons, all.top() + 1, buttons, all.height() - 2);
    QRect place;
    switch (part) {
    case QStyle::SC_SpinBoxFrame:
        return all;
    case QStyle::SC_SpinBoxEditField:
        place = all.adjusted(metrics::fieldPadding, 1, -buttons, -1);
        break;
    case QStyle::SC_SpinBoxUp:
        place = sideBySide(option) ? strip.adjusted(sideButtonWidth, 0, 0, 0)
                                   : strip.adjusted(0, 0, 0, -strip.height() / 2);
        break;
    case QStyle::SC_SpinBoxDown:
        place = sideBySide(option) ? strip.adjusted(0, 0, -sideButtonWidth, 0)
                                   : strip.adjusted(0, strip.height() - strip.height() / 2, 0, 0);
        break;
    default:
        return {};
    }
    return QStyle::visualRect(option.direction, all, place);
}

QSize spinBoxSize(const QStyleOptionSpinBox& option, QSize contents)
{
    return {contents.width() + metrics::fieldPadding + metrics::spaceXS + buttonsWidth(option),
            controlHeight(option.fontMetrics)};
}

} // namespace abissora::fields
