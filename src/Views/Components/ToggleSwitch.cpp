// SPDX-License-Identifier: MIT
#include "ToggleSwitch.h"

#include "AccessKeys.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace abissora {

namespace {

constexpr QSize trackSize(36, 20);

/// `position` runs from 0 (off) to 1 (on).
void drawSwitch(const QStyleOption& option, QPainter& painter, const QRectF& rect, double position)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    QRectF track = rect;
    if (showsFocusRing(option)) {
        // The ring takes its room from the track, so that a switch stays in line with what stands above it.
        drawFocusRing(painter, rect, rect.height() / 2, option.palette);
        constexpr qreal gap = metrics::focusRingWidth + 1;
        track.adjust(gap, gap, -gap, -gap);
    }
    drawPanel(painter, track, track.height() / 2,
              enabled ? mix(tokens.strongBorder, tokens.accentFill, position) : tokens.border, {});

    const qreal side = track.height() - 4;
    const qreal along = option.direction == Qt::RightToLeft ? 1 - position : position;
    const qreal left = track.left() + 2 + (track.width() - side - 4) * along;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled ? tokens.onFill : tokens.surface);
    painter.drawEllipse(QRectF(left, track.top() + 2, side, side));
    painter.restore();
}

} // namespace

ToggleSwitch::ToggleSwitch(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
{
    setSizePolicy(text.isEmpty() ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::toggled, this, &ToggleSwitch::slide);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void ToggleSwitch::slide(bool on)
{
    m_slide.stop();
    m_slide.setStartValue(on ? 0.0 : 1.0);
    m_slide.setEndValue(on ? 1.0 : 0.0);
    m_slide.setDuration(isVisible() ? style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) : 0);
    if (m_slide.duration() > 0)
        m_slide.start();
}

QSize ToggleSwitch::sizeHint() const
{
    const int textWidth =
        text().isEmpty() ? 0 : fontMetrics().size(Qt::TextShowMnemonic, text()).width() + metrics::spaceM;
    return {textWidth + trackSize.width(), std::max(trackSize.height(), fontMetrics().height() + metrics::spaceXS)};
}

QSize ToggleSwitch::minimumSizeHint() const
{
    return sizeHint();
}

void ToggleSwitch::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect trackRect =
        QStyle::visualRect(layoutDirection(), rect(),
                           QRect(QPoint(width() - trackSize.width(), (height() - trackSize.height()) / 2), trackSize));
    const bool sliding = m_slide.state() == QAbstractAnimation::Running;
    const double position = sliding ? m_slide.currentValue().toDouble() : isChecked() ? 1.0 : 0.0;
    drawSwitch(option, painter, trackRect, position);
    if (text().isEmpty())
        return;
    QRect textRect = rect();
    textRect.setRight(width() - trackSize.width() - metrics::spaceM);
    const int mnemonic =
        style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter.drawItemText(QStyle::visualRect(layoutDirection(), rect(), textRect),
                         int{Qt::AlignLeft} | Qt::AlignVCenter | mnemonic, palette(), isEnabled(),
                         accessKeyOf(*this).isNull() ? text() : markedText(text(), accessKeyOf(*this), *this),
                         QPalette::WindowText);
}

bool ToggleSwitch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

} // namespace abissora
