// SPDX-License-Identifier: MIT
#include "ScreenPage.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int sideMargin = metrics::spaceXL + metrics::spaceXS;
constexpr int step = metrics::spaceXL * 2;

} // namespace

ScreenPage::ScreenPage(const QString& name, QWidget* parent)
    : ScrollPane(parent)
    , m_column(new QVBoxLayout(widget()))
{
    setAccessibleRole(*this, QAccessible::Pane);
    m_column->setContentsMargins(sideMargin, metrics::spaceS, sideMargin, sideMargin);
    m_column->setSpacing(metrics::spaceL);

    setAccessibleName(name);
    verticalScrollBar()->setSingleStep(step);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int maximum) { setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus); });
}

void ScreenPage::focusInEvent(QFocusEvent* event)
{
    ScrollPane::focusInEvent(event);
    viewport()->update();
}

void ScreenPage::focusOutEvent(QFocusEvent* event)
{
    ScrollPane::focusOutEvent(event);
    viewport()->update();
}

void ScreenPage::keyPressEvent(QKeyEvent* event)
{
    QScrollBar* const bar = verticalScrollBar();
    if (event->key() == Qt::Key_Home)
        bar->setValue(bar->minimum());
    else if (event->key() == Qt::Key_End)
        bar->setValue(bar->maximum());
    else
        ScrollPane::keyPressEvent(event);
}

void ScreenPage::paintEvent(QPaintEvent* event)
{
    ScrollPane::paintEvent(event);
    drawFocusRing(*this, metrics::controlRadius);
}

} // namespace abissora
