// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"

#include <QHeaderView>

namespace abissora {

/// What the file calls each column, with room above it for what the column is: see ColumnBar.
class ColumnHeader : public QHeaderView
{
    Q_OBJECT

public:
    static constexpr int air = 8;     ///< above the pickers and below the headings
    static constexpr int between = 4; ///< columns, and a picker and its heading

    explicit ColumnHeader(QWidget* parent = nullptr);

    /// The model shows the plan.
    void showColumns(const ImportPlan& plan);

    [[nodiscard]] QSize sizeHint() const override;
    /// Room for what the column is, with a picker where the file has it, and for the file's heading.
    [[nodiscard]] int columnWidth(int section) const;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    QStringList m_headings;
    qsizetype m_columnsOfFile = 0;
};

} // namespace abissora
