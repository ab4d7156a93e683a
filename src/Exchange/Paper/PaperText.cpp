// SPDX-License-Identifier: MIT
#include "PaperText.h"

#include "Literals.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QRawFont>
#include <cmath>
#include <numeric>

namespace abissora {

namespace {

struct StyleRow
{
    PaperStyle style;
    int size;
    QFont::Weight weight;
    double lineHeight;
    bool isSecondary;
};

constexpr std::array styleRows{
    StyleRow{PaperStyle::Kind, 75, QFont::Normal, 100, true},
    StyleRow{PaperStyle::Title, 195, QFont::Bold, 240, false},
    StyleRow{PaperStyle::Subtitle, 105, QFont::Normal, 135, true},
    StyleRow{PaperStyle::Label, 72, QFont::Normal, 92, true},
    StyleRow{PaperStyle::Value, 95, QFont::Normal, 122, false},
    StyleRow{PaperStyle::StrongValue, 95, QFont::DemiBold, 122, false},
    StyleRow{PaperStyle::Section, 110, QFont::DemiBold, 140, false},
    StyleRow{PaperStyle::ColumnTitle, 72, QFont::DemiBold, 92, false},
    StyleRow{PaperStyle::Cell, 80, QFont::Normal, 105, false},
    StyleRow{PaperStyle::StrongCell, 80, QFont::DemiBold, 105, false},
    StyleRow{PaperStyle::Foot, 72, QFont::Normal, 92, true},
};

const StyleRow& rowOf(PaperStyle style)
{
    return *std::ranges::find(styleRows, style, &StyleRow::style);
}

QStringList families()
{
    // Named, as a text in two scripts must not depend on what the system would look for first.
    static const QStringList all{u"Inter"_s, QGuiApplication::font().family(), u"Noto Color Emoji"_s};
    return all;
}

constexpr QChar lineBreak = QChar::LineSeparator;

/// Line ends of every kind as one; other control characters draw nothing.
QString withLineBreaks(QString text)
{
    text.replace(u"\r\n"_s, QString(lineBreak));
    for (QChar& c : text) {
        if (c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(QChar::ParagraphSeparator))
            c = lineBreak;
        else if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text.normalized(QString::NormalizationForm_C);
}

/// Latin, Greek and Cyrillic letters, figures, punctuation and signs, each a character of its own.
bool needsNoShaping(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) {
        return c < QChar(0x0300) || (c >= QChar(0x0370) && c < QChar(0x0530)) ||
               (c >= QChar(0x2010) && c < QChar(0x2300));
    });
}

/// A glyph that stands for another one, as a higher hyphen between figures, would be lost to whoever reads the text out
/// of a PDF.
QFont fontFor(const QString& text, PaperStyle style)
{
    QFont font = paperFont(style);
    if (needsNoShaping(text))
        font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

bool hasColors(const QRawFont& font)
{
    return std::ranges::any_of(std::array{"CBDT", "sbix", "COLR"},
                               [&font](const char* table) { return !font.fontTable(table).isEmpty(); });
}

/// Glyphs that are pictures: a PDF takes over their letters, but draws nothing for them.
void drawColoredGlyphs(QPainter& painter, const QTextLine& line, const QPointF& place)
{
    for (const QGlyphRun& run : line.glyphRuns()) {
        if (!hasColors(run.rawFont()))
            continue;
        const QRectF bounds = run.boundingRect();
        QImage image(bounds.size().toSize() + QSize(2, 2), QImage::Format_ARGB32_Premultiplied);
        if (image.isNull())
            continue;
        image.fill(Qt::transparent);
        {
            QPainter onImage(&image);
            onImage.drawGlyphRun(-bounds.topLeft(), run);
        }
        painter.drawImage(place + bounds.topLeft(), image);
    }
}

bool drawsColoredGlyphs(const QPainter& painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster;
}

} // namespace

bool isSecondary(PaperStyle style)
{
    return rowOf(style).isSecondary;
}

QFont paperFont(PaperStyle style)
{
    QFont font(families());
    font.setPixelSize(rowOf(style).size);
    font.setWeight(rowOf(style).weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double lineHeight(PaperStyle style)
{
    return rowOf(style).lineHeight;
}

SetText::SetText(const TextBox& box)
    : m_layout(withLineBreaks(box.text), fontFor(withLineBreaks(box.text), box.style))
    , m_left(box.left)
{
    QTextOption option(Qt::AlignAbsolute | (box.isRightAligned ? Qt::AlignRight : Qt::AlignLeft));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    m_layout.setTextOption(option);
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(box.width);
        const double height = std::max(lineHeight(box.style), std::ceil(line.height()));
        line.setPosition(QPointF(0, (height - line.height()) / 2));
        m_heights.append(height);
    }
    m_layout.endLayout();
}

double SetText::height() const
{
    return std::accumulate(m_heights.begin(), m_heights.end(), 0.0);
}

double SetText::widthOf(qsizetype line) const
{
    return m_layout.lineAt(static_cast<int>(line)).naturalTextWidth();
}

void SetText::draw(QPainter& painter, double top, qsizetype first, qsizetype end) const
{
    for (qsizetype at = first; at < end; ++at) {
        const QTextLine line = m_layout.lineAt(static_cast<int>(at));
        line.draw(&painter, QPointF(m_left, top));
        if (!drawsColoredGlyphs(painter))
            drawColoredGlyphs(painter, line, QPointF(m_left, top));
        top += m_heights.at(at);
    }
}

TextRuler::TextRuler()
{
    for (const StyleRow& row : styleRows) {
        const QFontMetricsF metrics(paperFont(row.style));
        Advances advances;
        for (std::size_t c = u' '; c < advances.widths.size(); ++c)
            advances.widths.at(c) = metrics.horizontalAdvance(QChar(static_cast<char16_t>(c)));
        m_advances.insert(row.style, advances);
    }
}

std::optional<double> TextRuler::sum(const QString& text, PaperStyle style) const
{
    const auto advances = m_advances.constFind(style);
    double width = 0;
    for (const QChar c : text) {
        if (c < u' ' || c.unicode() >= advances->widths.size() || c == QChar(QChar::SoftHyphen))
            return std::nullopt;
        width += advances->widths.at(c.unicode());
    }
    return width;
}

double TextRuler::width(const QString& text, PaperStyle style) const
{
    const std::optional<double> quick = sum(text, style);
    return quick ? *quick : QFontMetricsF(paperFont(style)).horizontalAdvance(text);
}

double TextRuler::height(const TextBox& box) const
{
    constexpr double certain = 0.95; // whatever kerning adds
    const std::optional<double> quick = sum(box.text, box.style);
    return quick && *quick < box.width * certain ? lineHeight(box.style) : SetText(box).height();
}

} // namespace abissora
