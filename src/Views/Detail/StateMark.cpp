// SPDX-License-Identifier: MIT
#include "StateMark.h"

#include "Literals.h"
#include "Metrics.h"

#include <QPainter>
#include <QStyle>

namespace abissora {

namespace {

constexpr int dotSize = 8;

} // namespace

StateMark::StateMark(QWidget* parent)
    : InkLabel(TextStyle::Caption, &Tokens::secondaryText, {}, parent)
{
    constexpr int room = dotSize + metrics::spaceS - 2;
    setContentsMargins(isRightToLeft() ? 0 : room, 0, isRightToLeft() ? room : 0, 0);
    setActive(true);
}

void StateMark::setActive(bool active)
{
    m_isActive = active;
    setText(active ? u"Attivo"_s : u"Inattivo"_s);
    update();
}

void StateMark::paintEvent(QPaintEvent* event)
{
    InkLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Tokens::of(palette()).named(m_isActive ? NamedColor::green : NamedColor::gray));
    const QRect dot(0, (height() - dotSize) / 2, dotSize, dotSize);
    painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), dot));
}

} // namespace abissora
