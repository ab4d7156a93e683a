// SPDX-License-Identifier: MIT
#include "IconLabel.h"

#include "Metrics.h"

#include <QPainter>
#include <QStyle>

namespace abissora {

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
