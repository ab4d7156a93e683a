// SPDX-License-Identifier: MIT
#include "InlineText.h"

#include "ForeignText.h"
#include "Literals.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace abissora {

namespace {

// A line that begins with a thin space begins no block, and white space around a line break is what emphasis at the
// ends of lines expects. So the whole text becomes one line of one paragraph, in which Markdown only finds what is
// inline and leaves all blanks where they are.
constexpr QChar guard(0x2009);

QString lineBreak()
{
    return QString(guard) + QChar(QChar::LineSeparator) + guard;
}

QString guarded(QString text)
{
    return guard + text.replace(u'\n', lineBreak()) + guard;
}

/// The reader asks it for nothing; should it ever, there is nothing to get.
class TextOnly final : public QTextDocument
{
protected:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return {}; }
};

QUrl safeLink(const QString& address)
{
    const bool isWhole =
        std::ranges::none_of(address, [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; });
    const QUrl url(address, QUrl::StrictMode);
    const bool isMail = url.scheme() == "mailto"_L1 && !url.path().isEmpty();
    return isWhole && url.isValid() && (opensInBrowser(url) || isMail) ? url : QUrl();
}

InlineRun runOf(const QTextFragment& fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    if (format.isImageFormat())
        return {.text = format.stringProperty(QTextFormat::ImageAltText)};
    return {.text = fragment.text().replace(lineBreak(), u"\n"_s),
            .isStrong = format.fontWeight() > QFont::Normal,
            .isEmphasis = format.fontItalic(),
            .isCode = format.fontFixedPitch(),
            .link = safeLink(format.anchorHref())};
}

void append(QList<InlineRun>& runs, const InlineRun& run)
{
    if (run.text.isEmpty())
        return;
    InlineRun continued = run;
    if (!runs.isEmpty())
        continued.text = runs.last().text;
    if (!runs.isEmpty() && continued == runs.last())
        runs.last().text += run.text;
    else
        runs.append(run);
}

void removeGuards(QList<InlineRun>& runs)
{
    if (!runs.isEmpty() && runs.first().text.startsWith(guard))
        runs.first().text.remove(0, 1);
    if (!runs.isEmpty() && runs.last().text.endsWith(guard))
        runs.last().text.chop(1);
    runs.removeIf([](const InlineRun& run) { return run.text.isEmpty(); });
}

} // namespace

QList<InlineRun> readInline(const QString& text)
{
    TextOnly document;
    document.setUndoRedoEnabled(false);
    document.setMarkdown(guarded(text), QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectCommonMark) |
                                            QTextDocument::MarkdownNoHTML);
    QList<InlineRun> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block != document.begin())
            append(runs, {.text = u"\n"_s}); // a paragraph separator written as an entity
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            append(runs, runOf(fragment.fragment()));
    }
    removeGuards(runs);
    if (runs.isEmpty() && !text.isEmpty())
        runs.append({.text = text}); // nothing to see is not what was written
    return runs;
}

} // namespace abissora
