// SPDX-License-Identifier: MIT
#pragma once

#include "HelpLoader.h"

#include <optional>

namespace abissora {

/// What a reader of the guide has before them: the sections that match the search, and the one chosen.
class HelpIndex
{
public:
    /// The first section is chosen.
    explicit HelpIndex(QList<HelpSection> sections);

    [[nodiscard]] const QList<HelpSection>& sections() const { return m_sections; }
    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    /// In titles and markup alike, whatever the letter case; a letter with an accent is another letter.
    [[nodiscard]] const QList<HelpSection>& filteredSections() const { return m_filtered; }
    [[nodiscard]] const std::optional<QString>& selection() const { return m_selection; }
    [[nodiscard]] std::optional<HelpSection> selectedSection() const;

    /// A chosen section that no longer matches gives way to the first that does; nothing chosen stays nothing.
    void setSearchText(const QString& text);
    void select(const QString& id);

private:
    QList<HelpSection> m_sections;
    QList<HelpSection> m_filtered;
    QString m_searchText;
    std::optional<QString> m_selection;
};

} // namespace abissora
