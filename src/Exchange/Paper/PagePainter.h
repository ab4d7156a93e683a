// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QColor>
#include <QList>
#include <functional>

class QPainter;
class QRectF;
class QIODevice;

namespace abissora {

class PageLayout;
class WorkProgress;

/// What is drawn on paper with.
struct PaperInk
{
    QColor text;
    QColor secondary;
    QColor line;
};

namespace PagePainter {

/// Draws a page into the target, as large as that is, on the painter's own ground.
void paint(QPainter& painter, const QRectF& target, const PageLayout& layout, qsizetype page, const PaperInk& ink);

/// "Pagina 1 di 2"
[[nodiscard]] QString numberText(const PageLayout& layout, qsizetype page);

/// All papers one after the other, each with its own numbers, as a PDF with its fonts. Ends early with an error when it
/// is cancelled or when the device takes no more.
[[nodiscard]] IoResult<void> writePdf(QIODevice& device, const QList<PageLayout>& layouts, const PaperInk& ink,
                                      WorkProgress& progress);

} // namespace PagePainter

} // namespace abissora
