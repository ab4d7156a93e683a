// SPDX-License-Identifier: MIT
#include "MarevoloApp.h"

#include "MainWindow.h"
#include "Theme.h"

#include <QApplication>

namespace abissora {

MarevoloApp::MarevoloApp(QApplication& application, const ApplicationDirectories& directories)
    : m_application(application)
    , m_directories(directories)
    , m_preferences(directories.preferences(), directories.backups(), m_clock)
    , m_documents(directories.maintenanceDocuments(), m_filePanel, m_ids, m_console)
    , m_equipment(StorageManager(m_preferences, m_console, m_clock, m_calendar, m_ids), m_documents, m_console, m_clock,
                  m_calendar)
    , m_settings(m_preferences, m_console)
    , m_types(m_preferences, m_symbols, m_console, m_ids)
{
    QApplication::setWindowIcon(applicationIcon());
    applyScheme();
    connect(&m_settings, &SettingsViewModel::darkModeChanged, this, &MarevoloApp::applyScheme);
}

MarevoloApp::~MarevoloApp() = default;

void MarevoloApp::showMainWindow()
{
    MainWindow& window = mainWindow();
    if (!window.isVisible()) {
        window.show();
        return;
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

MainWindow& MarevoloApp::mainWindow()
{
    if (!m_mainWindow) {
        const AppContext context{
            m_equipment, m_types,     m_settings, m_console,  m_clock,
            m_ids,       m_documents, m_opener,   m_calendar, DateFormat(DateFormat::userLocale(), m_calendar)};
        m_mainWindow = std::make_unique<MainWindow>(context, m_directories.windowStateFile());
    }
    return *m_mainWindow;
}

void MarevoloApp::applyScheme()
{
    applyTheme(m_application, m_settings.darkMode() ? Scheme::Dark : Scheme::Light);
}

} // namespace abissora
