// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace abissora {

/// The SVG at a resource path with its currentColor replaced, as large as its proportions allow in the middle of
/// `pixels`, on a transparent ground. Recent pictures are kept. Null when the file or the size is empty.
[[nodiscard]] QImage renderSymbol(const QString& path, const QColor& color, QSize pixels);

} // namespace abissora
