// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>
#include <QHash>
#include <QTextOption>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>

class QTextLayout;

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
    /// The height of the lines of this width that a text breaks into; what linesOf() cannot tell is laid out, once for
    /// equal texts.
    [[nodiscard]] int heightOf(const QString& text, int width);
    /// Of the text in one line, as the font's metrics give it.
    [[nodiscard]] qreal advance(QStringView text);
    /// The text where it has room in one line, else what has room with dots at its end.
    [[nodiscard]] QString elided(const QString& text, qreal width);
    /// At least as wide as the text in one line, letters fitted together or not.
    [[nodiscard]] qreal mostWidthOf(QStringView text);

private:
    /// Found by a part of a text without a copy of it.
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(QStringView text) const { return qHash(text); }
    };

    [[nodiscard]] bool isOfThisFont(QStringView word) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    qreal m_lineHeight; ///< of one line of Latin letters
    qreal m_blank;
    std::unordered_map<QString, qreal, Hash, std::equal_to<>> m_advances;
    QHash<std::pair<QString, int>, int> m_heights;
};

/// Lays a text out in lines of this width, which break inside words where there is no other way; gives their height.
int layOutLines(QTextLayout& layout, QString text, QTextOption option, int width);

} // namespace abissora
