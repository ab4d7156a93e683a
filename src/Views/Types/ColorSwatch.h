// SPDX-License-Identifier: MIT
#pragma once

#include "AvailableColors.h"

#include <QRadioButton>

namespace abissora {

/// One of the colours of a type, named by its label.
class ColorSwatch final : public QRadioButton
{
    Q_OBJECT

public:
    explicit ColorSwatch(AvailableColors color, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    AvailableColors m_color;
};

} // namespace abissora
