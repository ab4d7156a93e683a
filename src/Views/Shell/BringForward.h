// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace abissora {

/// Shows a window, in the middle of another one where that is given, or brings it to the front where it stands.
void bringForward(QWidget& window, const QWidget* over = nullptr);

} // namespace abissora
