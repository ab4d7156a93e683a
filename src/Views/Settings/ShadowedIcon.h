// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>

namespace abissora {

/// The application's icon on a soft shadow, drawn anew at the device's own pixels.
class ShadowedIcon : public QWidget
{
    Q_OBJECT

public:
    explicit ShadowedIcon(int side, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    int m_side;
};

} // namespace abissora
