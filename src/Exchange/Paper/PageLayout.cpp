// SPDX-License-Identifier: MIT
#include "PageLayout.h"

#include "Literals.h"

namespace abissora {

namespace {

constexpr double sideMargin = 480;
constexpr double topMargin = 465;
constexpr double footHeight = 460; ///< from the foot's line to the page's end
constexpr double footGap = 120;
constexpr double closingHeight = 225;
constexpr double columnGap = 90;
constexpr double pictureRoom = 480;
constexpr double leastStart = 700; ///< of what goes on over a page's end
constexpr qsizetype factsInLine = 4;
constexpr double growth = 1.8; ///< of a column that is kept whole

struct BandRow
{
    Band band;
    double above;
    double below;
};

constexpr std::array bandRows{
    BandRow{Band::Kind, 0, 25},          BandRow{Band::Title, 0, 10},        BandRow{Band::Subtitle, 0, 100},
    BandRow{Band::FactLabels, 115, 4},   BandRow{Band::FactValues, 0, 0},    BandRow{Band::NotesLabel, 110, 4},
    BandRow{Band::Notes, 0, 0},          BandRow{Band::TableTitle, 200, 60}, BandRow{Band::WithoutRows, 110, 0},
    BandRow{Band::ColumnTitles, 45, 45}, BandRow{Band::Row, 50, 52},         BandRow{Band::RowNotes, 0, 52},
};

const BandRow& rowOf(Band band)
{
    return *std::ranges::find(bandRows, band, &BandRow::band);
}

bool isInTable(Band band)
{
    return band == Band::Row || band == Band::RowNotes;
}

} // namespace

PageLayout::PageLayout(PrintedPaper paper, QSizeF size)
    : m_paper(std::move(paper))
    , m_size(size * unitsPerPoint)
{
    placeColumns();
    m_titlesHeight = height({Band::ColumnTitles});
    turnPage(false);
    QList<Strip> chain;
    for (const Strip& strip : strips()) {
        chain.append(strip);
        if (!strip.keepsNext)
            place(std::exchange(chain, {}));
    }
    if (!m_paper.rows.isEmpty())
        closeTable();
}

QRectF PageLayout::area() const
{
    return {sideMargin, topMargin, std::max(m_size.width() - 2 * sideMargin, 1.0), textEnd() - topMargin};
}

double PageLayout::footTop() const
{
    return m_size.height() - footHeight;
}

double PageLayout::textEnd() const
{
    return footTop() - footGap - closingHeight;
}

double PageLayout::above(Band band)
{
    return rowOf(band).above;
}

/// The widest column gives the room that others want.
void PageLayout::placeColumns()
{
    const qsizetype count = m_paper.columns.size();
    double shares = 0;
    qsizetype widest = 0;
    for (qsizetype column = 0; column < count; ++column) {
        shares += m_paper.columns.at(column).share;
        if (m_paper.columns.at(column).share > m_paper.columns.at(widest).share)
            widest = column;
    }
    const double room = area().width() - columnGap * static_cast<double>(count - 1);
    QList<double> widths;
    for (const PrintedColumn& column : m_paper.columns)
        widths.append(room * column.share / shares);
    for (qsizetype column = 0; column < count; ++column) {
        if (!m_paper.columns.at(column).isKeptWhole)
            continue;
        double wanted = widths.at(column);
        const double most = wanted * growth;
        for (const PrintedRow& row : m_paper.rows)
            wanted = std::max(wanted, m_ruler.width(row.cells.at(column).text, PaperStyle::StrongCell) * 1.02 + 1);
        wanted = std::min(wanted, most);
        widths[widest] -= wanted - widths.at(column);
        widths[column] = wanted;
    }
    double left = area().left();
    for (const double width : widths) {
        m_columns.append({left, width});
        left += width + columnGap;
    }
}

QList<TextBox> PageLayout::texts(Band band, qsizetype index) const
{
    const double left = area().left();
    const double width = area().width();
    const auto across = [&](const QString& text, PaperStyle style) { return QList{TextBox{text, style, left, width}}; };
    QList<TextBox> boxes;
    const auto addFacts = [&](auto textOf) {
        const double step = width / factsInLine;
        for (qsizetype i = 0; i < factsInLine && index + i < m_paper.facts.size(); ++i) {
            const auto [text, style] = textOf(m_paper.facts.at(index + i));
            boxes.append({text, style, left + step * static_cast<double>(i), step - columnGap});
        }
        return boxes;
    };
    switch (band) {
    case Band::Kind:
        return across(m_paper.kind, PaperStyle::Kind);
    case Band::Title:
        return {{m_paper.title, PaperStyle::Title, left, width - (m_paper.picture.isNull() ? 0 : pictureRoom)}};
    case Band::Subtitle:
        return {{m_paper.subtitle, PaperStyle::Subtitle, left, width - (m_paper.picture.isNull() ? 0 : pictureRoom)}};
    case Band::FactLabels:
        return addFacts([](const PrintedFact& fact) { return std::pair(fact.label, PaperStyle::Label); });
    case Band::FactValues:
        return addFacts([](const PrintedFact& fact) {
            return std::pair(fact.value, fact.isStrong ? PaperStyle::StrongValue : PaperStyle::Value);
        });
    case Band::NotesLabel:
        return across(u"Note"_s, PaperStyle::Label);
    case Band::Notes:
        return across(m_paper.notes, PaperStyle::Value);
    case Band::TableTitle:
        return across(m_paper.tableTitle, PaperStyle::Section);
    case Band::WithoutRows:
        return across(m_paper.withoutRows, PaperStyle::Value);
    case Band::ColumnTitles:
        for (qsizetype i = 0; i < m_columns.size(); ++i)
            boxes.append({m_paper.columns.at(i).title, PaperStyle::ColumnTitle, m_columns.at(i).left,
                          m_columns.at(i).width, m_paper.columns.at(i).isRightAligned});
        return boxes;
    case Band::Row:
        for (qsizetype i = 0; i < m_columns.size(); ++i) {
            const PrintedCell& cell = m_paper.rows.at(index).cells.at(i);
            boxes.append({cell.text, cell.isStrong ? PaperStyle::StrongCell : PaperStyle::Cell, m_columns.at(i).left,
                          m_columns.at(i).width, m_paper.columns.at(i).isRightAligned});
        }
        return boxes;
    case Band::RowNotes:
        const double from = m_columns.at(m_paper.notesColumn).left;
        return {{m_paper.rows.at(index).notes, PaperStyle::Cell, from, left + width - from}};
    }
    return {};
}

QList<PageLayout::Strip> PageLayout::strips() const
{
    QList<Strip> all{{Band::Kind, 0, true}, {Band::Title, 0, true}, {Band::Subtitle, 0}};
    for (qsizetype fact = 0; fact < m_paper.facts.size(); fact += factsInLine)
        all.append({{Band::FactLabels, fact, true}, {Band::FactValues, fact}});
    if (!m_paper.notes.isEmpty())
        all.append({{Band::NotesLabel, 0, true}, {Band::Notes, 0}});
    if (!m_paper.tableTitle.isEmpty())
        all.append({Band::TableTitle, 0, true});
    if (m_paper.rows.isEmpty()) {
        all.append({Band::WithoutRows, 0});
        return all;
    }
    all.append({Band::ColumnTitles, 0, true});
    for (qsizetype row = 0; row < m_paper.rows.size(); ++row) {
        const bool hasNotes = !m_paper.rows.at(row).notes.isEmpty();
        all.append({Band::Row, row, hasNotes});
        if (hasNotes)
            all.append({Band::RowNotes, row});
    }
    return all;
}

double PageLayout::height(const Strip& strip) const
{
    double highest = 0;
    for (const TextBox& box : texts(strip.band, strip.index))
        highest = std::max(highest, m_ruler.height(box));
    return rowOf(strip.band).above + highest + rowOf(strip.band).below;
}

double PageLayout::pageHeight(bool inTable) const
{
    return textEnd() - topMargin - (inTable ? m_titlesHeight : 0);
}

void PageLayout::place(const QList<Strip>& chain)
{
    QList<double> heights;
    double whole = 0;
    for (const Strip& strip : chain) {
        heights.append(height(strip));
        whole += heights.last();
    }
    const bool inTable = isInTable(chain.first().band);
    if (whole > rest() && (whole <= pageHeight(inTable) || rest() < leastStart))
        turnPage(inTable);
    for (qsizetype i = 0; i < chain.size(); ++i)
        placeAlone(chain.at(i), heights.at(i));
}

void PageLayout::placeAlone(const Strip& strip, double height)
{
    if (height > rest() && height > pageHeight(isInTable(strip.band))) {
        placeInPieces(strip);
        return;
    }
    if (height > rest())
        turnPage(isInTable(strip.band));
    append({strip.band, strip.index, m_top, height});
}

/// Between lines, as many on each page as have room.
void PageLayout::placeInPieces(const Strip& strip)
{
    std::vector<std::unique_ptr<SetText>> set;
    for (const TextBox& box : texts(strip.band, strip.index))
        set.push_back(std::make_unique<SetText>(box));
    QList<qsizetype> first(static_cast<qsizetype>(set.size()), 0);
    const double padding = rowOf(strip.band).above + rowOf(strip.band).below;
    bool isFresh = false;
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        QList<qsizetype> ends = first;
        double highest = 0;
        for (std::size_t i = 0; i < set.size(); ++i) {
            qsizetype& end = ends[static_cast<qsizetype>(i)];
            double height = 0;
            while (end < set[i]->lineCount() &&
                   (padding + height + set[i]->heightOf(end) <= rest() || (isFresh && height == 0)))
                height += set[i]->heightOf(end++);
            highest = std::max(highest, height);
            goesOn = goesOn || end < set[i]->lineCount();
        }
        if (ends != first)
            append({strip.band, strip.index, m_top, padding + highest, first, ends});
        first = ends;
        if (goesOn)
            turnPage(isInTable(strip.band));
        isFresh = true;
    }
}

void PageLayout::append(Piece piece)
{
    m_top += piece.height;
    m_pages.last().pieces.append(std::move(piece));
}

void PageLayout::turnPage(bool inTable)
{
    if (!m_pages.isEmpty() && inTable)
        closeTable();
    m_pages.append(Page());
    m_top = topMargin;
    if (inTable)
        append({Band::ColumnTitles, 0, m_top, m_titlesHeight});
}

void PageLayout::closeTable()
{
    m_pages.last().closing = m_top;
}

} // namespace abissora
