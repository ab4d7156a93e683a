// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"

#include <QWidget>

namespace abissora {

class ElidedLabel;
class ImportTable;
class InkLabel;
class PlainButton;
class PrimaryButton;
class ViewSheet;

/// What would come of importing a file: its rows as they would be stored, each to be chosen or left out.
class ImportView : public QWidget
{
    Q_OBJECT

public:
    /// Stores what is chosen; the view closes afterwards.
    using Import = std::function<void(const ImportPlan&)>;

    /// The types must outlive it.
    ImportView(ImportPlan plan, const EquipmentTypeViewModel& types, Import import, QWidget* parent = nullptr);

    /// In a sheet titled "Importa" over the window of `over`.
    [[nodiscard]] static ViewSheet* makeSheet(ImportPlan plan, const EquipmentTypeViewModel& types, Import import,
                                              QWidget* over);

Q_SIGNALS:
    /// The person wants no more of it, or has what she wanted.
    void closed();

private:
    [[nodiscard]] QWidget* makeFileCard();
    [[nodiscard]] QLayout* makeFooter();
    void showCounts();
    void importChosen();

    ImportPlan m_plan;
    Import m_import;
    ElidedLabel* m_format;
    QWidget* m_pane;
    ImportTable* m_table;
    InkLabel* m_summary;
    InkLabel* m_faults;
    PlainButton* m_cancel;
    PrimaryButton* m_importButton;
};

} // namespace abissora
