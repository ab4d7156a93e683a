// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QIcon>
#include <QWidget>

namespace abissora {

/// An icon on a tint of its own colour.
class IconTile : public QWidget
{
    Q_OBJECT

public:
    enum class Shape { Round, Rounded };

    explicit IconTile(int side = 38, Shape shape = Shape::Round, QWidget* parent = nullptr);

    void setIcon(const QIcon& icon, NamedColor color);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    NamedColor m_color = NamedColor::primary;
    int m_side;
    Shape m_shape;
};

} // namespace abissora
