// SPDX-License-Identifier: MIT
#pragma once

#include <QStyle>
#include <QStyleOption>

// How the style draws each kind of control.

namespace abissora::buttons {

void drawPushButtonPanel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
void drawPushButtonLabel(const QStyleOptionButton& option, QPainter& painter, const QStyle& style,
                         const QWidget* widget);
[[nodiscard]] QSize pushButtonSize(const QStyleOptionButton& option, const QWidget* widget);

void drawToolButtonPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget);

/// The side of what a check box is drawn in, its focus ring included.
inline constexpr int checkBoxExtent = 24;
void drawCheckBox(const QStyleOption& option, QPainter& painter);

} // namespace abissora::buttons

/// Line edits, text edits, combo boxes, spin boxes.
namespace abissora::fields {

/// Fields of several lines are framed like those of one.
[[nodiscard]] bool isTextEdit(const QWidget* widget);
void drawFieldPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget);

void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget);
void drawComboBoxLabel(const QStyleOptionComboBox& option, QPainter& painter, const QStyle& style);
/// A null rectangle for parts that these controls do not have.
[[nodiscard]] QRect comboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part);
[[nodiscard]] QSize comboBoxSize(const QStyleOptionComboBox& option, QSize contents);

/// With plus and minus symbols the two buttons stand side by side, else one above the other.
void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget);
[[nodiscard]] QRect spinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part);
[[nodiscard]] QSize spinBoxSize(const QStyleOptionSpinBox& option, QSize contents);

} // namespace abissora::fields

/// Scroll bars and progress bars.
namespace abissora::bars {

inline constexpr int extent = 12;
inline constexpr int shortestThumb = 32;

void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter);
[[nodiscard]] QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

void drawProgressBar(const QStyleOptionProgressBar& option, QPainter& painter, const QWidget* widget);

} // namespace abissora::bars

namespace abissora::itemviews {

/// The background of an item: selected, under the pointer, or nothing.
void drawItemPanel(const QStyleOptionViewItem& option, QPainter& painter);
void drawItemFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget);
/// What is left to draw on the panel of a Row, where text and icon look the same selected or not.
[[nodiscard]] QStyleOptionViewItem contentOf(const QStyleOptionViewItem& option);
/// At least as high as a person can hit.
[[nodiscard]] QSize itemSize(const QStyleOptionViewItem& option, QSize contents);

void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter);
void drawHeaderLabel(const QStyleOptionHeader& option, QPainter& painter, const QStyle& style, const QWidget* widget);

} // namespace abissora::itemviews

/// Menus, menu bars, tool tips.
namespace abissora::menus {

inline constexpr int margin = 5;

void drawMenuPanel(const QStyleOption& option, QPainter& painter);
void drawMenuItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style, const QWidget* widget);
[[nodiscard]] QSize menuItemSize(const QStyleOptionMenuItem& option, QSize contents);

void drawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style, const QWidget* widget);
void drawToolTipPanel(const QStyleOption& option, QPainter& painter);

} // namespace abissora::menus
