// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "PageLayout.h"
#include "PaperSize.h"
#include "TestRunner.h"

#include <QRandomGenerator>

using namespace abissora;

namespace {

const QSizeF a4 = pageSize(PaperSize::A4).size(QPageSize::Point);
const QSizeF letter = pageSize(PaperSize::Letter).size(QPageSize::Point);

PrintedPaper paperOf(const QList<PrintedRow>& rows)
{
    return {.kind = u"Scheda"_s,
            .title = u"Titolo"_s,
            .subtitle = u"Sotto"_s,
            .facts = {{u"Marca"_s, u"Apeks"_s}, {u"Modello"_s, u"XTX50"_s}},
            .tableTitle = u"Cronologia"_s,
            .columns = {{.title = u"Data"_s, .share = 60, .isKeptWhole = true},
                        {.title = u"Descrizione"_s, .share = 200},
                        {.title = u"Costo"_s, .share = 50, .isRightAligned = true, .isKeptWhole = true}},
            .notesColumn = 1,
            .rows = rows,
            .withoutRows = u"Niente"_s,
            .closing = {u"Totale"_s, u"€1.00"_s, 2},
            .foot = u"Titolo"_s,
            .printedOn = u"Stampato"_s};
}

PrintedRow row(const QString& description, const QString& notes = {})
{
    return {{{u"21 ott 2026"_s}, {description}, {u"€12.50"_s}}, notes};
}

QList<PrintedRow> rows(qsizetype count)
{
    return QList<PrintedRow>(count, row(u"Revisione completa del primo e del secondo stadio con ricambi nuovi"_s));
}

QString randomText(QRandomGenerator& random)
{
    static const QStringList words{u"revisione"_s,      u"O-ring"_s,        QString(90, u'w'),
                                   u"صيانة كاملة"_s,    u"🤿🐠"_s,      u"a\nb"_s,
                                   u"日本語の説明文"_s, u"e\u0301\u0323"_s, u"supercalifragilistico"_s};
    QStringList text;
    const int longest = random.bounded(12) == 0 ? 260 : 25;
    for (int count = random.bounded(longest); count > 0; --count)
        text.append(words.at(random.bounded(words.size())));
    return text.join(u' ');
}

using Range = std::pair<qsizetype, qsizetype>;

/// The lines of one text that a piece shows.
Range linesOf(const PageLayout& layout, const PageLayout::Piece& piece, qsizetype text)
{
    const qsizetype all = SetText(layout.texts(piece.band, piece.index).at(text)).lineCount();
    return {piece.firstLines.value(text, 0), piece.endLines.value(text, all)};
}

/// The lines of every text of the paper, in the order of their pages, the repeated titles apart.
QMap<std::tuple<Band, qsizetype, qsizetype>, QList<Range>> linesByText(const PageLayout& layout)
{
    QMap<std::tuple<Band, qsizetype, qsizetype>, QList<Range>> lines;
    for (const PageLayout::Page& page : layout.pages()) {
        for (const PageLayout::Piece& piece : page.pieces) {
            for (qsizetype text = 0; text < layout.texts(piece.band, piece.index).size(); ++text) {
                const Range range = linesOf(layout, piece, text);
                if (piece.band != Band::ColumnTitles && (range.first != range.second || piece.firstLines.isEmpty()))
                    lines[{piece.band, piece.index, text}].append(range);
            }
        }
    }
    return lines;
}

void checkPlaces(const PageLayout& layout)
{
    for (const PageLayout::Page& page : layout.pages()) {
        double bottom = layout.area().top();
        for (const PageLayout::Piece& piece : page.pieces) {
            QCOMPARE(piece.top, bottom);
            bottom += piece.height;
            const QList<TextBox> boxes = layout.texts(piece.band, piece.index);
            for (qsizetype i = 0; i < boxes.size(); ++i) {
                const SetText text(boxes.at(i));
                const auto [first, end] = linesOf(layout, piece, i);
                double height = PageLayout::above(piece.band);
                for (qsizetype line = first; line < end; ++line) {
                    height += text.heightOf(line);
                    QVERIFY(text.widthOf(line) <= boxes.at(i).width);
                }
                QVERIFY(height <= piece.height);
                QVERIFY(boxes.at(i).left >= layout.area().left());
                QVERIFY(boxes.at(i).left + boxes.at(i).width <= layout.area().right() + 1);
            }
        }
        QVERIFY(bottom <= layout.textEnd());
    }
}

void checkEveryLineOnce(const PageLayout& layout)
{
    const auto lines = linesByText(layout);
    for (auto text = lines.begin(); text != lines.end(); ++text) {
        const auto& [band, index, at] = text.key();
        qsizetype next = 0;
        for (const auto& [first, end] : text.value()) {
            QCOMPARE(first, next);
            next = end;
        }
        QCOMPARE(next, SetText(layout.texts(band, index).at(at)).lineCount());
    }
    for (qsizetype row = 0; row < layout.paper().rows.size(); ++row) {
        QVERIFY(lines.contains({Band::Row, row, 0}));
        QCOMPARE(lines.contains({Band::RowNotes, row, 0}), !layout.paper().rows.at(row).notes.isEmpty());
    }
}

/// Only what is higher than a page is cut.
void checkCuts(const PageLayout& layout)
{
    QMap<std::pair<Band, qsizetype>, double> heights;
    QMap<std::pair<Band, qsizetype>, int> pieces;
    for (const PageLayout::Page& page : layout.pages()) {
        for (const PageLayout::Piece& piece : page.pieces) {
            heights[{piece.band, piece.index}] += piece.height;
            ++pieces[{piece.band, piece.index}];
        }
    }
    const double titles = heights[{Band::ColumnTitles, 0}] / std::max(pieces[{Band::ColumnTitles, 0}], 1);
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece) {
        if (piece.key().first == Band::Row && piece.value() > 1)
            QVERIFY(heights.value(piece.key()) > layout.area().height() - titles);
    }
}

} // namespace

