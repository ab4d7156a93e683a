// SPDX-License-Identifier: MIT
#include "IconViews.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>
#include <QStyle>

namespace abissora {

namespace {

constexpr float tint = 0.15F;
constexpr qreal iconShare = 0.55;

} // namespace

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

IconTile::IconTile(int side, QWidget* parent)
    : QWidget(parent)
    , m_side(side)
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
    drawPanel(painter, rect(), m_side / 2.0, ground, {});
    QRect place(0, 0, qRound(m_side * iconShare), qRound(m_side * iconShare));
    place.moveCenter(rect().center());
    m_icon.paint(&painter, place);
}

IconLabel::IconLabel(const QIcon& icon, const QString& text, QWidget* parent)
    : QLabel(text, parent)
    , m_icon(icon)
{
    setTextFormat(Qt::PlainText);
    makeRoom();
}

void IconLabel::setIcon(const QIcon& icon)
{
    m_icon = icon;
    makeRoom();
    update();
}

void IconLabel::makeRoom()
{
    const int room = m_icon.isNull() ? 0 : metrics::iconSize + metrics::spaceXS + 2;
    if (isRightToLeft())
        setContentsMargins(0, 0, room, 0);
    else
        setContentsMargins(room, 0, 0, 0);
    setMinimumHeight(m_icon.isNull() ? 0 : metrics::iconSize);
}

void IconLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (m_icon.isNull())
        return;
    QPainter painter(this);
    const QRect place(0, (height() - metrics::iconSize) / 2, metrics::iconSize, metrics::iconSize);
    m_icon.paint(&painter, QStyle::visualRect(layoutDirection(), rect(), place), Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace abissora
