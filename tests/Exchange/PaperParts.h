// SPDX-License-Identifier: MIT
#pragma once

#include "PrintedPaper.h"

#include <QStringList>

namespace abissora::test {

[[nodiscard]] inline QStringList cellsOf(const PrintedRow& row)
{
    QStringList cells;
    for (const PrintedCell& cell : row.cells)
        cells.append(cell.text);
    return cells;
}

} // namespace abissora::test
