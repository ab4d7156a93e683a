// SPDX-License-Identifier: MIT
#include "Assembly.h"

namespace abissora {

namespace {

template <typename Line>
Line* makeLine(int spacing, std::initializer_list<Item> items, QMargins margins)
{
    auto* line = new Line;
    line->setContentsMargins(margins);
    line->setSpacing(spacing);
    for (const Item& item : items)
        item.addTo(*line);
    return line;
}

} // namespace

Item::Item(QWidget* widget, int stretch, Qt::Alignment alignment)
    : m_add([=](QBoxLayout& line) { line.addWidget(widget, stretch, alignment); })
{}

Item::Item(QLayout* layout, int stretch)
    : m_add([=](QBoxLayout& line) { line.addLayout(layout, stretch); })
{}

Item::Item(Stretch stretch)
    : m_add([=](QBoxLayout& line) { line.addStretch(stretch.factor); })
{}

Item::Item(Gap gap)
    : m_add([=](QBoxLayout& line) { line.addSpacing(gap.size); })
{}

QHBoxLayout* inRow(int spacing, std::initializer_list<Item> items, QMargins margins)
{
    return makeLine<QHBoxLayout>(spacing, items, margins);
}

QVBoxLayout* inColumn(int spacing, std::initializer_list<Item> items, QMargins margins)
{
    return makeLine<QVBoxLayout>(spacing, items, margins);
}

} // namespace abissora
