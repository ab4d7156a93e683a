// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

namespace abissora {

class PlainButton;
class PrimaryButton;
class WrapLabel;

/// Shown at a start, over no window, when another process works on the register and does not answer. Accepted by
/// "Riprova", which is the default button, rejected by "Esci" and Escape.
class NoAnswerAlert final : public SheetWindow
{
    Q_OBJECT

public:
    NoAnswerAlert();

    [[nodiscard]] static QString sentence();

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;
    /// Moves the window: it has no title bar.
    void mousePressEvent(QMouseEvent* event) override;

private:
    PrimaryButton* m_again;
};

} // namespace abissora
