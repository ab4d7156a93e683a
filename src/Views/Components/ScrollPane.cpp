// SPDX-License-Identifier: MIT
#include "ScrollPane.h"

namespace abissora {

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
}

} // namespace abissora
