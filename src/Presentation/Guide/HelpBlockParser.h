// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <variant>

namespace abissora {

/// What a section's body consists of. Paragraphs, items and quotes may hold inline markup, see InlineText.h.
namespace help {

struct Subheading
{
    QString text;
    friend bool operator==(const Subheading&, const Subheading&) = default;
};

struct Paragraph
{
    QString text; ///< its lines, joined by line feeds
    friend bool operator==(const Paragraph&, const Paragraph&) = default;
};

struct Bullets
{
    QStringList items;
    friend bool operator==(const Bullets&, const Bullets&) = default;
};

/// Without the numbers of the document: items count from 1.
struct Numbered
{
    QStringList items;
    friend bool operator==(const Numbered&, const Numbered&) = default;
};

struct Quote
{
    QString text;
    friend bool operator==(const Quote&, const Quote&) = default;
};

struct Code
{
    QString text; ///< its lines, joined by line feeds
    friend bool operator==(const Code&, const Code&) = default;
};

struct Divider
{
    friend bool operator==(const Divider&, const Divider&) = default;
};

} // namespace help

using HelpBlock = std::variant<help::Subheading, help::Paragraph, help::Bullets, help::Numbered, help::Quote,
                               help::Code, help::Divider>;

/// The blocks of a section's body, in its order. Anything is a body: what is no other block is a paragraph. Lines lose
/// their indentation, those of code included.
[[nodiscard]] QList<HelpBlock> parseBlocks(const QString& body);

} // namespace abissora
