// SPDX-License-Identifier: MIT
#pragma once

#include "InkLabel.h"

namespace abissora {

/// One line that gives way: what does not fit is read in the tool tip and, in full, by screen readers.
class ElidedLabel : public InkLabel
{
    Q_OBJECT

public:
    ElidedLabel(TextStyle style, Ink ink, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString line() const;
};

} // namespace abissora
