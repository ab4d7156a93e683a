// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

class QWidget;

namespace abissora {

class EditEquipmentView;
class EquipmentDetailView;
class EquipmentFormView;
class EquipmentListView;
class SidebarView;
class ViewSheet;

/// Makes the parts of the main window with the state that each of them shows. What is made without a parent belongs to
/// the caller; it must not outlive the factory.
class ScreenFactory
{
public:
    virtual ~ScreenFactory() = default;

    [[nodiscard]] virtual SidebarView* makeSidebar() = 0;
    [[nodiscard]] virtual EquipmentListView* makeList() = 0;
    [[nodiscard]] virtual EquipmentDetailView* makeDetail(const Equipment& equipment) = 0;
    [[nodiscard]] virtual QWidget* makeOverview() = 0;
    [[nodiscard]] virtual QWidget* makeStatistics() = 0;
    [[nodiscard]] virtual QWidget* makeSettings() = 0;

    /// The forms, over a window. That for a new item is filled from another one where that is given.
    [[nodiscard]] virtual EquipmentFormView* makeFormForNew(const std::optional<Equipment>& like, QWidget* over) = 0;
    [[nodiscard]] virtual EditEquipmentView* makeFormFor(const Equipment& equipment, QWidget* over) = 0;

    /// What is printed and how, over a window; the item can be printed, too.
    [[nodiscard]] virtual ViewSheet* makePrint(const std::optional<Equipment>& item, QWidget* over) = 0;

    /// The way back to an earlier state, over a window.
    [[nodiscard]] virtual ViewSheet* makeRestore(QWidget* over) = 0;
    /// Whether a person should look there: something could not be read or stored, and nobody has looked at it.
    [[nodiscard]] virtual bool hasStateToLookAt() const = 0;
};

} // namespace abissora
