// SPDX-License-Identifier: MIT
#pragma once

#include <QBoxLayout>
#include <functional>
#include <initializer_list>

// What screens are put together with, so that the code reads as the screen looks.
namespace abissora {

/// The widget under its object name.
template <typename Widget>
Widget* named(Widget* widget, QAnyStringView objectName)
{
    widget->setObjectName(objectName);
    return widget;
}

/// Room that grows, as much as the others of its line let it.
struct Stretch
{
    int factor = 0;
};

/// A fixed distance besides the spacing, in pixels.
struct Gap
{
    int size;
};

/// What stands in a line: a widget or a layout, alone or as `{widget, stretch, alignment}`, or room.
class Item
{
public:
    Item(QWidget* widget, int stretch = 0, Qt::Alignment alignment = {});
    Item(QLayout* layout, int stretch = 0);
    Item(Stretch stretch);
    Item(Gap gap);

    void addTo(QBoxLayout& line) const { m_add(line); }

private:
    std::function<void(QBoxLayout&)> m_add;
};

/// Side by side.
[[nodiscard]] QHBoxLayout* inRow(int spacing, std::initializer_list<Item> items, QMargins margins = {});
/// Below one another.
[[nodiscard]] QVBoxLayout* inColumn(int spacing, std::initializer_list<Item> items, QMargins margins = {});

} // namespace abissora
