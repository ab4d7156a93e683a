// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "ApplicationDirectories.h"
#include "DesktopFilePanel.h"
#include "DesktopOpener.h"
#include "MaintenanceDocumentStore.h"
#include "SymbolIcon.h"

class QApplication;

namespace abissora {

class MainWindow;

/// The entry: the only place that creates services and state objects, in the order in which the program starts.
class MarevoloApp : public QObject
{
    Q_OBJECT

public:
    /// `application` must outlive it. Loads the register and the types.
    MarevoloApp(QApplication& application, const ApplicationDirectories& directories);
    ~MarevoloApp() override;

    /// Creates the main window at the first call and brings it forward at every other.
    void showMainWindow();
    [[nodiscard]] MainWindow& mainWindow();

private:
    void applyScheme();

    QApplication& m_application;
    ApplicationDirectories m_directories;
    SystemClock m_clock;
    Calendar m_calendar;
    RandomIdGenerator m_ids;
    StandardOutput m_console;
    ResourceSymbolLibrary m_symbols;
    DesktopFilePanel m_filePanel;
    DesktopOpener m_opener;
    PreferencesStore m_preferences;
    MaintenanceDocumentStore m_documents;
    EquipmentViewModel m_equipment;
    SettingsViewModel m_settings;
    EquipmentTypeViewModel m_types;
    std::unique_ptr<MainWindow> m_mainWindow;
};

} // namespace abissora
