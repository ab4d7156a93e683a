// SPDX-License-Identifier: MIT
#pragma once

#include "PaperText.h"
#include "PrintedPaper.h"

#include <QRectF>
#include <QSizeF>

namespace abissora {

/// Strips of a paper, from one side to the other. Several follow one another in the order in which they stand here.
enum class Band {
    Kind,
    Title,
    Subtitle,
    FactLabels,
    FactValues,
    NotesLabel,
    Notes,
    TableTitle,
    WithoutRows,
    ColumnTitles,
    Row,
    RowNotes,
};

/// Where everything of a paper stands, on every page. Lengths are units as unitsPerPoint says, from the page's upper
/// left corner. Needs fonts, but neither a device nor the thread of the user interface.
class PageLayout
{
public:
    /// A band on a page, or those of its lines that have room there.
    struct Piece
    {
        Band band{};
        qsizetype index = 0; ///< of the row, or of the line of facts
        double top = 0;
        double height = 0;
        QList<qsizetype> firstLines = {}; ///< of each text; empty for the beginning
        QList<qsizetype> endLines = {};   ///< behind the last one of each text; empty for all
    };
    struct Page
    {
        QList<Piece> pieces;
        std::optional<double> closing; ///< where the table ends
    };
    /// Left and right end of a column's texts.
    struct Place
    {
        double left = 0;
        double width = 0;
    };

    /// `size` in points.
    PageLayout(PrintedPaper paper, QSizeF size);

    [[nodiscard]] const PrintedPaper& paper() const { return m_paper; }
    [[nodiscard]] QSizeF pageSize() const { return m_size; }
    /// Within the margins.
    [[nodiscard]] QRectF area() const;
    [[nodiscard]] double footTop() const;
    /// What stands above it belongs to the page's texts, below are the closing line and the foot.
    [[nodiscard]] double textEnd() const;
    [[nodiscard]] const QList<Page>& pages() const { return m_pages; }
    [[nodiscard]] const QList<Place>& columns() const { return m_columns; }

    /// The texts of a band, each in its column.
    [[nodiscard]] QList<TextBox> texts(Band band, qsizetype index) const;
    /// Room above the texts of a band.
    [[nodiscard]] static double above(Band band);

private:
    struct Strip
    {
        Band band{};
        qsizetype index = 0;
        bool keepsNext = false;
    };

    void placeColumns();
    [[nodiscard]] QList<Strip> strips() const;
    [[nodiscard]] double height(const Strip& strip) const;
    void place(const QList<Strip>& chain);
    void placeAlone(const Strip& strip, double height);
    void placeInPieces(const Strip& strip);
    void append(Piece piece);
    void turnPage(bool inTable);
    void closeTable();
    [[nodiscard]] double pageHeight(bool inTable) const;
    [[nodiscard]] double rest() const { return textEnd() - m_top; }

    PrintedPaper m_paper;
    QSizeF m_size;
    TextRuler m_ruler;
    QList<Place> m_columns;
    double m_titlesHeight = 0;
    double m_top = 0; ///< of what comes next
    QList<Page> m_pages;
};

} // namespace abissora
