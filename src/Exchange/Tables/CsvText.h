// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <tl/expected.hpp>

/// Tables as text, as RFC 4180 has them: cells between separators, a row a line, quotes around cells that need them.
namespace abissora::csv {

inline constexpr qsizetype mostColumns = 200;
inline constexpr qsizetype mostRows = 200'000;
inline constexpr qsizetype mostCells = 3'000'000; ///< of all rows: what they take of the memory is bounded

struct Row
{
    int line = 0; ///< of the text, from 1, on which the row begins
    QStringList cells;

    friend bool operator==(const Row&, const Row&) = default;
};

/// "Riga 7, colonna 3: …"
[[nodiscard]] QString at(int line, qsizetype column, const QString& sentence);

/// The rows that are not empty. Lines end in CR LF, LF or CR, also mixed; blanks around a cell without quotes are no
/// part of it. The error is a sentence for the person, with its place: quotes that do not end or end before the cell, a
/// NUL, more rows or columns than anybody has.
[[nodiscard]] tl::expected<QList<Row>, QString> read(const QString& text, QChar separator);

/// The rows before the first error.
[[nodiscard]] QList<Row> readable(const QString& text, QChar separator);

/// A line with its end, CR LF. What read() makes of it are the same cells, whatever they hold but NUL, which no table
/// can hold and which is left out.
[[nodiscard]] QString line(const QStringList& cells, QChar separator);

/// A text that a spreadsheet would take for a formula, or that looks defused already, with an apostrophe before it.
[[nodiscard]] QString defused(const QString& text);
/// The text before defused() got it.
[[nodiscard]] QString restored(const QString& text);

} // namespace abissora::csv
