// SPDX-License-Identifier: MIT
#include "ToggleSwitch.h"

#include "IndicatorPainting.h"
#include "Metrics.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace abissora {

namespace {

constexpr QSize track = indicators::switchSize;

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
    return {textWidth + track.width(), std::max(track.height(), fontMetrics().height() + metrics::spaceXS)};
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
    const QRect trackRect = QStyle::visualRect(
        layoutDirection(), rect(), QRect(QPoint(width() - track.width(), (height() - track.height()) / 2), track));
    const bool sliding = m_slide.state() == QAbstractAnimation::Running;
    const double position = sliding ? m_slide.currentValue().toDouble() : isChecked() ? 1.0 : 0.0;
    indicators::drawSwitch(option, painter, trackRect, position);
    if (text().isEmpty())
        return;
    QRect textRect = rect();
    textRect.setRight(width() - track.width() - metrics::spaceM);
    const int mnemonic =
        style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter.drawItemText(QStyle::visualRect(layoutDirection(), rect(), textRect),
                         int{Qt::AlignLeft} | Qt::AlignVCenter | mnemonic, palette(), isEnabled(), text(),
                         QPalette::WindowText);
}

bool ToggleSwitch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

} // namespace abissora
