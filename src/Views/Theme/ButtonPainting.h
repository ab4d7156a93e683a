// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyle;
class QWidget;

namespace abissora::buttons {

void drawPushButtonPanel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
void drawPushButtonLabel(const QStyleOptionButton& option, QPainter& painter, const QStyle& style,
                         const QWidget* widget);
[[nodiscard]] QSize pushButtonSize(const QStyleOptionButton& option, const QWidget* widget);

void drawToolButtonPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget);

} // namespace abissora::buttons
