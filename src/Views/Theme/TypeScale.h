// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

class QFontMetrics;

namespace abissora {

enum class TextStyle {
    Caption,
    CaptionSemibold,
    Callout,
    Body,
    BodyMedium,
    Headline,
    Title,
    LargeTitle,
    StatisticsValue,
};

/// Sizes follow the application's default size, which is the person's choice.
[[nodiscard]] QFont font(TextStyle style);
[[nodiscard]] QFont scaled(QFont base, TextStyle style);

/// The height of a button or a one-line field whose text is measured by `metrics`.
[[nodiscard]] int controlHeight(const QFontMetrics& metrics);

/// A length that grows with the text: `length` at the size the drawings were made for.
[[nodiscard]] int withText(int length, const QFontMetrics& metrics);

} // namespace abissora
