// SPDX-License-Identifier: MIT
#include "HelpPage.h"

#include "Accessibility.h"
#include "HelpPageAccessible.h"
#include "HelpPageWriter.h"
#include "HelpText.h"
#include "Literals.h"
#include "Metrics.h"
#include "Opening.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <algorithm>

namespace abissora {

namespace {

/// Longer lines are hard to read.
constexpr int widestPage = 780;
constexpr int caretWidth = 2;

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

/// What stands behind the blocks: accent bars, tinted panels, rules. In the document's coordinates.
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

} // namespace

HelpPage::HelpPage(Opener& opener, QWidget* parent)
    : QTextBrowser(parent)
{
    setObjectName(u"helpPage"_s);
    setAccessibleInterface<HelpPageAccessible>(*this);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    setCursorWidth(caretWidth);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    viewport()->setAutoFillBackground(false);
    connect(this, &QTextBrowser::anchorClicked, this,
            [this, &opener](const QUrl& url) { openPage(url, opener, *this); });
}

void HelpPage::setSection(const HelpSection& section)
{
    if (section == m_section)
        return;
    m_section = section;
    setAccessibleName(section.title);
    write();
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
    showFirstMatch();
}

void HelpPage::setSearchText(const QString& text)
{
    const QString wanted = help::withoutBlanksAndNewlines(text);
    if (wanted == m_searchText)
        return;
    m_searchText = wanted;
    markMatches();
    showFirstMatch();
}

void HelpPage::goToFirstMatch()
{
    const auto matches = extraSelections();
    QTextCursor caret(document());
    if (!matches.isEmpty())
        caret.setPosition(matches.first().cursor.selectionStart());
    setTextCursor(caret);
    ensureCursorVisible();
}

void HelpPage::bringIntoView(const QTextCursor& place)
{
    const QRect line = cursorRect(place);
    if (!viewport()->rect().contains(line))
        verticalScrollBar()->setValue(verticalScrollBar()->value() + line.center().y() - viewport()->height() / 2);
}

QVariant HelpPage::loadResource(int /*type*/, const QUrl& /*name*/)
{
    return {};
}

QMimeData* HelpPage::createMimeDataFromSelection() const
{
    static const QRegularExpression mark(u"^(•|\\d+\\.)\\t"_s, QRegularExpression::MultilineOption);
    auto copied = std::make_unique<QMimeData>();
    copied->setText(textCursor().selection().toPlainText().replace(mark, u"\\1 "_s));
    return copied.release();
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        rewrite();
}

void HelpPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        event->ignore(); // closing is for what the page stands in
    else if (event->key() == Qt::Key_Space)
        turnPage(*event);
    else
        QTextBrowser::keyPressEvent(event);
}

void HelpPage::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
        paintBackdrops(painter, *document(), palette());
    }
    QTextBrowser::paintEvent(event);
    drawFocusRing(*this);
}

void HelpPage::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    limitLines();
}

void HelpPage::scrollContentsBy(int dx, int dy)
{
    QTextBrowser::scrollContentsBy(dx, dy);
    viewport()->update(); // the focus ring does not scroll
}

void HelpPage::write()
{
    HelpPageWriter(*document(), Tokens::of(palette())).write(*m_section);
    limitLines();
    markMatches();
}

void HelpPage::markMatches()
{
    QList<ExtraSelection> marks;
    const Tokens& tokens = Tokens::of(palette());
    for (QTextCursor found(document()); !m_searchText.isEmpty();) {
        found = document()->find(m_searchText, found);
        if (found.isNull())
            break;
        QTextCharFormat look;
        look.setBackground(tokens.match);
        look.setForeground(tokens.text); // a link or a quote has an ink of its own
        marks.append({found, look});
    }
    setExtraSelections(marks);
}

void HelpPage::showFirstMatch()
{
    const auto matches = extraSelections();
    if (!matches.isEmpty())
        bringIntoView(matches.first().cursor);
}

void HelpPage::limitLines()
{
    QTextFrame* const page = document()->rootFrame();
    QTextFrameFormat format = page->frameFormat();
    const int rightMargin = std::max(help::pageMargin, viewport()->width() - widestPage + help::pageMargin);
    if (qRound(format.rightMargin()) == rightMargin)
        return;
    format.setRightMargin(rightMargin);
    page->setFrameFormat(format);
}

void HelpPage::rewrite()
{
    if (!m_section)
        return;
    const int anchor = textCursor().anchor();
    const int position = textCursor().position();
    const int scrolled = verticalScrollBar()->value();
    write();
    QTextCursor cursor(document());
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(scrolled);
}

void HelpPage::turnPage(const QKeyEvent& space)
{
    // The caret goes along, as with the keys that say so.
    const bool isBackward = space.modifiers().testFlag(Qt::ShiftModifier);
    QKeyEvent page(QEvent::KeyPress, isBackward ? Qt::Key_PageUp : Qt::Key_PageDown, Qt::NoModifier);
    QTextBrowser::keyPressEvent(&page);
}

} // namespace abissora
