// SPDX-License-Identifier: MIT
#include "ImportSource.h"

#include "ImportFields.h"
#include "Literals.h"
#include "RecordJson.h"
#include "RegularFile.h"
#include "TextDecoding.h"

#include <QFileInfo>

namespace abissora {

namespace {

/// "sep=;" in the first line, by which some spreadsheets are told.
std::optional<QChar> announcedSeparator(const QString& text)
{
    const QString first = text.left(8).section(u'\n', 0, 0).trimmed();
    return first.size() == 5 && first.startsWith("sep="_L1, Qt::CaseInsensitive) ? std::optional(first.at(4))
                                                                                 : std::nullopt;
}

/// The beginning of a long text: enough to tell what separates its cells.
QString sample(const QString& text)
{
    constexpr qsizetype enough = 20'000;
    if (text.size() <= enough)
        return text;
    const qsizetype end = text.lastIndexOf(u'\n', enough);
    return text.left(end > 0 ? end : enough);
}

/// How well the text is a table with this separator: headings that are known, then columns that all rows have.
std::pair<qsizetype, qsizetype> fitness(const QString& text, QChar separator)
{
    // Quotes that do not end because the text was cut are no matter here.
    const auto rows = csv::read(text, separator);
    if (!rows || rows->isEmpty())
        return {0, 0};
    const QStringList headings = rows->first().cells;
    const auto known = [&headings](ImportSubject subject) {
        const QList<ImportField> fields = fieldsOf(headings, subject);
        return fields.size() - fields.count(ImportField::None);
    };
    const auto isWhole = [&headings](const csv::Row& row) { return row.cells.size() == headings.size(); };
    const qsizetype whole = headings.size() > 1 ? std::ranges::count_if(*rows, isWhole) * headings.size() : 0;
    return {std::max(known(ImportSubject::Items), known(ImportSubject::Records)), whole};
}

QChar separatorOf(const QString& text)
{
    const QString beginning = sample(text);
    QChar best = u';';
    std::pair<qsizetype, qsizetype> bestFitness{0, 0};
    for (const QChar candidate : {u';', u',', u'\t', u'|'}) {
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
        text.remove(0, text.indexOf(u'=') + 2);
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

tl::expected<ImportSource, QString> parseRegister(const QString& fileName, const QByteArray& json)
{
    auto document = decodeRegisterDocument(json);
    if (!document)
        return tl::unexpected(
            u"Il file non è un registro che si possa leggere: %1."_s.arg(document.error().description()));
    if (document->format != RegisterDocument::formatName)
        return tl::unexpected(u"Il file non è un registro di Abissora."_s);
    if (document->version > RegisterDocument::currentVersion)
        return tl::unexpected(
            u"Il registro è stato scritto da una versione più recente di Abissora (%1)."_s.arg(document->program));
    return ImportSource{fileName, std::move(*document)};
}

/// The list as it lies in the register's folder.
tl::expected<ImportSource, QString> parseList(const QString& fileName, const QByteArray& json)
{
    auto items = decodeEquipment(json);
    if (!items)
        return tl::unexpected(
            u"Il file non è un registro che si possa leggere: %1."_s.arg(items.error().description()));
    RegisterDocument document;
    document.savedEquipment = std::move(*items);
    return ImportSource{fileName, std::move(document)};
}

} // namespace

tl::expected<ImportSource, QString> readImport(const QString& path)
{
    const QFileInfo file(path);
    if (file.size() > largestImport)
        return tl::unexpected(u"Il file è troppo grande: più di %1 MB."_s.arg(largestImport / 1024 / 1024));
    const auto bytes = RegularFile::beginning(path, largestImport);
    if (!bytes)
        return tl::unexpected(u"Il file «%1» non si può leggere: %2."_s.arg(path, bytes.error().reason));
    return parseImport(file.fileName(), *bytes);
}

tl::expected<ImportSource, QString> parseImport(const QString& fileName, const QByteArray& bytes)
{
    const QByteArray beginning = bytes.left(64).trimmed();
    if (beginning.startsWith('{'))
        return parseRegister(fileName, bytes);
    if (beginning.startsWith('['))
        return parseList(fileName, bytes);
    return decodeText(bytes).and_then([&fileName](const DecodedText& text) { return parseTable(fileName, text); });
}

} // namespace abissora
