// SPDX-License-Identifier: MIT
#include "IconView.h"

#include "Accessibility.h"

#include <QPainter>

namespace abissora {

IconView::IconView(const QIcon& icon, int side, QWidget* parent)
    : QWidget(parent)
    , m_icon(icon)
    , m_side(side)
{
    setAccessibleRole(*this, QAccessible::Graphic, AccessibleParts::Hidden);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconView::setIcon(const QIcon& icon)
{
    m_icon = icon;
    update();
}

QSize IconView::sizeHint() const
{
    return {m_side, m_side};
}

void IconView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace abissora
