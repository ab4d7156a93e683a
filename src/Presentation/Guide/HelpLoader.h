// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QList>
#include <QStringList>

namespace abissora {

/// One chapter of the guide.
struct HelpSection
{
    QString id;
    QString title;
    QString body; ///< markup, without the heading's line

    friend bool operator==(const HelpSection&, const HelpSection&) = default;
    friend size_t qHash(const HelpSection& section, size_t seed = 0)
    {
        return qHashMulti(seed, section.id, section.title, section.body);
    }
};

class HelpLoader
{
public:
    /// The guide among the program's resources.
    [[nodiscard]] static QList<HelpSection> load();
    /// A document that is missing or is no UTF-8 gives the one section that says so, never an error.
    [[nodiscard]] static QList<HelpSection> load(const QString& path);

    /// One section for each level-two heading. A hand-written table of contents and sections without a text are left
    /// out; what stands before the first heading becomes the introduction.
    [[nodiscard]] static QList<HelpSection> parse(const QString& document);

    /// For a program whose screens lack these texts: leaves out the sections that they are titles of and the lines that
    /// quote them in strong emphasis.
    [[nodiscard]] static QList<HelpSection> without(const QStringList& texts, const QList<HelpSection>& sections);
};

} // namespace abissora
