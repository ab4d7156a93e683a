// SPDX-License-Identifier: MIT
#include "Scrim.h"

#include "Painting.h"
#include "Tokens.h"

#include <QEvent>
#include <QPainter>

namespace abissora {

Scrim::Scrim(QWidget* window, int radius)
    : QWidget(window)
    , m_radius(radius)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(window->rect());
    window->installEventFilter(this);
    raise();
    show();
}

bool Scrim::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void Scrim::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPanel(painter, rect(), m_radius, Tokens::of(palette()).scrim, {});
}

} // namespace abissora
