// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>
#include <QTimer>

namespace abissora {

/// Scrolls what stands on it from top to bottom and shows the ground of what it stands on: no frame, no background, no
/// stop for the keyboard. Its widget() is there from the start and wants a layout.
///
/// What has the focus is in sight: the whole of it where there is room, else the line of its cursor, also while the
/// cursor moves on. A click moves nothing under the mouse.
class ScrollPane : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollPane(QWidget* parent = nullptr);
    ~ScrollPane() override;
    Q_DISABLE_COPY_MOVE(ScrollPane)

    /// With a distance to the edges where there is room for it.
    void bringIntoSight(const QWidget& part);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void follow(const QWidget* focused);
    void followCursor();
    [[nodiscard]] QRect placeOf(const QWidget& part) const;

    QRect m_place; ///< of what has the focus, on widget()
    QTimer m_later;
};

} // namespace abissora
