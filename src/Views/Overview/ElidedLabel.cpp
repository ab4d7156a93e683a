// SPDX-License-Identifier: MIT
#include "ElidedLabel.h"

#include "Literals.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace abissora {

ElidedLabel::ElidedLabel(TextStyle style, Ink ink, QWidget* parent)
    : InkLabel(style, ink, {}, parent)
{}

QString ElidedLabel::line() const
{
    return text().replace(u'\n', u' ');
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(line()) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()};
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool fits = sizeHint().width() <= width();
        // Plain text whatever it looks like: a tool tip would take "<b>" for markup.
        const QString tip = fits ? QString() : u"<p>%1</p>"_s.arg(text().toHtmlEscaped());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
        return true;
    }
    return InkLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(line(), Qt::ElideRight, width()));
}

} // namespace abissora
