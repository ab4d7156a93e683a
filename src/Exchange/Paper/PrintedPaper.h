// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <functional>

namespace abissora {

struct PrintedCell
{
    QString text;
    bool isStrong = false;

    friend bool operator==(const PrintedCell&, const PrintedCell&) = default;
};

struct PrintedRow
{
    QList<PrintedCell> cells; ///< one for each column
    QString notes = {};       ///< below the cells; empty when there are none

    friend bool operator==(const PrintedRow&, const PrintedRow&) = default;
};

struct PrintedColumn
{
    QString title;
    double share = 1; ///< of the paper's width
    bool isRightAligned = false;
    /// Takes room from the widest column where its texts want more than its share.
    bool isKeptWhole = false;
};

/// A value under its label.
struct PrintedFact
{
    QString label;
    QString value;
    bool isStrong = false;

    friend bool operator==(const PrintedFact&, const PrintedFact&) = default;
};

/// What the line under the table says.
struct PrintedClosing
{
    QString label;
    QString value = {};
    qsizetype column = 0; ///< that the value ends with
};

/// Everything that stands on one paper of as many pages as it takes, in texts.
struct PrintedPaper
{
    QString kind; ///< above the title
    QString title;
    QString subtitle;
    QImage picture = {}; ///< at the right of the title; may be null
    QList<PrintedFact> facts = {};
    QString notes = {};
    QString tableTitle = {};
    QList<PrintedColumn> columns;
    qsizetype notesColumn = 0; ///< where the notes of rows begin
    QList<PrintedRow> rows;
    QString withoutRows; ///< in the place of the table
    PrintedClosing closing;
    QString foot;      ///< at the left of every page's foot
    QString printedOn; ///< behind the page's number: "Stampato il 21 novembre 2026 con Abissora"
};

/// A symbol's picture in a square of so many pixels.
using PictureOf = std::function<QImage(const QString& symbol, int pixels)>;

} // namespace abissora
