// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "Literals.h"
#include "LocalServer.h"
#include "MainWindow.h"
#include "MarevoloApp.h"
#include "NetworkHttpClient.h"
#include "NetworkUpdates.h"
#include "ScriptedHttpClient.h"
#include "SidebarView.h"
#include "TestRunner.h"
#include "UpdateView.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

const QByteArray newer(R"({"version":"999.0","build":57,"downloadURL":"https://abissora.example/"})");
const QByteArray older = QByteArray(newer).replace("999.0", "0.0.1");

Product productAt(const QUrl& manifest)
{
    return {u"Autrice"_s, QUrl(u"https://abissora.example/"_s), manifest};
}

const Product product = productAt(QUrl(u"https://abissora.example/version.json"_s));

} // namespace

/// The whole application on a folder of its own.
class tst_CheckAtStart : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_folder.emplace();
        m_http.emplace();
    }

    void cleanup()
    {
        m_app.reset();
        m_http.reset();
    }

    void asksNobodyUntilToldTo()
    {
        start();
        m_app->showMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&m_app->mainWindow()));
        settle();
        m_app->mainWindow().close();
        m_app->showMainWindow();
        settle();
        QCOMPARE(m_http->requested(), QList<QUrl>());
    }

    void asksNobodyWhileOnlyDrawn()
    {
        wantCheckAtStart(true);
        start();
        m_app->mainWindow().show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_app->mainWindow()));
        settle();
        QCOMPARE(m_http->requested(), QList<QUrl>());
    }

    void asksNobodyWhereThereIsNobodyToAsk()
    {
        wantCheckAtStart(true);
        start(productAt({}));
        m_app->showMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&m_app->mainWindow()));
        settle();
        QCOMPARE(m_http->requested(), QList<QUrl>());
    }

    void thatNobodyAnswers()
    {
        NoHttpClient nobody;
        std::optional<HttpResult> answer;
        const auto ask = [&]() -> QCoro::Task<> { answer = co_await nobody.get(product.manifestURL); };
        ask();
        QVERIFY(answer && !*answer);
        QCOMPARE(answer->error().kind, HttpError::Kind::Transfer);
    }

    void theProgramsOwnManifestIsOnTheWeb()
    {
        const UpdateSource updates = networkUpdates();
        QCOMPARE(updates.manifestURL.scheme(), u"https"_s);
        QVERIFY(!updates.manifestURL.host().isEmpty());
        QVERIFY(!updates.isBusy());
        const auto ask = [&]() -> QCoro::Task<> { co_await updates.http->get(QUrl(u"http://127.0.0.1:1/"_s)); };
        ask();
        QVERIFY(updates.isBusy());
        QTRY_VERIFY(!updates.isBusy());
    }

    void asksOnceWhenTheWindowIsFirstShown()
    {
        wantCheckAtStart(true);
        start();
        QCOMPARE(m_http->requested(), QList<QUrl>());
        m_app->showMainWindow();
        QTRY_COMPARE(m_http->requested(), QList<QUrl>({product.manifestURL}));
        m_app->mainWindow().close();
        m_app->showMainWindow();
        m_app->showMainWindow();
        settle();
        QCOMPARE(m_http->requested().size(), 1);
    }

    void offersWhatItFinds()
    {
        wantCheckAtStart(true);
        start();
        QSignalSpy offered(&*m_app, &MarevoloApp::updateOffered);
        m_app->showMainWindow();
        QTRY_COMPARE(m_http->open(), 1);
        m_http->answer(200, newer);
        QCOMPARE(offered.size(), 1);
        QCOMPARE(offered.first().first().value<UpdateInfo>().id(), u"999.0-57"_s);
    }

    void oneCheckGivesOneOffer()
    {
        wantCheckAtStart(true);
        start();
        m_app->showMainWindow();
        QTRY_COMPARE(m_http->open(), 1);
        sidebar().setSelectedSidebarItem(sidebar::settings);
        settle();
        m_http->answer(200, newer);
        settle();
        QCOMPARE(offers().size(), 1);
        // Closed where it is, it comes nowhere else.
        press(*offers().constFirst()->window(), u"Più tardi"_s);
        settle();
        QCOMPARE(offers().size(), 0);
        sidebar().setSelectedSidebarItem(sidebar::all);
        sidebar().setSelectedSidebarItem(sidebar::settings);
        settle();
        QCOMPARE(offers().size(), 0);
    }

    void anotherCheckTakesTheOfferBack()
    {
        wantCheckAtStart(true);
        start();
        m_app->showMainWindow();
        QTRY_COMPARE(m_http->open(), 1);
        m_http->answer(200, newer);
        settle();
        QCOMPARE(offers().size(), 1);
        sidebar().setSelectedSidebarItem(sidebar::settings);
        settle();
        click(m_app->mainWindow(), u"checkForUpdates"_s);
        settle();
        QCOMPARE(offers().size(), 0);
        m_http->answer(200, newer);
        settle();
        QCOMPARE(offers().size(), 1);
        QVERIFY(findDialog(m_app->mainWindow()) != nullptr);
    }

    void isSilentOtherwise_data()
    {
        QTest::addColumn<HttpResult>("answer");
        QTest::newRow("older") << HttpResult(HttpResponse{200, older});
        QTest::newRow("status") << HttpResult(HttpResponse{500, newer});
        QTest::newRow("manifest") << HttpResult(HttpResponse{200, QByteArray("{}")});
        QTest::newRow("transport") << HttpResult(tl::unexpected(HttpError{}));
    }

    void isSilentOtherwise()
    {
        QFETCH(HttpResult, answer);
        wantCheckAtStart(true);
        start();
        QSignalSpy offered(&*m_app, &MarevoloApp::updateOffered);
        m_app->showMainWindow();
        QTRY_COMPARE(m_http->open(), 1);
        const auto windows = QApplication::topLevelWidgets().size();
        m_http->answer(answer);
        settle();
        QCOMPARE(offered.size(), 0);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }

    void mayEndMeanwhile_data()
    {
        QTest::addColumn<bool>("closedFirst");
        QTest::newRow("window closed") << true;
        QTest::newRow("program ended") << false;
    }

    void mayEndMeanwhile()
    {
        QFETCH(bool, closedFirst);
        wantCheckAtStart(true);
        start();
        m_app->showMainWindow();
        QTRY_COMPARE(m_http->open(), 1);
        if (closedFirst)
            m_app->mainWindow().close();
        else
            m_app.reset();
        m_http->answer(200, newer);
        settle();
    }

    void mayEndWhileTheServerHangs()
    {
        test::LocalServer server;
        server.next(test::LocalServer::hangsAfter("HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n{"));
        wantCheckAtStart(true);
        NetworkHttpClient http;
        MarevoloApp app(*qApp, directories(), productAt(server.url()), http, m_permission);
        app.showMainWindow();
        QTRY_COMPARE(server.requests().size(), 1);
    }

private:
    [[nodiscard]] ApplicationDirectories directories() const { return ApplicationDirectories(m_folder->path(), true); }

    void start(const Product& known = product) { m_app.emplace(*qApp, directories(), known, *m_http, m_permission); }

    [[nodiscard]] SidebarView& sidebar() { return part<SidebarView>(m_app->mainWindow(), u"sidebar"_s); }

    [[nodiscard]] static QList<UpdateView*> offers()
    {
        QList<UpdateView*> found;
        for (QWidget* widget : QApplication::allWidgets()) {
            if (auto* offer = qobject_cast<UpdateView*>(widget); offer != nullptr && offer->isVisible())
                found.append(offer);
        }
        return found;
    }

    void wantCheckAtStart(bool want) const
    {
        KeepNothing keeper;
        PreferencesStore preferences(directories().preferences(), keeper);
        StandardOutput console;
        SettingsViewModel(preferences, console).setCheckForUpdatesOnLaunch(want);
    }

    AlwaysPermitted m_permission;
    std::optional<QTemporaryDir> m_folder;
    std::optional<test::ScriptedHttpClient> m_http;
    std::optional<MarevoloApp> m_app;
};

ABISSORA_TEST(tst_CheckAtStart);
#include "tst_CheckAtStart.moc"
