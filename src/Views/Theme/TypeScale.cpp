// SPDX-License-Identifier: MIT
#include "TypeScale.h"

#include "Metrics.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <algorithm>

namespace abissora {

namespace {

/// The height of one line of text at the size the drawings were made for.
constexpr int referenceLineHeight = 16;

struct Step
{
    qreal factor;
    QFont::Weight weight;
};

Step stepOf(TextStyle style)
{
    switch (style) {
    case TextStyle::Caption:
        return {0.85, QFont::Normal};
    case TextStyle::CaptionSemibold:
        return {0.85, QFont::DemiBold};
    case TextStyle::Callout:
        return {0.92, QFont::Normal};
    case TextStyle::Body:
        return {1.0, QFont::Normal};
    case TextStyle::BodyMedium:
        return {1.0, QFont::Medium};
    case TextStyle::Headline:
        return {1.15, QFont::DemiBold};
    case TextStyle::Title:
        return {1.5, QFont::Bold};
    case TextStyle::LargeTitle:
        return {2.0, QFont::Bold};
    case TextStyle::StatisticsValue:
        return {2.15, QFont::Bold};
    }
    return {1.0, QFont::Normal};
}

} // namespace

QFont font(TextStyle style)
{
    return scaled(QGuiApplication::font(), style);
}

QFont scaled(QFont base, TextStyle style)
{
    const Step step = stepOf(style);
    if (base.pointSizeF() > 0)
        base.setPointSizeF(base.pointSizeF() * step.factor);
    else
        base.setPixelSize(qRound(base.pixelSize() * step.factor));
    base.setWeight(step.weight);
    return base;
}

int controlHeight(const QFontMetrics& fontMetrics)
{
    return std::max(metrics::controlHeight, fontMetrics.height() + metrics::spaceM);
}

int withText(int length, const QFontMetrics& fontMetrics)
{
    return std::max(length, length * fontMetrics.height() / referenceLineHeight);
}

} // namespace abissora
