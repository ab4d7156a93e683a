// SPDX-License-Identifier: MIT
#pragma once

#include "HelpBlockParser.h"
#include "HelpLoader.h"

#include <QTextBlock>
#include <QTextCursor>

namespace abissora {

struct Tokens;

namespace help {

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

} // namespace help

/// Writes a section into a document, in the scheme's colours and the present text sizes.
class HelpPageWriter
{
public:
    /// Replaces what the document holds. Both outlive the writer.
    HelpPageWriter(QTextDocument& document, const Tokens& tokens);

    void write(const HelpSection& section);

private:
    struct BlockLook
    {
        int gap = 0; ///< to the block above, from panel to panel
        help::Backdrop backdrop = help::Backdrop::None;
        int leftMargin = 0;
        int hanging = 0; ///< so much of the left margin is taken by a mark
        int headingLevel = 0;
    };

    /// What leads an item of a list.
    struct Mark
    {
        QString text;
        QFont font;
        int indent;
        bool isFirst;
    };

    void writeBlock(const help::Subheading& block);
    void writeBlock(const help::Paragraph& block);
    void writeBlock(const help::Bullets& block);
    void writeBlock(const help::Numbered& block);
    void writeBlock(const help::Quote& block);
    void writeBlock(const help::Code& block);
    void writeBlock(const help::Divider& block);

    void begin(const BlockLook& look, const QFont& font);
    void writeItem(const Mark& mark, const QString& item);
    void writeInline(const QString& text, const QTextCharFormat& format);
    void writePlain(const QString& text, const QTextCharFormat& format);

    const Tokens& m_tokens;
    QTextCursor m_cursor;
    int m_paddingAbove = 0;
    bool m_isEmpty = true;
};

} // namespace abissora
