// SPDX-License-Identifier: MIT
#pragma once

#include "ColumnBar.h"
#include "ColumnHeader.h"
#include "ImportDelegate.h"
#include "RowTable.h"

namespace abissora {

/// The rows of a file, to be chosen by their boxes or by Space, under what their columns are.
class ImportTable : public RowTable
{
    Q_OBJECT

public:
    /// In `pane`, above whose other children stands what its columns are. Plan and types must outlive it.
    ImportTable(ImportPlan& plan, const EquipmentTypeViewModel& types, QWidget& pane);

    [[nodiscard]] ImportTableModel& importModel() { return m_model; }
    /// Once the pane is in its window, and when the plan is about another subject.
    void orderTabs() { m_bar->orderTabs(*this); }
    /// As the plan has them, whatever the person has chosen above them.
    void showColumns();

Q_SIGNALS:
    /// The person says what a column of the file is.
    void fieldChosen(qsizetype column, abissora::ImportField field);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showChoices();
    void measureColumns();
    /// To how many pixels wide columns are cut so that all are in sight, where that can be.
    [[nodiscard]] int widestThatFits() const;
    void layOutColumns();

    ImportPlan& m_plan;
    ImportTableModel m_model;
    ImportDelegate m_delegate;
    ColumnHeader* m_header;
    ColumnBar* m_bar;
    /// What a column would like to have, and what it must have for its faults to be read.
    struct Width
    {
        int wanted;
        int least;

        [[nodiscard]] int within(int most) const { return std::max(std::min(wanted, most), least); }
    };
    QList<Width> m_widths;
};

} // namespace abissora
