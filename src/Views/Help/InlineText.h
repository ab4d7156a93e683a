// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QUrl>

namespace abissora {

/// A stretch of text in one dress.
struct InlineRun
{
    QString text;
    bool isStrong = false;
    bool isEmphasis = false;
    bool isCode = false;
    QUrl link = {}; ///< to a web page or a mail address; empty for anything else

    friend bool operator==(const InlineRun&, const InlineRun&) = default;
};

/// Reads a text as inline Markdown: emphasis, strong emphasis, code, links. White space and line breaks stay as they
/// are written. HTML and everything that makes blocks (headings, lists, tables, rules) is plain text here, a picture is
/// the text that stands for it, and so is a link to anything but http, https and mailto.
[[nodiscard]] QList<InlineRun> readInline(const QString& text);

} // namespace abissora
