// SPDX-License-Identifier: MIT
#include "StickyColumn.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace abissora {

StickyColumn::StickyColumn(QWidget* content, QScrollArea& area, int width)
    : m_content(content)
    , m_area(area)
    , m_width(width)
{
    content->setParent(this);
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(area.verticalScrollBar(), &QScrollBar::valueChanged, this, &StickyColumn::place);
}

QSize StickyColumn::sizeHint() const
{
    return {m_width, heightForWidth(m_width)};
}

int StickyColumn::heightForWidth(int width) const
{
    return m_content->hasHeightForWidth() ? m_content->heightForWidth(width) : m_content->sizeHint().height();
}

bool StickyColumn::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        place();
    }
    return QWidget::event(event);
}

void StickyColumn::resizeEvent(QResizeEvent*)
{
    place();
}

void StickyColumn::moveEvent(QMoveEvent*)
{
    place();
}

void StickyColumn::place()
{
    const int tall = heightForWidth(width());
    const int passed = m_area.verticalScrollBar()->value();
    m_content->setGeometry(0, std::clamp(passed, 0, std::max(0, height() - tall)), width(), tall);
}

} // namespace abissora
