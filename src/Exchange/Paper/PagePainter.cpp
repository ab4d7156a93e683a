// SPDX-License-Identifier: MIT
#include "PagePainter.h"

#include "Literals.h"
#include "PageLayout.h"
#include "WorkProgress.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <cerrno>

namespace abissora::PagePainter {

namespace {

constexpr double strongLine = 9;
constexpr double hairline = 5;
constexpr double footGap = 75;
constexpr double closingGap = 75;
constexpr double pictureSize = 320;
constexpr double pictureDrop = 35; ///< below the title's upper edge
constexpr double closingValueRoom = 900;
constexpr int pointsPerInch = 72;

/// A page in its own units.
class Page
{
public:
    Page(QPainter& painter, const PageLayout& layout, qsizetype number, const PaperInk& ink)
        : m_painter(painter)
        , m_layout(layout)
        , m_paper(layout.paper())
        , m_page(layout.pages().at(number))
        , m_number(number)
        , m_ink(ink)
        , m_area(layout.area())
    {}

    void paint()
    {
        for (const PageLayout::Piece& piece : m_page.pieces)
            paintPiece(piece);
        if (m_page.closing)
            paintClosing(*m_page.closing);
        paintFoot();
    }

private:
    void paintPiece(const PageLayout::Piece& piece)
    {
        const QList<TextBox> boxes = m_layout.texts(piece.band, piece.index);
        const double top = piece.top + PageLayout::above(piece.band);
        for (qsizetype i = 0; i < boxes.size(); ++i) {
            const SetText text(boxes.at(i));
            setPen(boxes.at(i).style);
            text.draw(m_painter, top, piece.firstLines.value(i, 0), piece.endLines.value(i, text.lineCount()));
        }
        if (piece.band == Band::Title && piece.firstLines.value(0, 0) == 0)
            paintPicture(top);
        paintLineBelow(piece);
    }

    void paintLineBelow(const PageLayout::Piece& piece)
    {
        const double bottom = piece.top + piece.height;
        if (piece.band == Band::Subtitle || piece.band == Band::ColumnTitles)
            drawLine(bottom, m_ink.text, strongLine);
        else if (piece.band == Band::RowNotes ||
                 (piece.band == Band::Row && m_paper.rows.at(piece.index).notes.isEmpty()))
            drawLine(bottom, m_ink.line, hairline);
    }

    void paintPicture(double top)
    {
        m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QRectF place(m_area.right() - pictureSize, top + pictureDrop, pictureSize, pictureSize);
        const QSize pixels = m_painter.deviceTransform().mapRect(place).size().toSize();
        // The painter itself would drop pixels of a picture that becomes much smaller, as in a preview.
        const bool shrinks = !pixels.isEmpty() && pixels.width() < m_paper.picture.width();
        m_painter.drawImage(place, shrinks
                                       ? m_paper.picture.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                                       : m_paper.picture);
    }

    void paintClosing(double top)
    {
        const auto& [label, value, column] = m_paper.closing;
        drawLine(top, m_ink.text, strongLine);
        const double textTop = top + closingGap;
        if (value.isEmpty()) {
            draw({label, PaperStyle::StrongValue, m_area.left(), m_area.width() / 2}, textTop);
        } else {
            const PageLayout::Place place = m_layout.columns().at(column);
            const double valueLeft = place.left + place.width - closingValueRoom;
            draw({label, PaperStyle::StrongValue, m_area.left(), valueLeft - m_area.left()}, textTop);
            draw({value, PaperStyle::StrongValue, valueLeft, closingValueRoom, true}, textTop);
        }
        const bool goesOn = m_number + 1 < m_layout.pages().size();
        if (goesOn) {
            const double shift = (lineHeight(PaperStyle::StrongValue) - lineHeight(PaperStyle::Foot)) / 2;
            const double left = m_area.left() + m_area.width() * 3 / 4;
            draw({u"continua a pagina %1"_s.arg(m_number + 2), PaperStyle::Foot, left, m_area.right() - left, true},
                 textTop + shift);
        }
    }

