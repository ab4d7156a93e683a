// SPDX-License-Identifier: MIT
#include "ScrollPane.h"

#include <QApplication>
#include <QInputMethod>
#include <QScrollBar>
#include <algorithm>

namespace abissora {

namespace {

constexpr int distanceToEdge = 50;

} // namespace

ScrollPane::ScrollPane(QWidget* parent)
    : QScrollArea(parent)
{
    setWidget(new QWidget);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false); // setWidget() makes it fill
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) { follow(now); });
    // Every text field of the toolkit tells of its cursor this way, with each letter, too.
    connect(QGuiApplication::inputMethod(), &QInputMethod::cursorRectangleChanged, this,
            [this] { follow(QApplication::focusWidget()); });
}

void ScrollPane::follow(const QWidget* focused)
{
    const bool isInside = focused != nullptr && widget() != nullptr && widget()->isAncestorOf(focused);
    if (isInside && focused->isVisible() && QGuiApplication::mouseButtons() == Qt::NoButton)
        bringIntoSight(*focused);
}

void ScrollPane::bringIntoSight(const QWidget& part)
{
    const int room = viewport()->height();
    QRect place = part.rect();
    if (place.height() > room) {
        const QRect cursor = part.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        if (cursor.isValid())
            place = cursor;
    }
    place.moveTopLeft(part.mapTo(widget(), place.topLeft()));
    const int distance = std::clamp((room - place.height()) / 2, 0, distanceToEdge);
    QScrollBar& bar = *verticalScrollBar();
    // The top last, for what is too tall.
    bar.setValue(std::max(bar.value(), place.bottom() + 1 + distance - room));
    bar.setValue(std::min(bar.value(), place.top() - distance));
}

bool ScrollPane::focusNextPrevChild(bool next)
{
    // Not the toolkit's own, which is content with the cursor of a field.
    return QAbstractScrollArea::focusNextPrevChild(next);
}

} // namespace abissora
