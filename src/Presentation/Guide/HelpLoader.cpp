// SPDX-License-Identifier: MIT
#include "HelpLoader.h"

#include "HelpText.h"
#include "Literals.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <optional>

static void initGuide()
{
    Q_INIT_RESOURCE(guide);
}

namespace abissora {

namespace {

QList<HelpSection> fallback()
{
    return {{u"non-disponibile"_s, u"Guida non disponibile"_s,
             u"Il file HELP.md non è presente nel bundle dell'app.\n\nApri la cartella dell'app e "
             "verifica che la guida sia stata inclusa tra le risorse."_s}};
}

bool isSeparator(const QString& line)
{
    return help::withoutBlanks(line) == "---"_L1;
}

bool saysNothing(const QString& line)
{
    return isSeparator(line) || help::withoutBlanks(line).isEmpty();
}

/// Empty when there is nothing to show.
QString bodyOf(const QStringList& bodyLines)
{
    if (std::ranges::all_of(bodyLines, saysNothing))
        return {};
    const auto first = std::ranges::find_if_not(bodyLines, isSeparator);
    const auto last = std::find_if_not(bodyLines.rbegin(), bodyLines.rend(), isSeparator).base();
    return help::withoutBlanksAndNewlines(QStringList(first, last).join(u'\n'));
}

class Sections
{
public:
    void take(const QString& line)
    {
        if (line.startsWith("## "_L1)) {
            close();
            m_title = help::withoutBlanks(line.mid(3));
            return;
        }
        if (!m_title)
            m_title = u"Introduzione"_s;
        m_body.append(line);
    }

    void close()
    {
        const bool isContents = m_title && m_title->toLower().startsWith("indice"_L1);
        if (const QString body = bodyOf(m_body); m_title && !isContents && !body.isEmpty())
            m_sections.append({u"sezione-%1"_s.arg(m_sections.size()), *m_title, body});
        m_title.reset();
        m_body.clear();
    }

    [[nodiscard]] const QList<HelpSection>& all() const { return m_sections; }

private:
    std::optional<QString> m_title;
    QStringList m_body;
    QList<HelpSection> m_sections;
};

} // namespace

QList<HelpSection> HelpLoader::load()
{
    initGuide();
    return load(u":/guide/HELP.md"_s);
}

QList<HelpSection> HelpLoader::load(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fallback();
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QByteArray bytes = file.readAll();
    const QString document = decode(bytes);
    return decode.hasError() || file.error() != QFile::NoError ? fallback() : parse(document);
}

QList<HelpSection> HelpLoader::parse(const QString& document)
{
    Sections sections;
    for (const QString& line : help::lines(document))
        sections.take(line);
    sections.close();
    return sections.all();
}

QList<HelpSection> HelpLoader::without(const QStringList& texts, const QList<HelpSection>& sections)
{
    const auto quotesOne = [&texts](const QString& line) {
        return std::ranges::any_of(texts,
                                   [&line](const QString& text) { return line.contains(u"**"_s + text + "**"_L1); });
    };
    QList<HelpSection> left;
    for (const HelpSection& section : sections) {
        if (texts.contains(section.title))
            continue;
        QStringList lines = section.body.split(u'\n');
        lines.removeIf(quotesOne);
        left.append({section.id, section.title, lines.join(u'\n')});
    }
    return left;
}

} // namespace abissora