    void paintFoot()
    {
        drawLine(m_layout.footTop(), m_ink.line, hairline);
        const QFontMetricsF metrics(paperFont(PaperStyle::Foot));
        const QString right = numberText(m_layout, m_number) + u" · "_s + m_paper.printedOn;
        const double rightRoom = std::min(metrics.horizontalAdvance(right) * 1.02 + 1, m_area.width());
        const double leftRoom = std::max(m_area.width() - rightRoom - 2 * footGap, 1.0);
        const double top = m_layout.footTop() + footGap;
        const QString left = metrics.elidedText(m_paper.foot.simplified(), Qt::ElideRight, leftRoom * 0.98);
        drawFirstLine({left, PaperStyle::Foot, m_area.left(), leftRoom}, top);
        drawFirstLine({right, PaperStyle::Foot, m_area.right() - rightRoom, rightRoom, true}, top);
    }

    void draw(const TextBox& box, double top)
    {
        const SetText text(box);
        setPen(box.style);
        text.draw(m_painter, top, 0, text.lineCount());
    }

    void drawFirstLine(const TextBox& box, double top)
    {
        const SetText text(box);
        setPen(box.style);
        text.draw(m_painter, top, 0, std::min<qsizetype>(text.lineCount(), 1));
    }

    void setPen(PaperStyle style) { m_painter.setPen(isSecondary(style) ? m_ink.secondary : m_ink.text); }

    void drawLine(double y, const QColor& color, double width)
    {
        m_painter.fillRect(QRectF(m_area.left(), y - width / 2, m_area.width(), width), color);
    }

    QPainter& m_painter;
    const PageLayout& m_layout;
    const PrintedPaper& m_paper;
    const PageLayout::Page& m_page;
    qsizetype m_number;
    const PaperInk& m_ink;
    QRectF m_area;
};

QString titleOf(const QList<PageLayout>& layouts)
{
    return layouts.size() == 1 ? layouts.first().paper().title : layouts.first().paper().kind;
}

QPageSize sizeOf(const PageLayout& layout)
{
    return QPageSize(layout.pageSize() / unitsPerPoint, QPageSize::Point, {}, QPageSize::FuzzyMatch);
}

qsizetype countPages(const QList<PageLayout>& layouts)
{
    qsizetype count = 0;
    for (const PageLayout& layout : layouts)
        count += layout.pages().size();
    return count;
}

} // namespace

void paint(QPainter& painter, const QRectF& target, const PageLayout& layout, qsizetype page, const PaperInk& ink)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / layout.pageSize().width(), target.height() / layout.pageSize().height());
    Page(painter, layout, page, ink).paint();
    painter.restore();
}

QString numberText(const PageLayout& layout, qsizetype page)
{
    return u"Pagina %1 di %2"_s.arg(page + 1).arg(layout.pages().size());
}

IoResult<void> writePdf(QIODevice& device, const QList<PageLayout>& layouts, const PaperInk& ink,
                        WorkProgress& progress)
{
    // The toolkit's writer says nothing of a device that takes no more.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(titleOf(layouts));
        writer.setCreator(u"Abissora"_s);
        writer.setResolution(static_cast<int>(pointsPerInch * unitsPerPoint));
        writer.setPageMargins({});
        writer.setPageSize(sizeOf(layouts.first()));
        QPainter painter(&writer);
        qsizetype done = 0;
        for (const PageLayout& layout : layouts) {
            for (qsizetype page = 0; page < layout.pages().size(); ++page) {
                if (done++ > 0)
                    writer.newPage();
                paint(painter, QRectF(QPointF(), layout.pageSize()), layout, page, ink);
                progress.setFraction(static_cast<double>(done) / static_cast<double>(countPages(layouts)));
                if (progress.isCancelled())
                    return tl::unexpected(IoError::fromErrno(ECANCELED));
            }
        }
    }
    if (device.write(bytes) != bytes.size())
        return tl::unexpected(IoError{device.errorString()});
    return {};
}

} // namespace abissora::PagePainter
