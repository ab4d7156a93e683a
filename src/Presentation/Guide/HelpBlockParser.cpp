// SPDX-License-Identifier: MIT
#include "HelpBlockParser.h"

#include "HelpText.h"
#include "Literals.h"

#include <QRegularExpression>

namespace abissora {

namespace {

enum class LineKind { Empty, Divider, Subheading, Fence, Quote, Bullet, Number, Plain };

class BlockParser
{
public:
    explicit BlockParser(const QString& body)
        : m_lines(help::lines(body))
    {
        for (QString& line : m_lines)
            line = help::withoutBlanks(line);
    }

    QList<HelpBlock> blocks()
    {
        while (m_at < m_lines.size())
            takeBlock();
        return m_blocks;
    }

private:
    [[nodiscard]] static LineKind kindOf(const QString& line)
    {
        static const QRegularExpression number(u"^\\d+\\.\\s"_s, QRegularExpression::UseUnicodePropertiesOption);
        if (line.isEmpty())
            return LineKind::Empty;
        if (line == "---"_L1)
            return LineKind::Divider;
        if (line.startsWith("### "_L1))
            return LineKind::Subheading;
        if (line == "```"_L1)
            return LineKind::Fence;
        if (line.startsWith("> "_L1))
            return LineKind::Quote;
        if (line.startsWith("- "_L1))
            return LineKind::Bullet;
        return number.match(line).hasMatch() ? LineKind::Number : LineKind::Plain;
    }

    void takeBlock()
    {
        const QString line = m_lines.at(m_at);
        switch (const LineKind kind = kindOf(line)) {
        case LineKind::Empty:
            ++m_at;
            break;
        case LineKind::Divider:
            ++m_at;
            m_blocks.append(help::Divider{});
            break;
        case LineKind::Subheading:
            ++m_at;
            m_blocks.append(help::Subheading{line.mid(4)});
            break;
        case LineKind::Fence:
            m_blocks.append(help::Code{takeCode()});
            break;
        case LineKind::Quote:
            ++m_at;
            m_blocks.append(help::Quote{line.mid(2)});
            break;
        case LineKind::Bullet: {
            QStringList items = takeRun(kind);
            for (QString& item : items)
                item.remove(0, 2);
            m_blocks.append(help::Bullets{items});
            break;
        }
        case LineKind::Number: {
            QStringList items = takeRun(kind);
            for (QString& item : items) {
                const qsizetype space = item.indexOf(u' ');
                item = space < 0 ? QString() : item.mid(space + 1);
            }
            m_blocks.append(help::Numbered{items});
            break;
        }
        case LineKind::Plain:
            m_blocks.append(help::Paragraph{takeRun(kind).join(u'\n')});
            break;
        }
    }

    QStringList takeRun(LineKind kind)
    {
        QStringList run;
        for (; m_at < m_lines.size() && kindOf(m_lines.at(m_at)) == kind; ++m_at)
            run.append(m_lines.at(m_at));
        return run;
    }

    /// From one fence to the next, or to the end.
    QString takeCode()
    {
        const qsizetype first = m_at + 1;
        const qsizetype fence = m_lines.indexOf("```"_L1, first);
        const qsizetype end = fence < 0 ? m_lines.size() : fence;
        m_at = end + 1;
        return m_lines.mid(first, end - first).join(u'\n');
    }

    QStringList m_lines;
    qsizetype m_at = 0;
    QList<HelpBlock> m_blocks;
};

} // namespace

QList<HelpBlock> parseBlocks(const QString& body)
{
    return BlockParser(body).blocks();
}

} // namespace abissora
