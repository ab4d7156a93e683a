// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

class QProgressBar;

namespace abissora {

/// What is being done and how far it is. Rejected by "Annulla" and by Escape.
class ProgressSheet final : public SheetWindow
{
    Q_OBJECT

public:
    ProgressSheet(const QString& title, QWidget* parent);

    /// From 0 to 1.
    void setFraction(double fraction);

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    QProgressBar* m_bar;
};

} // namespace abissora
