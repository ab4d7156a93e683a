// SPDX-License-Identifier: MIT
#include "HelpPageWriter.h"

#include "InlineText.h"
#include "Literals.h"
#include "Metrics.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTextDocument>
#include <QTextFrame>
#include <cmath>

namespace abissora {

namespace {

using help::Backdrop;

constexpr int lineHeight = 125; // percent
constexpr int itemGap = 10;
constexpr int markGap = 9;

QFont codeFont(const QFont& body)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (body.pointSizeF() > 0)
        font.setPointSizeF(body.pointSizeF());
    else
        font.setPixelSize(body.pixelSize());
    return font;
}

QTextCharFormat charFormat(const QFont& font)
{
    QTextCharFormat format;
    format.setFont(font);
    return format;
}

QTextCharFormat charFormat(const QFont& font, const QColor& ink)
{
    QTextCharFormat format = charFormat(font);
    format.setForeground(ink);
    return format;
}

int paddingOf(Backdrop backdrop)
{
    return backdrop == Backdrop::QuotePanel || backdrop == Backdrop::CodePanel ? help::panelPadding : 0;
}

QFont markFont(QFont::Weight weight)
{
    QFont font = abissora::font(TextStyle::Body);
    font.setWeight(weight);
    return font;
}

int indentFor(const QString& widestMark, const QFont& font)
{
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(widestMark))) + markGap;
}

} // namespace

HelpPageWriter::HelpPageWriter(QTextDocument& document, const Tokens& tokens)
    : m_tokens(tokens)
    , m_cursor(&document)
{
    document.clear();
    document.setDefaultFont(abissora::font(TextStyle::Body));
    document.setDocumentMargin(help::pageMargin);
    QTextFrameFormat page = document.rootFrame()->frameFormat();
    page.setTopMargin(help::pageTopMargin);
    document.rootFrame()->setFrameFormat(page);
}

void HelpPageWriter::write(const HelpSection& section)
{
    const QFont title = abissora::font(TextStyle::LargeTitle);
    begin({.gap = 0, .headingLevel = 1}, title);
    writePlain(section.title, charFormat(title));
    for (const HelpBlock& block : parseBlocks(section.body))
        std::visit([this](const auto& known) { writeBlock(known); }, block);
}

void HelpPageWriter::writeBlock(const help::Subheading& block)
{
    const QFont font = abissora::font(TextStyle::Headline);
    begin({.gap = metrics::spaceM,
           .backdrop = Backdrop::AccentBar,
           .leftMargin = help::subheadingIndent,
           .headingLevel = 2},
          font);
    writePlain(block.text, charFormat(font));
}

void HelpPageWriter::writeBlock(const help::Paragraph& block)
{
    const QFont font = abissora::font(TextStyle::Body);
    begin({.gap = metrics::spaceM}, font);
    writeInline(block.text, charFormat(font));
}

void HelpPageWriter::writeBlock(const help::Bullets& block)
{
    const QString bullet = u"•"_s;
    const QFont font = markFont(QFont::Black); // the dot grows with the weight
    const int indent = indentFor(bullet, font);
    for (qsizetype i = 0; i < block.items.size(); ++i)
        writeItem({bullet, font, indent, i == 0}, block.items.at(i));
}

void HelpPageWriter::writeBlock(const help::Numbered& block)
{
    const auto mark = [](qsizetype number) { return u"%1."_s.arg(number); };
    const QFont font = markFont(QFont::DemiBold);
    const int indent = indentFor(mark(block.items.size()), font);
    for (qsizetype i = 0; i < block.items.size(); ++i)
        writeItem({mark(i + 1), font, indent, i == 0}, block.items.at(i));
}

void HelpPageWriter::writeBlock(const help::Quote& block)
{
    const QFont font = abissora::font(TextStyle::Callout);
    begin({.gap = metrics::spaceM, .backdrop = Backdrop::QuotePanel, .leftMargin = help::quoteIndent}, font);
    writeInline(block.text, charFormat(font, m_tokens.secondaryText));
}

void HelpPageWriter::writeBlock(const help::Code& block)
{
    const QFont font = codeFont(abissora::font(TextStyle::Body));
    begin({.gap = metrics::spaceM, .backdrop = Backdrop::CodePanel, .leftMargin = help::codeIndent}, font);
    writePlain(block.text, charFormat(font));
}

void HelpPageWriter::writeBlock(const help::Divider& /*block*/)
{
    QFont font = abissora::font(TextStyle::Body);
    font.setPixelSize(1);
    begin({.gap = metrics::spaceL, .backdrop = Backdrop::Rule}, font);
}

void HelpPageWriter::begin(const BlockLook& look, const QFont& font)
{
    const int padding = paddingOf(look.backdrop);
    QTextBlockFormat format;
    format.setProperty(help::backdropProperty, static_cast<int>(look.backdrop));
    format.setTopMargin(m_paddingAbove + look.gap + padding);
    format.setLeftMargin(look.leftMargin);
    format.setTextIndent(-look.hanging);
    format.setRightMargin(padding);
    format.setHeadingLevel(look.headingLevel);
    if (look.headingLevel == 0 && look.backdrop != Backdrop::Rule)
        format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    if (look.hanging > 0)
        format.setTabPositions({QTextOption::Tab(look.hanging, QTextOption::LeftTab)});
    m_paddingAbove = padding;
    if (std::exchange(m_isEmpty, false)) {
        m_cursor.setBlockFormat(format);
        m_cursor.setBlockCharFormat(charFormat(font));
    } else {
        m_cursor.insertBlock(format, charFormat(font));
    }
}

void HelpPageWriter::writeItem(const Mark& mark, const QString& item)
{
    const QFont font = abissora::font(TextStyle::Body);
    begin({.gap = mark.isFirst ? metrics::spaceM : itemGap, .leftMargin = mark.indent, .hanging = mark.indent}, font);
    writePlain(mark.text + u'\t', charFormat(mark.font, m_tokens.named(NamedColor::blue)));
    writeInline(item, charFormat(font));
}

void HelpPageWriter::writeInline(const QString& text, const QTextCharFormat& format)
{
    for (const InlineRun& run : readInline(text)) {
        QTextCharFormat own = format;
        QFont font = run.isCode ? codeFont(format.font()) : format.font();
        if (run.isStrong)
            font.setWeight(QFont::Bold);
        font.setItalic(run.isEmphasis);
        own.setFont(font);
        if (!run.link.isEmpty()) {
            own.setAnchor(true);
            own.setAnchorHref(run.link.toString(QUrl::FullyEncoded));
            own.setToolTip(own.anchorHref());
            own.setForeground(m_tokens.accentInk);
            own.setFontUnderline(true);
        }
        writePlain(run.text, own);
    }
}

void HelpPageWriter::writePlain(const QString& text, const QTextCharFormat& format)
{
    QString oneBlock = text;
    m_cursor.insertText(oneBlock.replace(u'\n', QChar::LineSeparator), format);
}

} // namespace abissora
