// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>

namespace abissora {

/// Shows an icon at a fixed size, asking it anew at every paint, so that it follows the scheme and the screen.
class IconView : public QWidget
{
    Q_OBJECT

public:
    explicit IconView(const QIcon& icon = {}, int side = 16, QWidget* parent = nullptr);

    void setIcon(const QIcon& icon);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    int m_side;
};

} // namespace abissora
