// SPDX-License-Identifier: MIT
#pragma once

#include "ColumnHeader.h"
#include "ImportDelegate.h"
#include "RowTable.h"

namespace abissora {

/// The rows of a file, to be chosen by their boxes or by Space, under what their columns are.
class ImportTable : public RowTable
{
    Q_OBJECT

public:
    /// Both must outlive it.
    ImportTable(ImportPlan& plan, const EquipmentTypeViewModel& types, QWidget* parent = nullptr);

    [[nodiscard]] ImportTableModel& importModel() { return m_model; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showColumns();
    void showChoices();
    void measureColumns();
    /// To how many pixels wide columns are cut so that all are in sight, where that can be.
    [[nodiscard]] int widestThatFits() const;
    void layOutColumns();

    ImportPlan& m_plan;
    ImportTableModel m_model;
    ImportDelegate m_delegate;
    ColumnHeader* m_header;
    QList<int> m_widths; ///< that the columns would like to have
};

} // namespace abissora
