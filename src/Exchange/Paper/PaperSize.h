// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QPageSize>

namespace abissora {

/// What people have in their printers.
enum class PaperSize { A4, Letter };

[[nodiscard]] inline QPageSize pageSize(PaperSize size)
{
    return QPageSize(size == PaperSize::A4 ? QPageSize::A4 : QPageSize::Letter);
}

/// The usual one where the locale is at home.
[[nodiscard]] inline PaperSize usualPaperSize(const QLocale& locale)
{
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? PaperSize::Letter : PaperSize::A4;
}

} // namespace abissora
