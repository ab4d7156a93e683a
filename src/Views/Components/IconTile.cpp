// SPDX-License-Identifier: MIT
#include "IconTile.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>

namespace abissora {

namespace {

constexpr float tint = 0.15F;
constexpr qreal iconShare = 0.55;

} // namespace

IconTile::IconTile(int side, Shape shape, QWidget* parent)
    : QWidget(parent)
    , m_side(side)
    , m_shape(shape)
{
    setAccessibleRole(*this, QAccessible::Graphic, AccessibleParts::Hidden);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconTile::setIcon(const QIcon& icon, NamedColor color)
{
    m_icon = icon;
    m_color = color;
    update();
}

QSize IconTile::sizeHint() const
{
    return {m_side, m_side};
}

void IconTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor ground = Tokens::of(palette()).named(m_color);
    ground.setAlphaF(tint);
    drawPanel(painter, rect(), m_shape == Shape::Round ? m_side / 2.0 : metrics::controlRadius, ground, {});
    QRect place(0, 0, qRound(m_side * iconShare), qRound(m_side * iconShare));
    place.moveCenter(rect().center());
    m_icon.paint(&painter, place);
}

} // namespace abissora
