// SPDX-License-Identifier: MIT
#include "HelpPage.h"

#include "HelpPagePainting.h"
#include "HelpPageWriter.h"
#include "Literals.h"
#include "Opening.h"
#include "Painting.h"
#include "Tokens.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyleOption>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <algorithm>

namespace abissora {

namespace {

/// Longer lines are hard to read.
constexpr int widestPage = 780;

} // namespace

HelpPage::HelpPage(Opener& opener, QWidget* parent)
    : QTextBrowser(parent)
{
    setObjectName(u"helpPage"_s);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
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
    else if (!scrollBy(*event))
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
    QStyleOption option;
    option.initFrom(this);
    if (showsFocusRing(option)) {
        QPainter painter(viewport());
        drawFocusRing(painter, viewport()->rect(), 0, palette());
    }
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

bool HelpPage::scrollBy(const QKeyEvent& event)
{
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isBackward = event.modifiers() == Qt::ShiftModifier && event.key() == Qt::Key_Space;
    if (!isPlain && !isBackward)
        return false;
    QScrollBar& bar = *verticalScrollBar();
    switch (event.key()) {
    case Qt::Key_Up:
        bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
        return true;
    case Qt::Key_Down:
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return true;
    case Qt::Key_PageUp:
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
        return true;
    case Qt::Key_PageDown:
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        return true;
    case Qt::Key_Space:
        bar.triggerAction(isBackward ? QAbstractSlider::SliderPageStepSub : QAbstractSlider::SliderPageStepAdd);
        return true;
    case Qt::Key_Home:
        bar.triggerAction(QAbstractSlider::SliderToMinimum);
        return true;
    case Qt::Key_End:
        bar.triggerAction(QAbstractSlider::SliderToMaximum);
        return true;
    default:
        return false;
    }
}

} // namespace abissora
