// SPDX-License-Identifier: MIT
#include "MarevoloApp.h"

#include "AppWindows.h"
#include "ArchiveRestoration.h"
#include "ContentView.h"
#include "EmergencyCopy.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "MainWindow.h"
#include "MaintenanceOverviewView.h"
#include "PrintView.h"
#include "PrinterOutput.h"
#include "Restoration.h"
#include "RestoreView.h"
#include "SettingsView.h"
#include "SidebarView.h"
#include "StatisticsView.h"
#include "Theme.h"
#include "ViewSheet.h"

#include <QApplication>
#include <QPointer>
#include <cerrno>

namespace abissora {

MarevoloApp::MarevoloApp(QApplication& application, const ApplicationDirectories& directories, const Product& product,
                         HttpClient& http, WritePermission& permission, const RegisterAhead& ahead)
    : m_application(application)
    , m_directories(directories)
    , m_product(product)
    , m_almanac{m_clock, m_calendar, DateFormat(DateFormat::userLocale(), m_calendar)}
    , m_generations(directories, m_clock, m_calendar, m_console, permission)
    , m_preferences(directories.preferences(), m_generations, [ahead](const QString& path) { return ahead.read(path); })
    , m_archive(directories, m_clock, permission)
    , m_documents(directories.maintenanceDocuments(), m_archive, m_filePanel, m_work, m_ids, m_console)
    , m_equipment(StorageManager(m_preferences, m_console, m_clock, m_calendar, m_ids,
                                 [ahead](const QByteArray& bytes) { return ahead.decoded(bytes); }),
                  m_documents, m_console, m_clock, m_calendar)
    , m_settings(m_preferences, m_console)
    , m_types(m_preferences, m_symbols, m_console, m_ids)
    , m_info(m_package, m_clock, m_calendar)
    , m_checker(http, m_info, m_product)
    , m_updates(m_checker, m_clock)
    , m_dayWatch(m_equipment, m_clock, m_calendar)
    , m_saveRetry(m_preferences, m_console)
    , m_lookedAt(directories.windowStateFile())
    , m_exchange({m_equipment, m_types, m_settings, m_filePanel, m_work, m_ids, m_almanac,
                  m_package.value(u"CFBundleShortVersionString"_s).toString()})
    , m_copies({m_filePanel, m_work, directories, m_almanac, [this] { settleSaves(); },
                [this, &permission](const UnpackedArchive& copy, const RestorableFiles& files) {
                    return restoreCopy(copy, files, permission);
                }})
{
    QApplication::setWindowIcon(applicationIcon());
    applyScheme();
    connect(&m_settings, &SettingsViewModel::darkModeChanged, this, &MarevoloApp::applyScheme);
    connect(&m_dayWatch, &DayWatch::dayChanged, &m_equipment, &EquipmentViewModel::refreshDates);
    connect(&application, &QApplication::applicationStateChanged, this, &MarevoloApp::comeForward);
    connect(&application, &QApplication::aboutToQuit, this, &MarevoloApp::settleSaves);
}

MarevoloApp::~MarevoloApp() = default;

void MarevoloApp::showMainWindow()
{
    MainWindow& window = mainWindow();
    if (!window.isVisible()) {
        window.show();
        // After the first paint: connecting takes its time.
        if (!std::exchange(m_hasStarted, true))
            QMetaObject::invokeMethod(this, &MarevoloApp::checkForUpdatesAtStart, Qt::QueuedConnection);
        QMetaObject::invokeMethod(this, &MarevoloApp::purgeArchive, Qt::QueuedConnection);
        return;
    }
    bringForward(window);
    // The keyboard stays with what stands over it.
    if (QWidget* sheet = QApplication::activeModalWidget(); sheet != nullptr)
        bringForward(*sheet);
}

void MarevoloApp::comeForward()
{
    m_dayWatch.check();
    m_saveRetry.retry();
}

QCoro::Task<IoResult<void>> MarevoloApp::restore(EarlierState state, std::shared_ptr<WorkProgress> progress)
{
    const QPointer<MarevoloApp> alive(this);
    const auto files = std::make_shared<RestorableFiles>();
    const LongWork::Function reading = [state, files](WorkProgress&) {
        return Restoration::read(state).map([&](const RestorableFiles& read) { *files = read; });
    };
    const auto read = co_await m_work.run(u"Ripristino…"_s, reading, progress);
    if (!read)
        co_return tl::unexpected(read.error());
    if (!alive || progress->isCancelled())
        co_return tl::unexpected(IoError::fromErrno(ECANCELED));
    settleSaves();
    co_return Restoration(m_directories, m_generations).restore(state, *files).map([this] { readAnew(); });
}

IoResult<void> MarevoloApp::restoreCopy(const UnpackedArchive& copy, const RestorableFiles& files,
                                        WritePermission& permission)
{
    settleSaves();
    return ArchiveRestoration(m_directories, m_generations, permission, m_clock.now()).restore(copy, files).map([this] {
        readAnew();
    });
}

QCoro::Task<> MarevoloApp::readAnew()
{
    // What this object holds and shows is of the past.
    m_preferences.giveUp();
    mainWindow().setEnabled(false);
    const QPointer<MarevoloApp> alive(this);
    const RegisterAhead ahead(m_directories);
    const LongWork::Function reading = [ahead](WorkProgress&) {
        ahead.wait();
        return IoResult<void>();
    };
    static_cast<void>(co_await m_work.run({}, reading, std::make_shared<WorkProgress>()));
    if (alive)
        Q_EMIT restored(ahead);
}

QCoro::Task<> MarevoloApp::purgeArchive()
{
    const auto old = std::make_shared<OldDocuments>(m_archive.oldDocuments());
    if (old->paths.isEmpty())
        co_return;
    const QPointer<MarevoloApp> alive(this);
    const auto progress = std::make_shared<WorkProgress>();
    const LongWork::Function reading = [old](WorkProgress& of) { return DocumentArchive::strikeOffNamed(*old, of); };
    const QString nothingToShow;
    const IoResult<void> read = co_await m_work.run(nothingToShow, reading, progress);
    if (alive && read && !progress->isCancelled())
        m_archive.remove(*old);
}

void MarevoloApp::settleSaves()
{
    if (m_saveRetry.retry())
        return;
    if (const auto kept = keepEmergencyCopy(m_preferences, m_directories, m_clock); kept)
        m_console.print(u"💾 Conservato altrove ciò che non si poteva salvare: "_s + *kept);
    else
        m_console.print(u"Error saving equipment: "_s + kept.error().reason);
}

QCoro::Task<> MarevoloApp::checkForUpdatesAtStart()
{
    if (!m_settings.checkForUpdatesOnLaunch() || m_product.manifestURL.isEmpty())
        co_return;
    const QPointer<MarevoloApp> alive(this);
    co_await m_updates.checkForUpdates(CheckReason::Start);
    if (alive && m_updates.availableUpdate() && m_updates.foundBy() == CheckReason::Start)
        Q_EMIT updateOffered(*m_updates.availableUpdate());
}

MainWindow& MarevoloApp::mainWindow()
{
    if (!m_mainWindow) {
        ScreenFactory& screens = *this;
        m_mainWindow = std::make_unique<MainWindow>(screens, m_equipment, m_directories.windowStateFile());
        m_windows = std::make_unique<AppWindows>(ProgramFacts{m_info, m_product}, m_opener);
        m_windows->setMainWindow(m_mainWindow.get());
        connect(m_mainWindow.get(), &MainWindow::aboutRequested, m_windows.get(), &AppWindows::openAbout);
        connect(m_mainWindow.get(), &MainWindow::helpRequested, m_windows.get(), &AppWindows::openHelp);
        connect(m_mainWindow.get(), &MainWindow::importRequested, this,
                [this] { m_exchange.importFile(m_mainWindow.get()); });
        connect(&m_mainWindow->content().list(), &EquipmentListView::tableDropped, this,
                [this](const QString& path) { m_exchange.importPath(path, m_mainWindow.get()); });
        connect(m_mainWindow.get(), &MainWindow::exportRequested, this,
                [this] { m_exchange.exportRegister(m_mainWindow.get()); });
        connect(m_mainWindow.get(), &MainWindow::copyRequested, this,
                [this] { m_copies.createCopy(m_mainWindow.get()); });
        connect(m_mainWindow.get(), &MainWindow::closed, m_windows.get(), &AppWindows::closeAll);
        connect(this, &MarevoloApp::updateOffered, m_windows.get(), &AppWindows::openUpdate);
        connect(m_windows.get(), &AppWindows::updateDismissed, &m_updates,
                &UpdateCheckerViewModel::clearAvailableUpdate);
        connect(&m_updates, &UpdateCheckerViewModel::availableUpdateChanged, m_windows.get(), [this] {
            if (!m_updates.availableUpdate())
                m_windows->closeUpdates();
        });
    }
    return *m_mainWindow;
}

std::unique_ptr<EquipmentDetail> MarevoloApp::detail(const Equipment& equipment)
{
    auto detail = std::make_unique<EquipmentDetail>(m_equipment, m_types, m_documents, m_ids, m_almanac, equipment);
    detail->setCurrencySymbol([this] { return m_settings.currencySymbol(); });
    return detail;
}

SidebarView* MarevoloApp::makeSidebar()
{
    return new SidebarView(m_equipment, m_types, m_console);
}

EquipmentListView* MarevoloApp::makeList()
{
    return new EquipmentListView(m_equipment, m_types, m_almanac, m_console, m_ids);
}

EquipmentDetailView* MarevoloApp::makeDetail(const Equipment& equipment)
{
    return new EquipmentDetailView(detail(equipment), m_opener);
}

QWidget* MarevoloApp::makeOverview()
{
    return new MaintenanceOverviewView(m_equipment, m_types, [this](const Equipment& equipment, QWidget* parent) {
        return EquipmentDetailView::makeSheet(detail(equipment), m_opener, parent);
    });
}

QWidget* MarevoloApp::makeStatistics()
{
    return new StatisticsView(m_equipment, m_types);
}

QWidget* MarevoloApp::makeSettings()
{
    return new SettingsView(m_settings, m_types, m_updates, {m_info, m_product}, m_ids, m_opener);
}

EquipmentFormView* MarevoloApp::makeFormForNew(const std::optional<Equipment>& like, QWidget* over)
{
    return new EquipmentFormView(m_equipment, m_types, m_almanac, m_ids, like, over);
}

EditEquipmentView* MarevoloApp::makeFormFor(const Equipment& equipment, QWidget* over)
{
    return new EditEquipmentView(m_equipment, m_types, m_almanac, equipment, over);
}

ViewSheet* MarevoloApp::makePrint(const std::optional<Equipment>& item, QWidget* over)
{
    return PrintView::makeSheet({m_equipment, m_types, m_almanac, m_filePanel, m_work, openPrintDialog}, item, over);
}

ViewSheet* MarevoloApp::makeRestore(QWidget* over)
{
    return RestoreView::makeSheet(
        {m_generations, m_archive, m_equipment, m_types, m_settings, m_work, m_almanac}, m_lookedAt,
        [this](const EarlierState& state, const std::shared_ptr<WorkProgress>& progress) {
            return restore(state, progress);
        },
        over, &m_copies);
}

bool MarevoloApp::hasStateToLookAt() const
{
    return abissora::hasStateToLookAt(m_generations.list(), m_lookedAt);
}

void MarevoloApp::applyScheme()
{
    applyTheme(m_application, m_settings.darkMode() ? Scheme::Dark : Scheme::Light);
}

} // namespace abissora
