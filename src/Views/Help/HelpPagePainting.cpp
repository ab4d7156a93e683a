// SPDX-License-Identifier: MIT
#include "HelpPagePainting.h"

#include "HelpPageFormat.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetrics>
#include <QPainter>
#include <QTextDocument>
#include <QTextFrame>

namespace abissora {

namespace {

using help::Backdrop;

constexpr qreal codeTint = 0.06;

void paintAccentBar(QPainter& painter, const QRectF& text, qreal left, const Tokens& tokens)
{
    const QRectF bar = onDeviceGrid(painter, QRectF(left, text.top(), help::accentBarWidth, text.height()));
    QLinearGradient gradient(bar.topLeft(), bar.bottomLeft());
    gradient.setColorAt(0, tokens.named(NamedColor::blue));
    gradient.setColorAt(1, tokens.named(NamedColor::cyan));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(bar, bar.width() / 2, bar.width() / 2);
}

void paintQuoteIcon(QPainter& painter, const QRectF& panel, const QRectF& text, const QFont& font)
{
    const int side = withText(help::quoteIconSide, QFontMetrics(font));
    const qreal firstLine = QFontMetricsF(font).height();
    const QPointF corner(panel.left() + help::quoteIconIndent, text.top() + (firstLine - side) / 2);
    symbolIcon(u"quote.opening"_s, NamedColor::blue).paint(&painter, QRect(corner.toPoint(), QSize(side, side)));
}

} // namespace

void paintBackdrops(QPainter& painter, const QTextDocument& document, const QPalette& palette)
{
    const Tokens& tokens = Tokens::of(palette);
    const QTextFrameFormat page = document.rootFrame()->frameFormat();
    const qreal left = page.leftMargin();
    const qreal width = document.textWidth() - left - page.rightMargin();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QRectF text = document.documentLayout()->blockBoundingRect(block);
        const QRectF panel(left, text.top() - help::panelPadding, width, text.height() + 2 * help::panelPadding);
        switch (help::backdropOf(block)) {
        case Backdrop::None:
            break;
        case Backdrop::AccentBar:
            paintAccentBar(painter, text, left, tokens);
            break;
        case Backdrop::QuotePanel:
            drawPanel(painter, panel, metrics::cardRadius, tokens.accentTint, {});
            paintQuoteIcon(painter, panel, text, block.charFormat().font());
            break;
        case Backdrop::CodePanel:
            drawPanel(painter, panel, metrics::cardRadius, mix(tokens.window, tokens.text, codeTint), {});
            break;
        case Backdrop::Rule:
            drawHorizontalHairline(painter, left, left + width, text.center().y(), tokens.border);
            break;
        }
    }
}

} // namespace abissora
