// SPDX-License-Identifier: MIT
#pragma once

#include "PrintedPaper.h"

#include <QPageSize>

class QPrinter;
class QWidget;

namespace abissora {

/// Paints a paper on a printer, laid out for the paper that is in it, with the pages and copies that it asks for. False
/// when the printer takes nothing.
[[nodiscard]] bool printOn(QPrinter& printer, const PrintedPaper& paper);

/// Opens the system's print dialog over a window and prints once the person says so; `done` then hears whether it went
/// well. Nothing comes of a dialog that is given up.
void openPrintDialog(const PrintedPaper& paper, const QPageSize& size, QWidget* over,
                     const std::function<void(bool)>& done);

} // namespace abissora
