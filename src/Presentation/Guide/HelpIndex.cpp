// SPDX-License-Identifier: MIT
#include "HelpIndex.h"

#include "HelpText.h"
#include "TextSearch.h"

#include <algorithm>

namespace abissora {

namespace {

QList<HelpSection> matching(QList<HelpSection> sections, const QString& searchText)
{
    const TextSearch search(help::withoutBlanksAndNewlines(searchText));
    sections.removeIf([&search](const HelpSection& section) {
        return !search.foundIn(section.title) && !search.foundIn(section.body);
    });
    return sections;
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
    const auto found = std::ranges::find(m_sections, m_selection, &HelpSection::id);
    return found == m_sections.end() ? std::nullopt : std::optional(*found);
}

void HelpIndex::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_filtered = matching(m_sections, text);
    if (m_selection && std::ranges::find(m_filtered, *m_selection, &HelpSection::id) == m_filtered.end())
        m_selection = firstOf(m_filtered);
}

void HelpIndex::select(const QString& id)
{
    m_selection = id;
}

} // namespace abissora
