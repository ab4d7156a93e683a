// SPDX-License-Identifier: MIT
#pragma once

#include "HelpBlock.h"
#include "HelpPageFormat.h"
#include "HelpSection.h"

#include <QTextCursor>

namespace abissora {

struct Tokens;

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
        int gap; ///< to the block above, from panel to panel
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
