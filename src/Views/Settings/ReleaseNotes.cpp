// SPDX-License-Identifier: MIT
#include "ReleaseNotes.h"

#include "Painting.h"

#include <QPainter>
#include <QStyleOption>
#include <QTextBlock>
#include <QTextLayout>

namespace abissora {

namespace {

constexpr int fewestLines = 3;
constexpr int mostLines = 12;
constexpr int longestMeasured = 4'000; ///< characters of a paragraph; more fill the lines anyway
constexpr int widthInCharacters = 60;

} // namespace

ReleaseNotes::ReleaseNotes(const QString& text, QWidget* parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setPlainText(text);
}

QSize ReleaseNotes::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * widthInCharacters;
    return {width, heightForWidth(width)};
}

QSize ReleaseNotes::minimumSizeHint() const
{
    const int lines = fewestLines * fontMetrics().lineSpacing();
    return {fontMetrics().averageCharWidth() * 20, lines + qCeil(2 * document()->documentMargin())};
}

int ReleaseNotes::heightForWidth(int width) const
{
    qreal height = 0;
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid() && lines < mostLines; block = block.next()) {
        QTextLayout layout(block.text().left(longestMeasured), font());
        QTextOption option;
        option.setWrapMode(wordWrapMode());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid() && lines < mostLines; line = layout.createLine()) {
            line.setLineWidth(width - 2 * document()->documentMargin());
            height += line.height();
            ++lines;
        }
        layout.endLayout();
    }
    return std::max(minimumSizeHint().height(), qCeil(height + 2 * document()->documentMargin()) + 1);
}

void ReleaseNotes::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    QStyleOption option;
    option.initFrom(this);
    if (showsFocusRing(option)) {
        QPainter painter(viewport());
        drawFocusRing(painter, viewport()->rect(), 0, palette());
    }
}

} // namespace abissora
