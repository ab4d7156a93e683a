// SPDX-License-Identifier: MIT
#pragma once

#include "Picture.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace abissora::test {

/// An option for something that large, in the palette of the scheme.
template <typename Option>
Option optionFor(QSize size, QStyle::State state)
{
    Option option;
    option.palette = QApplication::palette();
    option.fontMetrics = QFontMetrics(QApplication::font());
    option.rect = QRect(QPoint(), size);
    option.state = state;
    return option;
}

/// Draws what the application's style draws, as large as the option says.
class StylePictureTest : public PictureTest
{
protected:
    static Picture control(QStyle::ControlElement element, const QStyleOption& option, const QColor& ground,
                           const QWidget* widget = nullptr)
    {
        return drawn(option.rect.size(), ground, [&](QPainter& painter) {
            QApplication::style()->drawControl(element, &option, &painter, widget);
        });
    }

    static Picture primitive(QStyle::PrimitiveElement element, const QStyleOption& option, const QColor& ground,
                             const QWidget* widget = nullptr)
    {
        return drawn(option.rect.size(), ground, [&](QPainter& painter) {
            QApplication::style()->drawPrimitive(element, &option, &painter, widget);
        });
    }
};

} // namespace abissora::test
