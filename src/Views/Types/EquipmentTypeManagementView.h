// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "Sheet.h"
#include "VisibleUpdate.h"

class QStackedWidget;

namespace abissora {

class EmptyState;
class IdGenerator;
class InkLabel;
class PlainButton;
class PrimaryButton;
class SearchField;
class TypeList;

/// "Gestione Tipologie": lists the active types and offers to add, edit and delete them and to go back to the defaults.
class EquipmentTypeManagementView final : public Sheet
{
    Q_OBJECT

public:
    /// Both references must outlive it.
    EquipmentTypeManagementView(EquipmentTypeViewModel& types, IdGenerator& ids, QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* makeContent();
    void connectControls();

    void redraw();
    void openForm(const std::optional<EquipmentTypeModel>& selectedType);
    void confirmDeletion(const EquipmentTypeModel& typeToDelete);

    EquipmentTypeViewModel& m_types;
    IdGenerator& m_ids;
    CoalescedUpdate m_update;

    SearchField* m_search;
    PrimaryButton* m_add;
    TypeList* m_list;
    EmptyState* m_empty;
    QStackedWidget* m_pages;
    InkLabel* m_count;
    PlainButton* m_reset;
};

} // namespace abissora
