// SPDX-License-Identifier: MIT
#pragma once

#include "InkLabel.h"

namespace abissora {

/// Takes the width it is given and breaks its text to it, inside words where there is no other way.
class WrapLabel : public InkLabel
{
    Q_OBJECT

public:
    WrapLabel(TextStyle style, Ink ink, const QString& text = {}, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace abissora
