// SPDX-License-Identifier: MIT
#include "InkLabel.h"

#include <QEvent>
#include <QScopedValueRollback>

namespace abissora {

InkLabel::InkLabel(TextStyle style, Ink ink, const QString& text, QWidget* parent)
    : QLabel(text, parent)
    , m_style(style)
    , m_ink(ink)
{
    setTextFormat(Qt::PlainText);
    dress();
}

void InkLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    const bool affects = event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationFontChange;
    if (affects && !m_dressing)
        dress();
}

void InkLabel::dress()
{
    const QScopedValueRollback dressing(m_dressing, true);
    setFont(abissora::font(m_style));
    QPalette own;
    own.setColor(QPalette::WindowText, Tokens::of(palette()).*m_ink);
    setPalette(own);
}

} // namespace abissora
