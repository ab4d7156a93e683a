// SPDX-License-Identifier: MIT
#include "Badge.h"

#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <algorithm>

namespace abissora {

Badge::Badge(QWidget* parent)
    : QLabel(parent)
{
    setFont(abissora::font(TextStyle::CaptionSemibold));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    hide();
}

void Badge::setCount(qsizetype count)
{
    setText(QString::number(count));
    setVisible(count > 0);
}

QSize Badge::sizeHint() const
{
    const int height = fontMetrics().height() + 2 * metrics::spaceXS;
    return {std::max(height, fontMetrics().horizontalAdvance(text()) + 2 * metrics::spaceXS), height};
}

QSize Badge::minimumSizeHint() const
{
    return sizeHint();
}

void Badge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), height() / 2.0, tokens.dangerFill, {});
    painter.setPen(tokens.onFill);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace abissora
