// SPDX-License-Identifier: MIT
#include "ScreenPage.h"

#include "Metrics.h"
#include "Painting.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int sideMargin = metrics::spaceXL + metrics::spaceXS;
constexpr int step = metrics::spaceXL * 2;

} // namespace

ScreenPage::ScreenPage(const QString& name, QWidget* parent)
    : QScrollArea(parent)
    , m_column(new QVBoxLayout)
{
    auto* content = new QWidget;
    content->setLayout(m_column);
    m_column->setContentsMargins(sideMargin, metrics::spaceS, sideMargin, sideMargin);
    m_column->setSpacing(metrics::spaceL);

    setAccessibleName(name);
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(step);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int maximum) { setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus); });
}

void ScreenPage::focusInEvent(QFocusEvent* event)
{
    QScrollArea::focusInEvent(event);
    viewport()->update();
}

void ScreenPage::focusOutEvent(QFocusEvent* event)
{
    QScrollArea::focusOutEvent(event);
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
        QScrollArea::keyPressEvent(event);
}

void ScreenPage::paintEvent(QPaintEvent* event)
{
    QScrollArea::paintEvent(event);
    QStyleOption option;
    option.initFrom(this);
    if (!showsFocusRing(option))
        return;
    QPainter painter(viewport());
    drawFocusRing(painter, viewport()->rect(), metrics::controlRadius, palette());
}

} // namespace abissora
