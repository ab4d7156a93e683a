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
    connect(QGuiApplication::inputMethod(), &QInputMethod::cursorRectangleChanged, this, &ScrollPane::followCursor);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, [this] { follow(QApplication::focusWidget()); });
}

ScrollPane::~ScrollPane()
{
    // The focus goes from here on, too, and nobody is left to follow it.
    qApp->disconnect(this);
    QGuiApplication::inputMethod()->disconnect(this);
}

QRect ScrollPane::placeOf(const QWidget& part) const
{
    return {part.mapTo(widget(), QPoint()), part.size()};
}

void ScrollPane::followCursor()
{
    const QWidget* const focused = QApplication::focusWidget();
    const bool isInside = focused != nullptr && widget() != nullptr && widget()->isAncestorOf(focused);
    if (!isInside || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    // A field that was moved may be on its way: layouts take several steps, and it may end where it was.
    if (placeOf(*focused) == m_place)
        follow(focused);
    else
        m_later.start(0);
}

void ScrollPane::follow(const QWidget* focused)
{
    const bool isInside = focused != nullptr && widget() != nullptr && widget()->isAncestorOf(focused);
    if (isInside && focused->isVisible() && QGuiApplication::mouseButtons() == Qt::NoButton)
        bringIntoSight(*focused);
    if (isInside)
        m_place = placeOf(*focused);
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
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QAbstractScrollArea::focusNextPrevChild(next);
}

} // namespace abissora
