// SPDX-License-Identifier: MIT
#include "CsvText.h"

#include "Literals.h"

namespace abissora::csv {

namespace {

constexpr QChar quote = u'"';
constexpr QChar apostrophe = u'\'';

bool endsLine(QChar c)
{
    return c == u'\n' || c == u'\r';
}

class Reader
{
public:
    Reader(QStringView text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    {}

    void read()
    {
        while (m_error.isEmpty() && !isAtEnd())
            readRow();
    }

    [[nodiscard]] const QString& error() const { return m_error; }
    [[nodiscard]] QList<Row> takeRows() { return std::move(m_rows); }

private:
    [[nodiscard]] bool isAtEnd() const { return m_at == m_text.size(); }
    [[nodiscard]] bool isAtCellsEnd() const { return isAtEnd() || here() == m_separator || endsLine(here()); }
    [[nodiscard]] QChar here() const { return m_text[m_at]; }

    void fail(const QString& sentence) { m_error = at(m_line, m_row.cells.size() + 1, sentence); }
    void failAtRow(const QString& sentence) { m_error = at(m_row.line, 1, sentence); }
    void failAtNull() { fail(u"c'è un carattere nullo: il file è danneggiato o non è un testo."_s); }

    void readRow()
    {
        m_row = {m_line, {}};
        bool isEmpty = true;
        do {
            if (m_row.cells.size() == mostColumns)
                return fail(u"le colonne sono più di %1."_s.arg(mostColumns));
            QString cell = readCell();
            if (!m_error.isEmpty())
                return;
            isEmpty = isEmpty && cell.isEmpty();
            m_row.cells.append(std::move(cell));
        } while (passSeparator());
        passLineEnd();
        if (isEmpty)
            return;
        m_cellCount += m_row.cells.size();
        if (m_rows.size() == mostRows)
            return failAtRow(u"le righe sono più di %1."_s.arg(mostRows));
        if (m_cellCount > mostCells)
            return failAtRow(u"le celle sono più di %1."_s.arg(mostCells));
        m_rows.append(std::move(m_row));
    }

    bool passSeparator()
    {
        const bool isThere = !isAtEnd() && here() == m_separator;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    void passLineEnd()
    {
        if (isAtEnd())
            return;
        const bool isPair = here() == u'\r' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\n';
        m_at += isPair ? 2 : 1;
        ++m_line;
    }

    void passBlanks()
    {
        while (!isAtCellsEnd() && here().isSpace())
            ++m_at;
    }

    QString readCell()
    {
        const qsizetype begin = m_at;
        passBlanks();
        if (!isAtEnd() && here() == quote)
            return readQuoted();
        while (!isAtCellsEnd()) {
            if (here().isNull()) {
                failAtNull();
                return {};
            }
            ++m_at;
        }
        return m_text.mid(begin, m_at - begin).trimmed().toString();
    }

    QString readQuoted()
    {
        const int firstLine = m_line;
        QString cell;
        for (++m_at; !isAtEnd(); ++m_at) {
            if (here() == quote) {
                ++m_at;
                if (isAtEnd() || here() != quote)
                    return endQuoted(cell);
            } else if (here().isNull()) {
                failAtNull();
                return {};
            } else if (here() == u'\n' ||
                       (here() == u'\r' && (m_at + 1 == m_text.size() || m_text[m_at + 1] != u'\n'))) {
                ++m_line;
            }
            cell.append(here());
        }
        m_line = firstLine;
        fail(u"le virgolette aperte qui non si chiudono."_s);
        return {};
    }

    QString endQuoted(const QString& cell)
    {
        passBlanks();
        if (!isAtCellsEnd())
            fail(u"dopo le virgolette chiuse c'è ancora del testo."_s);
        return cell;
    }

    QStringView m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    int m_line = 1;
    Row m_row;
    QList<Row> m_rows;
    qsizetype m_cellCount = 0;
    QString m_error;
};

bool needsQuotes(const QString& cell)
{
    // Whatever else may separate cells is quoted as well, so that nobody takes it for the separator.
    const auto isSpecial = [](QChar c) { return c == quote || c == u';' || c == u',' || c == u'|' || c.isSpace(); };
    return std::ranges::any_of(cell, [&](QChar c) { return isSpecial(c) && c != u' '; }) ||
           (!cell.isEmpty() && (cell.front().isSpace() || cell.back().isSpace()));
}

/// Where a formula would begin: behind any apostrophes.
bool looksLikeFormula(const QString& text)
{
    static const QString starts = u"=+-@\t\r\n＝＋－＠"_s;
    const auto first = std::ranges::find_if_not(text, [](QChar c) { return c == apostrophe; });
    return first != text.end() && starts.contains(*first);
}

} // namespace

QString at(int line, qsizetype column, const QString& sentence)
{
    return u"Riga %1, colonna %2: %3"_s.arg(QString::number(line), QString::number(column), sentence);
}

tl::expected<QList<Row>, QString> read(const QString& text, QChar separator)
{
    Reader reader(text, separator);
    reader.read();
    if (!reader.error().isEmpty())
        return tl::unexpected(reader.error());
    return reader.takeRows();
}

QList<Row> readable(const QString& text, QChar separator)
{
    Reader reader(text, separator);
    reader.read();
    return reader.takeRows();
}

QString line(const QStringList& cells, QChar separator)
{
    QString line;
    for (qsizetype column = 0; column < cells.size(); ++column) {
        if (column > 0)
            line += separator;
        const QString cell = QString(cells.at(column)).remove(QChar(QChar::Null));
        line += needsQuotes(cell) ? quote + QString(cell).replace(quote, u"\"\""_s) + quote : cell;
    }
    return line + u"\r\n"_s;
}

QString defused(const QString& text)
{
    return looksLikeFormula(text) ? apostrophe + text : text;
}

QString restored(const QString& text)
{
    return text.startsWith(apostrophe) && looksLikeFormula(text) ? text.mid(1) : text;
}

} // namespace abissora::csv
