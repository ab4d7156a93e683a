// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBlock>
#include <QTextFormat>

namespace abissora::help {

/// What the page paints behind a block of its document.
enum class Backdrop { None, AccentBar, QuotePanel, CodePanel, Rule };

inline constexpr int backdropProperty = QTextFormat::UserProperty;

[[nodiscard]] inline Backdrop backdropOf(const QTextBlock& block)
{
    return static_cast<Backdrop>(block.blockFormat().intProperty(backdropProperty));
}

/// Lengths in device-independent pixels.
inline constexpr int pageMargin = 30;
inline constexpr int pageTopMargin = 24;
inline constexpr int panelPadding = 13; ///< above and below the text
inline constexpr int codeIndent = 14;
inline constexpr int quoteIconIndent = 16;
inline constexpr int quoteIconSide = 14;
inline constexpr int quoteIndent = 40;
inline constexpr int subheadingIndent = 14;
inline constexpr int accentBarWidth = 4;

} // namespace abissora::help
