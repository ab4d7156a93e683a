// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace abissora {

/// Scrolls what stands on it from top to bottom and shows the ground of what it stands on: no frame, no background, no
/// stop for the keyboard. Its widget() is there from the start and wants a layout.
class ScrollPane : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollPane(QWidget* parent = nullptr)
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
};

} // namespace abissora
