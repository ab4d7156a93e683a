// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace abissora {

/// A count in white on the fill of danger; hidden while there is nothing to count.
class Badge : public QLabel
{
    Q_OBJECT

public:
    explicit Badge(QWidget* parent = nullptr);

    void setCount(qsizetype count);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace abissora
