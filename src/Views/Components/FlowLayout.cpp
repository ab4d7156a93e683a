// SPDX-License-Identifier: MIT
#include "FlowLayout.h"

#include <QStyle>
#include <QWidget>

namespace abissora {

FlowLayout::FlowLayout(int horizontalGap, int verticalGap)
    : m_horizontalGap(horizontalGap)
    , m_verticalGap(verticalGap)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const QLayoutItem* item : m_items) {
        if (!item->isEmpty())
            size = QSize(size.width() + item->sizeHint().width() + m_horizontalGap,
                         std::max(size.height(), item->sizeHint().height()));
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int FlowLayout::arrange(const QRect& rect, bool move) const
{
    const Qt::LayoutDirection direction =
        parentWidget() != nullptr ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int x = rect.left();
    int y = rect.top();
    int lineHeight = 0;
    for (QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        QSize size = item->sizeHint();
        if (size.width() > rect.width()) {
            size.setWidth(rect.width());
            if (item->hasHeightForWidth())
                size.setHeight(item->heightForWidth(size.width()));
        }
        if (x > rect.left() && x + size.width() > rect.right() + 1) {
            x = rect.left();
            y += lineHeight + m_verticalGap;
            lineHeight = 0;
        }
        if (move)
            item->setGeometry(QStyle::visualRect(direction, rect, QRect(QPoint(x, y), size)));
        x += size.width() + m_horizontalGap;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rect.top();
}

} // namespace abissora
