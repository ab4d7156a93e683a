// SPDX-License-Identifier: MIT
#pragma once

#include "SymbolIconEngine.h"

namespace abissora {

/// The application's icon: of its drawings the one made for a size. The small ones leave details out and have their
/// edges between pixels, so they keep their own size where little room is left around them.
class ApplicationIconEngine final : public SymbolIconEngine
{
public:
    ApplicationIconEngine();

    QIconEngine* clone() const override;
    /// For window systems, which take pictures and scale them.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;

private:
    [[nodiscard]] QImage render(QSize pixels, QIcon::Mode mode) const override;
};

} // namespace abissora
