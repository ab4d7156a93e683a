// SPDX-License-Identifier: MIT
#pragma once

#include "Tokens.h"

class QApplication;

namespace abissora {

/// Dresses the application: the style and the font at the first call, the palette at every call. To switch the scheme
/// while windows are open, call it again.
void applyTheme(QApplication& application, Scheme scheme);

} // namespace abissora
