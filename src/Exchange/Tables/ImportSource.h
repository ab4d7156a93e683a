// SPDX-License-Identifier: MIT
#pragma once

#include "CsvText.h"
#include "RegisterDocument.h"

#include <variant>

namespace abissora {

/// A table as a spreadsheet wrote it.
struct ImportedTable
{
    QChar separator;
    QString encoding;
    csv::Row headings;
    QList<csv::Row> rows; ///< each with as many cells as there are headings
};

/// A file that may be imported, read as a whole.
struct ImportSource
{
    QString fileName; ///< without its folder
    std::variant<ImportedTable, RegisterDocument> content;
};

inline constexpr qint64 largestImport = 64LL * 1024 * 1024; ///< bytes

/// Nothing but regular files of a sensible size. The error is a sentence for the person, with row and column where it
/// has a place.
[[nodiscard]] tl::expected<ImportSource, QString> readImport(const QString& path);
/// As readImport(); what the name says plays no part.
[[nodiscard]] tl::expected<ImportSource, QString> parseImport(const QString& fileName, const QByteArray& bytes);

} // namespace abissora
