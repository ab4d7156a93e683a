// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace abissora {

/// What is printed is black on white, whichever scheme the program has.
struct PaperTokens
{
    QColor ground{255, 255, 255};
    QColor ink{17, 17, 17};
    QColor secondary{85, 85, 85};
    QColor line{200, 200, 200};
    QColor edge{120, 128, 136}; ///< around a page on the screen
};

} // namespace abissora
