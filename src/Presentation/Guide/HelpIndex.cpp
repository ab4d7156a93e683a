// SPDX-License-Identifier: MIT
#include "HelpIndex.h"

#include "HelpText.h"
#include "TextSearch.h"

#include <algorithm>

namespace abissora {

namespace {

QList<HelpSection> matching(const QList<HelpSection>& sections, const QString& searchText)
{
    const TextSearch search(help::withoutBlanksAndNewlines(searchText));
    QList<HelpSection> found;
    std::copy_if(sections.begin(), sections.end(), std::back_inserter(found), [&](const HelpSection& section) {
        return search.foundIn(section.title) || search.foundIn(section.body);
    });
    return found;
}

std::optional<QString> firstOf(const QList<HelpSection>& sections)
{
    return sections.isEmpty() ? std::nullopt : std::optional(sections.first().id);
}

} // namespace

HelpIndex::HelpIndex(QList<HelpSection> sections)
    : m_sections(std::move(sections))
    , m_filtered(m_sections)
    , m_selection(firstOf(m_sections))
{}

std::optional<HelpSection> HelpIndex::selectedSection() const
{
    const auto found = std::find_if(m_sections.begin(), m_sections.end(),
                                    [this](const HelpSection& section) { return section.id == m_selection; });
    return found == m_sections.end() ? std::nullopt : std::optional(*found);
}

void HelpIndex::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_filtered = matching(m_sections, text);
    const bool gone = std::none_of(m_filtered.begin(), m_filtered.end(),
                                   [this](const HelpSection& section) { return section.id == m_selection; });
    if (m_selection && gone)
        m_selection = firstOf(m_filtered);
}

void HelpIndex::select(const QString& id)
{
    m_selection = id;
}

} // namespace abissora
