// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>

namespace abissora {

/// False under X11, where a translucent window shows black corners unless a compositor runs; such windows take
/// roundedRegion() as their mask instead.
[[nodiscard]] bool windowsCanBeTranslucent();

[[nodiscard]] QRegion roundedRegion(const QRect& rect, int radius);

} // namespace abissora
