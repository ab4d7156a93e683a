// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <array>

namespace abissora {

/// The colours that records and fixed tables name. What each looks like is the theme's business.
enum class NamedColor {
    blue,
    red,
    green,
    orange,
    purple,
    gray,
    cyan,
    indigo,
    pink,
    yellow,
    teal,
    mint,
    brown,
    primary,   ///< the foreground colour
    secondary, ///< the colour of secondary text
};

} // namespace abissora
