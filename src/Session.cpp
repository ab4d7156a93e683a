// SPDX-License-Identifier: MIT
#include "Session.h"

#include "ContentView.h"
#include "MainWindow.h"
#include "MarevoloApp.h"
#include "RegisterStart.h"

#include <QApplication>

namespace abissora {

Session::Session(QApplication& application, ApplicationDirectories directories, Product product, HttpClient& http,
                 FolderLock& lock, const RegisterAhead& ahead)
    : m_application(application)
    , m_directories(std::move(directories))
    , m_product(std::move(product))
    , m_http(http)
    , m_lock(lock)
{
    clearUpAfterOthers();
    create(ahead);
}

Session::~Session() = default;

void Session::showMainWindow()
{
    m_app->showMainWindow();
}

MainWindow& Session::mainWindow()
{
    return m_app->mainWindow();
}

void Session::fulfil(Wish wish)
{
    if (QApplication::activeModalWidget() != nullptr || !mainWindow().isEnabled())
        return;
    ContentView& content = mainWindow().content();
    switch (wish) {
    case Wish::NewItem:
        content.addEquipment();
        break;
    case Wish::ShowDue:
        content.showTab(ContentView::MaintenanceTab);
        break;
    }
    showMainWindow(); // with what stands over it now
}

void Session::clearUpAfterOthers()
{
    if (!m_lock.mayWrite())
        return;
    const SystemClock clock;
    StandardOutput console;
    Generations generations(m_directories, clock, Calendar(), console, m_lock);
    clearUp(m_directories, generations);
}

void Session::create(const RegisterAhead& ahead)
{
    m_app = std::make_unique<MarevoloApp>(m_application, m_directories, m_product, m_http, m_lock, ahead);
    // Later: what asked for it is still at work.
    connect(m_app.get(), &MarevoloApp::restored, this, &Session::renew, Qt::QueuedConnection);
}

void Session::renew(const RegisterAhead& ahead)
{
    // Between two windows there is none, which is no reason to end.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    m_app->mainWindow().close(); // keeps its size for the next one
    m_app.reset();
    create(ahead);
    // No second look for a newer release.
    mainWindow().show();
    QGuiApplication::setQuitOnLastWindowClosed(true);
}

} // namespace abissora
