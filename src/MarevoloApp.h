// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "ApplicationDirectories.h"
#include "CopyActions.h"
#include "DayWatch.h"
#include "DesktopFilePanel.h"
#include "DesktopOpener.h"
#include "DesktopProgressPanel.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "ExchangeActions.h"
#include "Generations.h"
#include "LookedAtStates.h"
#include "MaintenanceDocumentStore.h"
#include "RegisterAhead.h"
#include "SaveRetry.h"
#include "ScreenFactory.h"
#include "SettingsViewModel.h"
#include "SymbolIcon.h"
#include "ThreadedWork.h"
#include "UpdateCheckerViewModel.h"

class QApplication;

namespace abissora {

class AppWindows;
class EquipmentDetail;
class MainWindow;

/// The entry: the only place that creates services and state objects, in the order in which the program starts, and
/// that knows which screen works with which of them.
class MarevoloApp : public QObject, private ScreenFactory
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it, except the directories, the product and what was read ahead.
    /// Loads the register and the types.
    MarevoloApp(QApplication& application, const ApplicationDirectories& directories, const Product& product,
                HttpClient& http, WritePermission& permission, const RegisterAhead& ahead = {});
    ~MarevoloApp() override;

    /// Shows the main window at the first call, which begins the check for updates if the person wants one at start,
    /// and brings it forward at every other, with the sheet over it.
    void showMainWindow();
    /// Created at the first call.
    [[nodiscard]] MainWindow& mainWindow();

    /// Puts an earlier state in the place of the present one, unless this is cancelled while the state is read. What
    /// this object holds is then of no more use: see restored().
    [[nodiscard]] QCoro::Task<IoResult<void>> restore(EarlierState state, std::shared_ptr<WorkProgress> progress);
    /// Stores what could not be stored so far, or else keeps it outside the register's folder.
    void settleSaves();

Q_SIGNALS:
    /// The check at start found a newer release.
    void updateOffered(const abissora::UpdateInfo& update);
    /// The files are those of an earlier state, which has been read: this object must be created anew out of it.
    void restored(const abissora::RegisterAhead& ahead);

private:
    QCoro::Task<> checkForUpdatesAtStart();
    QCoro::Task<> readAnew();
    QCoro::Task<> purgeArchive();
    void comeForward();
    [[nodiscard]] IoResult<void> restoreCopy(const UnpackedArchive& copy, const RestorableFiles& files,
                                             WritePermission& permission);
    [[nodiscard]] std::unique_ptr<EquipmentDetail> detail(const Equipment& equipment);
    void applyScheme();

    SidebarView* makeSidebar() override;
    EquipmentListView* makeList() override;
    EquipmentDetailView* makeDetail(const Equipment& equipment) override;
    QWidget* makeOverview() override;
    QWidget* makeStatistics() override;
    QWidget* makeSettings() override;
    EquipmentFormView* makeFormForNew(const std::optional<Equipment>& like, QWidget* over) override;
    EditEquipmentView* makeFormFor(const Equipment& equipment, QWidget* over) override;
    ViewSheet* makePrint(const std::optional<Equipment>& item, QWidget* over) override;
    ViewSheet* makeRestore(QWidget* over) override;
    bool hasStateToLookAt() const override;

    QApplication& m_application;
    ApplicationDirectories m_directories;
    Product m_product;
    SystemClock m_clock;
    Calendar m_calendar;
    Almanac m_almanac;
    RandomIdGenerator m_ids;
    StandardOutput m_console;
    ResourceSymbolLibrary m_symbols;
    DesktopFilePanel m_filePanel;
    DesktopOpener m_opener;
    DesktopProgressPanel m_progressPanel;
    ThreadedWork m_work{m_progressPanel};
    Generations m_generations;
    PreferencesStore m_preferences;
    DocumentArchive m_archive;
    MaintenanceDocumentStore m_documents;
    EquipmentViewModel m_equipment;
    SettingsViewModel m_settings;
    EquipmentTypeViewModel m_types;
    BuiltInPackageInformation m_package;
    AppInfo m_info;
    UpdateChecker m_checker;
    UpdateCheckerViewModel m_updates;
    DayWatch m_dayWatch;
    SaveRetry m_saveRetry;
    LookedAtStates m_lookedAt;
    ExchangeActions m_exchange;
    CopyActions m_copies;
    std::unique_ptr<MainWindow> m_mainWindow;
    std::unique_ptr<AppWindows> m_windows;
    bool m_hasStarted = false;
};

} // namespace abissora
