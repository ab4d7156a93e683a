// SPDX-License-Identifier: MIT
#pragma once

#include "ColumnTexts.h"

#include <array>
#include <optional>

namespace abissora {

class WordWidths;

/// The lines of a text where a column is so wide, broken between words only; what finds no room in the last one ends in
/// dots.
[[nodiscard]] QStringList cellLines(const QString& text, WordWidths& widths, int width, int mostLines);

/// How wide the columns of the register's table are. What stands in them decides, within bounds; a column that was
/// dragged stays as wide as it was left.
///
/// Where not everything has room, things give way one after the other: the air between columns goes, dates are
/// abbreviated, names take two lines, then makes and models; after that, texts end in dots down to a least width.
class TableColumns
{
public:
    static constexpr std::size_t count = EquipmentRow::ColumnCount;
    using Widths = std::array<int, count>;

    struct Layout
    {
        Widths widths{};
        bool hasWholeDates = true; ///< in the whole column, or in none of its cells
        int nameLines = 1;
    };

    /// Left and right of what stands in a cell, in pixels.
    [[nodiscard]] static int leftPadding(int column);
    static constexpr int rightPadding = 2;
    static constexpr int typeIconSize = 20;
    static constexpr int typeIconGap = 6;
    static constexpr int actionIconSize = 20;
    static constexpr int dotSize = 8;
    static constexpr int dotGap = 6;
    static constexpr int mostOwnWidth = 2000;

    /// By the texts in the application's font.
    void measure(const ColumnTexts& texts);

    /// Nothing makes it automatic again. Widths beyond reason are bounded.
    void setOwnWidth(int column, std::optional<int> width);
    [[nodiscard]] std::optional<int> ownWidth(int column) const { return m_own.at(static_cast<std::size_t>(column)); }

    /// The columns together are as wide as the viewport, wider only where the least widths are.
    [[nodiscard]] Layout layOut(int viewportWidth) const;

private:
    Widths m_airy{};    ///< with everything whole, and air
    Widths m_whole{};   ///< with abbreviated dates
    Widths m_wrapped{}; ///< with makes and models in two lines
    Widths m_least{};
    int m_wholeDate = 0;
    std::array<std::optional<int>, count> m_own{};
};

} // namespace abissora
