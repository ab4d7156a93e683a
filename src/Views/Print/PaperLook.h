// SPDX-License-Identifier: MIT
#pragma once

#include "PagePainter.h"

#include <QImage>

// What the theme gives to paper.
namespace abissora {

[[nodiscard]] PaperInk paperInk();
/// A symbol in the ink of the paper, as large as its proportions allow. On the user interface's thread only.
[[nodiscard]] QImage paperPicture(const QString& symbol, int pixels);

} // namespace abissora
