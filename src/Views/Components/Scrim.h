// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace abissora {

/// Dims a window for as long as it exists.
class Scrim final : public QWidget
{
    Q_OBJECT

public:
    Scrim(QWidget* window, int radius);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_radius;
};

} // namespace abissora
