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
/// What is left to draw on the panel of a Row, where text and icon look the same selected or not.
[[nodiscard]] QStyleOptionViewItem contentOf(const QStyleOptionViewItem& option);
/// At least as high as a person can hit.
[[nodiscard]] QSize itemSize(const QStyleOptionViewItem& option, QSize contents);

void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter);
void drawHeaderLabel(const QStyleOptionHeader& option, QPainter& painter, const QStyle& style, const QWidget* widget);

} // namespace abissora::itemviews
