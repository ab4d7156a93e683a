// SPDX-License-Identifier: MIT
#include "SelectableText.h"

#include <QEvent>
#include <QWheelEvent>

namespace abissora {

SelectableText::SelectableText(QWidget* parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
}

void SelectableText::setText(const QString& text)
{
    if (text == toPlainText())
        return;
    setPlainText(text);
    fit();
}

QSize SelectableText::sizeHint() const
{
    return {QTextEdit::sizeHint().width(), height()};
}

QSize SelectableText::minimumSizeHint() const
{
    return {0, height()};
}

void SelectableText::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

void SelectableText::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    fit();
}

void SelectableText::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // it never scrolls by itself; what it stands in does
}

void SelectableText::fit()
{
    const int frame = 2 * frameWidth();
    document()->setTextWidth(viewport()->width());
    setFixedHeight(qCeil(document()->size().height()) + frame);
}

} // namespace abissora
