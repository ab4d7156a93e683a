// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QScrollArea;

namespace abissora {

/// Keeps a widget in sight beside content that scrolls past it: at the top of what the scroll area shows, as long as
/// the column reaches.
class StickyColumn : public QWidget
{
    Q_OBJECT

public:
    /// Takes the widget over. The column becomes part of what the area scrolls.
    StickyColumn(QWidget* content, QScrollArea& area, int width);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void place();

    QWidget* m_content;
    QScrollArea& m_area;
    int m_width;
};

} // namespace abissora
