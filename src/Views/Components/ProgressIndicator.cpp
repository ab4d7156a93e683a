// SPDX-License-Identifier: MIT
#include "ProgressIndicator.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Tokens.h"

#include <QPainter>
#include <QStyle>
#include <QTimerEvent>

namespace abissora {

namespace {

constexpr int spokes = 8;
constexpr int interval = 100; // milliseconds

} // namespace

ProgressIndicator::ProgressIndicator(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Animation, AccessibleParts::Hidden);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ProgressIndicator::sizeHint() const
{
    return {metrics::iconSize, metrics::iconSize};
}

void ProgressIndicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal radius = std::min(width(), height()) / 2.0 - 1;
    painter.translate(width() / 2.0, height() / 2.0);
    QColor ink = Tokens::of(palette()).secondaryText;
    for (int spoke = 0; spoke < spokes; ++spoke) {
        const int age = (m_phase - spoke + spokes) % spokes;
        ink.setAlphaF(1.0F - 0.8F * static_cast<float>(age) / spokes);
        painter.setPen(QPen(ink, 1.75, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -radius), QPointF(0, -radius * 0.5));
        painter.rotate(360.0 / spokes);
    }
}

void ProgressIndicator::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_phase = (m_phase + 1) % spokes;
    update();
}

void ProgressIndicator::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0)
        m_timer.start(interval, this);
}

void ProgressIndicator::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}

} // namespace abissora
