// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionViewItem;
class QWidget;

namespace abissora::itemviews {

/// The background of an item: selected, under the pointer, or nothing.
void drawItemPanel(const QStyleOptionViewItem& option, QPainter& painter);
void drawItemFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget);
/// The option with its text colours set for the look of the view's selection.
[[nodiscard]] QStyleOptionViewItem withInk(const QStyleOptionViewItem& option);

void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter);
void drawHeaderLabel(const QStyleOptionHeader& option, QPainter& painter, const QStyle& style, const QWidget* widget);

} // namespace abissora::itemviews