class tst_PageLayout : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowStandsOnce_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 30; ++seed)
            QTest::addRow("%d", seed) << seed;
    }

    void everyRowStandsOnce()
    {
        QFETCH(int, seed);
        QRandomGenerator random(static_cast<quint32>(seed));
        QList<PrintedRow> all;
        for (int count = random.bounded(30); count > 0; --count)
            all.append(row(randomText(random), random.bounded(3) == 0 ? randomText(random) : QString()));
        PrintedPaper paper = paperOf(all);
        paper.title = randomText(random);
        paper.notes = randomText(random);
        paper.facts[0].value = randomText(random);
        const PageLayout layout(paper, seed % 2 == 0 ? a4 : letter);
        checkPlaces(layout);
        checkEveryLineOnce(layout);
        checkCuts(layout);
    }

    void titlesStandOverTheRowsOfEveryPage()
    {
        const PageLayout layout(paperOf(rows(100)), a4);
        QVERIFY(layout.pages().size() > 2);
        for (const PageLayout::Page& page : layout.pages()) {
            const auto titles = std::ranges::find(page.pieces, Band::ColumnTitles, &PageLayout::Piece::band);
            QVERIFY(titles != page.pieces.end());
            QCOMPARE((titles + 1)->band, Band::Row);
            QVERIFY(page.closing.has_value());
            QCOMPARE(*page.closing, page.pieces.last().top + page.pieces.last().height);
        }
        QCOMPARE(layout.pages().at(1).pieces.first().band, Band::ColumnTitles);
    }

    void pagesAreFilled()
    {
        const PageLayout layout(paperOf(rows(100)), letter);
        for (qsizetype page = 0; page + 1 < layout.pages().size(); ++page) {
            const PageLayout::Piece& last = layout.pages().at(page).pieces.last();
            QVERIFY(last.top + 2 * last.height > layout.textEnd());
        }
    }

    void titlesOfATableAreNotLeftAlone()
    {
        for (int lines = 1; lines < 70; ++lines) {
            PrintedPaper paper = paperOf(rows(3));
            paper.notes = QStringList(lines, u"riga"_s).join(u'\n');
            const PageLayout layout(paper, a4);
            for (const PageLayout::Page& page : layout.pages()) {
                if (!page.pieces.isEmpty())
                    QVERIFY(page.pieces.last().band != Band::TableTitle &&
                            page.pieces.last().band != Band::ColumnTitles);
            }
        }
    }

    void withoutRowsThereIsASentence()
    {
        const PageLayout layout(paperOf({}), a4);
        QCOMPARE(layout.pages().size(), 1);
        QCOMPARE(layout.pages().first().pieces.last().band, Band::WithoutRows);
        QVERIFY(!layout.pages().first().closing);
    }

    void amountsStayInOnePiece()
    {
        PrintedPaper paper = paperOf(rows(2));
        paper.rows[1].cells[2].text = u"€1234567.50"_s;
        const PageLayout layout(paper, a4);
        for (const qsizetype at : {0, 1})
            QCOMPARE(SetText(layout.texts(Band::Row, at).at(2)).lineCount(), 1);
        paper.rows[1].cells[2].text = u"€"_s + QString(300, u'9');
        QVERIFY(PageLayout(paper, a4).columns().at(1).width > 1000);
    }

    void theQuickRulerMeasuresWhatIsSet()
    {
        const TextRuler ruler;
        QRandomGenerator random(7);
        for (int i = 0; i < 500; ++i) {
            const TextBox box{randomText(random).left(60), PaperStyle::Cell, 0, 300.0 + random.bounded(1500)};
            QCOMPARE(ruler.height(box), SetText(box).height());
        }
    }
};

ABISSORA_TEST(tst_PageLayout);
#include "tst_PageLayout.moc"
