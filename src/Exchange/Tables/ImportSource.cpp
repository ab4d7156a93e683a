// SPDX-License-Identifier: MIT
#include "ImportSource.h"

#include "ForeignText.h"
#include "ImportFields.h"
#include "Literals.h"
#include "RecordJson.h"
#include "RegularFile.h"
#include "TextDecoding.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <array>

namespace abissora {

namespace {

/// "sep=;" in the first line, by which some spreadsheets are told.
std::optional<QChar> announcedSeparator(const QString& text)
{
    static const QRegularExpression announcement(u"^\\s*\"?sep=([^\\w\\s\"]|\\t)\"?[ \\t;,|]*(\\r|\\n|$)"_s,
                                                 QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = announcement.match(text.left(64));
    return match.hasMatch() ? std::optional(match.captured(1).front()) : std::nullopt;
}

/// Without its first line, whose number stays taken.
QString withoutFirstLine(const QString& text)
{
    const auto end = std::ranges::find_if(text, [](QChar c) { return c == u'\n' || c == u'\r'; });
    return text.mid(end - text.begin());
}

/// The beginning of a long text: enough to tell what separates its cells.
QString sample(const QString& text)
{
    constexpr qsizetype enough = 20'000;
    if (text.size() <= enough)
        return text;
    const qsizetype end = std::max(text.lastIndexOf(u'\n', enough), text.lastIndexOf(u'\r', enough));
    return text.left(end > 0 ? end : enough);
}

constexpr std::array separators{QChar(u';'), QChar(u','), QChar(u'\t'), QChar(u'|')};

bool holdsSeparator(const QString& heading)
{
    return std::ranges::any_of(separators, [&heading](QChar separator) { return heading.contains(separator); });
}

/// How well the text is a table with this separator: headings that are known, then columns that all rows have.
std::pair<qsizetype, qsizetype> fitness(const QString& text, QChar separator)
{
    // Quotes that do not end because the text was cut are no matter here.
    const QList<csv::Row> rows = csv::readable(text, separator);
    if (rows.isEmpty())
        return {0, 0};
    const QStringList headings = rows.first().cells;
    const auto known = [&headings](ImportSubject subject) {
        const QList<ImportField> fields = fieldsOf(headings, subject);
        qsizetype count = 0;
        for (qsizetype column = 0; column < fields.size(); ++column)
            count += fields.at(column) != ImportField::None && !holdsSeparator(headings.at(column)) ? 1 : 0;
        return count;
    };
    const auto isWhole = [&headings](const csv::Row& row) { return row.cells.size() == headings.size(); };
    const qsizetype whole = headings.size() > 1 ? std::ranges::count_if(rows, isWhole) * headings.size() : 0;
    return {std::max(known(ImportSubject::Items), known(ImportSubject::Records)), whole};
}

/// Where nothing else tells, what stands there most often.
QChar mostFrequent(const QString& text)
{
    return *std::ranges::max_element(separators, {}, [&text](QChar candidate) { return text.count(candidate); });
}

QChar separatorOf(const QString& text)
{
    const QString beginning = sample(text);
    QChar best = mostFrequent(beginning);
    std::pair<qsizetype, qsizetype> bestFitness{0, 0};
    for (const QChar candidate : separators) {
        if (const auto fit = fitness(beginning, candidate); fit > bestFitness) {
            best = candidate;
            bestFitness = fit;
        }
    }
    return best;
}

/// Rows that are cut short get empty cells; cells beside the headings must be empty.
QString squareUp(ImportedTable& table)
{
    const qsizetype columns = table.headings.cells.size();
    if (columns * table.rows.size() > csv::mostCells)
        return u"Il file è troppo grande: più di %1 celle."_s.arg(csv::mostCells);
    for (csv::Row& row : table.rows) {
        for (qsizetype extra = columns; extra < row.cells.size(); ++extra) {
            if (!row.cells.at(extra).isEmpty())
                return csv::at(row.line, extra + 1, u"questa cella non ha un'intestazione."_s);
        }
        row.cells.resize(columns);
    }
    return {};
}

tl::expected<ImportSource, QString> parseTable(const QString& fileName, const DecodedText& decoded)
{
    QString text = decoded.text;
    const auto announced = announcedSeparator(text);
    if (announced)
        text = withoutFirstLine(text);
    ImportedTable table{announced.value_or(separatorOf(text)), decoded.encoding, {}, {}};
    auto rows = csv::read(text, table.separator);
    if (!rows)
        return tl::unexpected(rows.error());
    if (rows->size() < 2)
        return tl::unexpected(u"Nel file non ci sono righe sotto le intestazioni."_s);
    table.headings = rows->takeFirst();
    while (table.headings.cells.last().isEmpty()) // those of blank columns at the right
        table.headings.cells.removeLast();
    table.rows = std::move(*rows);
    if (const QString error = squareUp(table); !error.isEmpty())
        return tl::unexpected(error);
    return ImportSource{fileName, std::move(table)};
}

tl::unexpected<QString> unreadable(const JsonError& error)
{
    constexpr qsizetype longest = 200;
    return tl::unexpected(
        u"Il file non è un registro che si possa leggere: %1."_s.arg(shownLine(error.description(), longest)));
}

tl::expected<ImportSource, QString> parseRegister(const QString& fileName, const QByteArray& json)
{
    constexpr qsizetype longest = 20;
    // What a newer version writes need not be what this one can read.
    const auto head = decodeRegisterHead(json);
    if (!head)
        return unreadable(head.error());
    if (head->format != RegisterDocument::formatName || head->version < 1)
        return tl::unexpected(u"Il file non è un registro di Abissora."_s);
    if (head->version > RegisterDocument::currentVersion)
        return tl::unexpected(u"Il registro è stato scritto da una versione più recente di Abissora (%1)."_s.arg(
            shownLine(head->program.value_or(u"?"_s), longest)));
    auto document = decodeRegisterDocument(json);
    if (!document)
        return unreadable(document.error());
    return ImportSource{fileName, std::move(*document)};
}

/// The list as it lies in the register's folder.
tl::expected<ImportSource, QString> parseList(const QString& fileName, const QByteArray& json)
{
    auto items = decodeEquipment(json);
    if (!items)
        return unreadable(items.error());
    RegisterDocument document;
    document.savedEquipment = std::move(*items);
    return ImportSource{fileName, std::move(document)};
}

/// Without the byte order mark that some editors put before a text.
QByteArray withoutMark(const QByteArray& bytes)
{
    static const QByteArray mark("\xEF\xBB\xBF");
    return bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
}

/// A NUL for a file of blanks.
char firstCharacter(const QByteArray& bytes)
{
    const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    const auto first = std::ranges::find_if_not(bytes, isBlank);
    return first == bytes.end() ? '\0' : *first;
}

} // namespace

tl::expected<ImportSource, QString> readImport(const QString& path)
{
    const auto bytes = RegularFile::beginning(path, largestImport + 1);
    if (!bytes)
        return tl::unexpected(u"Il file «%1» non si può leggere: %2."_s.arg(path, bytes.error().reason));
    if (bytes->size() > largestImport)
        return tl::unexpected(u"Il file è troppo grande: più di %1 MB."_s.arg(largestImport / 1024 / 1024));
    return parseImport(QFileInfo(path).fileName(), *bytes);
}

tl::expected<ImportSource, QString> parseImport(const QString& fileName, const QByteArray& bytes)
{
    const QByteArray text = withoutMark(bytes);
    if (const char first = firstCharacter(text); first == '{' || first == '[')
        return first == '{' ? parseRegister(fileName, text) : parseList(fileName, text);
    return decodeText(bytes).and_then([&fileName](const DecodedText& table) { return parseTable(fileName, table); });
}

} // namespace abissora
