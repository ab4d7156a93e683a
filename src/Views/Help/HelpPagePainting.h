// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QPalette;
class QTextDocument;

namespace abissora {

/// Paints what stands behind the blocks of a page: accent bars, tinted panels, rules. In the document's coordinates.
void paintBackdrops(QPainter& painter, const QTextDocument& document, const QPalette& palette);

} // namespace abissora
