// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>
#include <QHash>
#include <memory>
#include <optional>

namespace abissora {

/// How wide words and whole texts are in one font, which is measured once for each. Laying a text out takes a tenth of
/// a millisecond, and most texts only want to know in how many lines: the words of a long list come back, and adding up
/// their widths tells it, near the edge excepted.
class WordWidths
{
public:
    explicit WordWidths(const QFont& font);

    /// The one of this font, for whoever shows texts in it.
    [[nodiscard]] static std::shared_ptr<WordWidths> of(const QFont& font);

    /// In how many lines of this width a text breaks. Nothing when only its layout can tell: for a line that is full to
    /// a few pixels, a word longer than a line, signs whose breaks are not those of blanks and hyphens, scripts other
    /// than Latin, letters that another font lends.
    [[nodiscard]] std::optional<int> linesOf(QStringView text, int width);
    /// Of the text in one line, as the font's metrics give it.
    [[nodiscard]] qreal advance(QStringView text);
    /// The text where it has room in one line, else what has room with dots at its end.
    [[nodiscard]] QString elided(const QString& text, qreal width);
    /// At least as wide as the text in one line, letters fitted together or not.
    [[nodiscard]] qreal mostWidthOf(QStringView text);
    /// Of one line of Latin letters.
    [[nodiscard]] qreal lineHeight() const { return m_lineHeight; }

private:
    [[nodiscard]] bool isOfThisFont(QStringView word) const;

    QFontMetricsF m_metrics;
    qreal m_lineHeight;
    qreal m_blank;
    QHash<QString, qreal> m_advances;
};

} // namespace abissora
