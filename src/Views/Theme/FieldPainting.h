// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionComplex;
class QStyleOptionSpinBox;
class QWidget;

/// Line edits, text edits, combo boxes, date fields, spin boxes.
namespace abissora::fields {

void drawFieldPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget);

void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget);
void drawComboBoxLabel(const QStyleOptionComboBox& option, QPainter& painter, const QStyle& style,
                       const QWidget* widget);
/// A null rectangle for parts that these controls do not have.
[[nodiscard]] QRect comboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part);
[[nodiscard]] QSize comboBoxSize(const QStyleOptionComboBox& option, QSize contents);

/// With plus and minus symbols the two buttons stand side by side, else one above the other.
void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget);
[[nodiscard]] QRect spinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part);
[[nodiscard]] QSize spinBoxSize(const QStyleOptionSpinBox& option, QSize contents);

} // namespace abissora::fields
