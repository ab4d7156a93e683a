// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"
#include "LongWork.h"

#include <QWidget>

namespace abissora {

class ElidedLabel;
class EquipmentTypeViewModel;
class ImportTable;
class InkLabel;
class PlainButton;
class PrimaryButton;
class SegmentedControl;
class ViewSheet;

/// What would come of importing a file: its rows as they would be stored, each to be chosen or left out.
class ImportView : public QWidget
{
    Q_OBJECT

public:
    /// Stores what is chosen; the view closes afterwards.
    using Import = std::function<void(const ImportPlan&)>;

    /// Types and work must outlive it.
    ImportView(ImportPlan plan, const EquipmentTypeViewModel& types, LongWork& work, Import import,
               QWidget* parent = nullptr);
    ~ImportView() override;

    /// In a sheet titled "Importa" over the window of `over`.
    [[nodiscard]] static ViewSheet* makeSheet(ImportPlan plan, const EquipmentTypeViewModel& types, LongWork& work,
                                              Import import, QWidget* over);

Q_SIGNALS:
    /// The person wants no more of it, or has what she wanted.
    void closed();

private:
    [[nodiscard]] QWidget* makeFileCard();
    [[nodiscard]] QLayout* makeFooter();
    /// The rows that are on show stay there until all are read.
    QCoro::Task<> read(ImportReading reading);
    void showCounts();
    void importChosen();

    ImportPlan m_plan;
    ImportReading m_reading; ///< as the person wants it: ahead of the plan while rows are being read
    LongWork& m_work;
    std::shared_ptr<WorkProgress> m_progress; ///< of reading rows
    Import m_import;
    ElidedLabel* m_format;
    SegmentedControl* m_subject = nullptr; ///< of a table only
    QWidget* m_pane;
    ImportTable* m_table;
    InkLabel* m_summary;
    InkLabel* m_faults;
    PlainButton* m_cancel;
    PrimaryButton* m_importButton;
};

} // namespace abissora
