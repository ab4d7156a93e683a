// SPDX-License-Identifier: MIT
#pragma once

#include "ProgramFacts.h"
#include "ScrollPane.h"

#include <QPointer>

class QVBoxLayout;

namespace abissora {

class EquipmentTypeViewModel;
class IdGenerator;
class Opener;
class SettingsViewModel;
class SheetWindow;
class UpdateCheckerViewModel;
class UpdatesGroup;

/// The settings, in groups below one another. Every control stores its value at once.
class SettingsView : public ScrollPane
{
    Q_OBJECT

public:
    /// All that it is given must outlive it.
    SettingsView(SettingsViewModel& settings, EquipmentTypeViewModel& types, UpdateCheckerViewModel& updates,
                 const ProgramFacts& program, IdGenerator& ids, Opener& opener, QWidget* parent = nullptr);

    [[nodiscard]] bool showingTypeManagement() const;
    [[nodiscard]] bool showingHelp() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    void addGroups(QVBoxLayout* groups);
    void manageTypes();
    void showHelp();
    void offerUpdate();
    void openSheet(SheetWindow* sheet);

    SettingsViewModel& m_settings;
    EquipmentTypeViewModel& m_types;
    UpdateCheckerViewModel& m_updates;
    ProgramFacts m_program;
    IdGenerator& m_ids;
    Opener& m_opener;
    UpdatesGroup* m_updatesGroup; ///< null in a program that does not look for updates
    QPointer<SheetWindow> m_sheet;
};

} // namespace abissora
