// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionMenuItem;
class QWidget;

/// Menus, menu bars, tool tips.
namespace abissora::menus {

inline constexpr int margin = 5;

void drawMenuPanel(const QStyleOption& option, QPainter& painter);
void drawMenuItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style, const QWidget* widget);
[[nodiscard]] QSize menuItemSize(const QStyleOptionMenuItem& option, QSize contents);

void drawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter, const QStyle& style, const QWidget* widget);
void drawToolTipPanel(const QStyleOption& option, QPainter& painter);

} // namespace abissora::menus
