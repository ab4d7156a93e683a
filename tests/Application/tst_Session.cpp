// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EquipmentFormView.h"
#include "EquipmentTableView.h"
#include "FileSizeLimit.h"
#include "Generations.h"
#include "Gui.h"
#include "MainWindow.h"
#include "MarevoloApp.h"
#include "ScriptedHttpClient.h"
#include "Session.h"
#include "StateContent.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QApplication>
#include <QCoroTask>
#include <QLineEdit>
#include <QTest>
#include <cerrno>

using namespace abissora;

namespace {

const Product product = Product::builtIn();

} // namespace

/// A register's work from the first look at its files to the end.
class tst_Session : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_state.emplace();
        qputenv("XDG_STATE_HOME", m_state->path().toUtf8());
        m_files.emplace();
        m_files->write(test::registerFile, encode(QList{test::equipment(1, u"Uno"_s), test::equipment(2)}).value());
        m_lock.emplace(m_files->directories.root());
    }

    void cleanup()
    {
        m_session.reset();
        m_lock.reset();
        m_files.reset();
        qunsetenv("XDG_STATE_HOME");
    }

    void aRestorationCreatesEverythingAnew()
    {
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s,
                       encode(QList{test::equipment(7, u"Di prima"_s)}).value());
        start();
        QCOMPARE(rows(), 2);
        const QPointer<MarevoloApp> before = &m_session->app();
        const EarlierState state = m_files->generations.list().constLast();
        QVERIFY(restored(state));
        QTRY_VERIFY(before.isNull());
        QCOMPARE(rows(), 1);
        QVERIFY(m_session->mainWindow().isVisible());
        QVERIFY(QGuiApplication::quitOnLastWindowClosed());
        QCOMPARE(m_files->generations.list().constFirst().occasion, Occasion::restoration);
    }

    void aRestorationCanBeCancelledWhileTheStateIsRead()
    {
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s, "[]");
        start();
        const auto progress = std::make_shared<WorkProgress>();
        auto task = m_session->app().restore(m_files->generations.list().constLast(), progress);
        progress->cancel();
        QCOMPARE(QCoro::waitFor(task).error(), IoError::fromErrno(ECANCELED));
        QVERIFY(m_files->content(test::registerFile).contains("Uno"));
        QVERIFY(m_session->mainWindow().isEnabled());
    }

    void theEndMayComeBeforeTheStateIsRead()
    {
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s, "[]");
        start();
        auto task = m_session->app().restore(m_files->generations.list().constLast(), std::make_shared<WorkProgress>());
        m_session.reset();
        QVERIFY(!QCoro::waitFor(task));
        QVERIFY(m_files->content(test::registerFile).contains("Uno"));
    }

    void nothingIsDoneToWhatIsOver()
    {
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s, "[]");
        start();
        const QPointer<MarevoloApp> before = &m_session->app();
        bool isOver = false;
        bool hasForm = false;
        QCoro::waitFor(before->restore(m_files->generations.list().constLast(), std::make_shared<WorkProgress>())
                           .then([&](const IoResult<void>& done) {
                               isOver = done && &m_session->app() == before && !m_session->mainWindow().isEnabled();
                               m_session->fulfil(Wish::NewItem);
                               hasForm = m_session->mainWindow().findChild<EquipmentFormView*>() != nullptr;
                           }));
        QVERIFY(isOver);
        QVERIFY(!hasForm);
        QTRY_VERIFY(before.isNull());
        QVERIFY(m_session->mainWindow().isEnabled());
        QCOMPARE(rows(), 0);
    }

    void whatCouldNotBeStoredBeforeDoesNotComeBackLater()
    {
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s, "[]");
        start();
        {
            const test::FileSizeLimit limit(200);
            deleteFirstItem();
            QVERIFY(restored(m_files->generations.list().constLast()));
        }
        QCOMPARE(m_files->content(test::registerFile), QByteArray("[]"));
        Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive); // before the new one stands
        QCOMPARE(m_files->content(test::registerFile), QByteArray("[]"));
    }

    void theEndMayComeWhileAStateIsRead()
    {
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s,
                       encode(QList{test::equipment(7, u"Di prima"_s)}).value());
        start();
        QVERIFY(restored(m_files->generations.list().constLast()));
        m_session.reset();
        QCOMPARE(readPresentContent(m_files->directories).equipment.records.size(), 1);
    }

    void aStateThatCannotBeRestoredChangesNothing()
    {
        m_files->write(u"backups/20260101T000000.000Z-unreadable/savedEquipment.json"_s, "rubbish");
        start();
        const QPointer<MarevoloApp> before = &m_session->app();
        QVERIFY(!restored(m_files->generations.list().constLast()));
        QCoreApplication::processEvents();
        QCOMPARE(&m_session->app(), before.data());
        QCOMPARE(rows(), 2);
    }

    void whatCannotBeStoredAtTheEndIsKeptElsewhere()
    {
        start();
        blockStoring();
        deleteFirstItem();
        QVERIFY(m_files->content(u"away/savedEquipment.json"_s).contains("Uno"));
        m_session->app().settleSaves();
        unblockStoring();
        const EarlierState kept = m_files->generations.list().value(0);
        QCOMPARE(kept.occasion, Occasion::emergency);
        QCOMPARE(readContent(kept).equipment.records.size(), 1);
    }

    void whatCanBeStoredAgainIs()
    {
        start();
        blockStoring();
        deleteFirstItem();
        unblockStoring();
        m_session->app().settleSaves();
        QCOMPARE(readPresentContent(m_files->directories).equipment.records.size(), 1);
        QVERIFY(m_files->generations.list().value(0).occasion != Occasion::emergency);
    }

    void theEndStoresWhatIsPending()
    {
        startWithSomethingPending();
        QVERIFY(QMetaObject::invokeMethod(qApp, "aboutToQuit", Qt::DirectConnection));
        QCOMPARE(readPresentContent(m_files->directories).equipment.records.size(), 1);
        QVERIFY(m_files->generations.list().value(0).occasion != Occasion::emergency);
    }

    void comingForwardStoresWhatIsPending()
    {
        startWithSomethingPending();
        Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
        QCOMPARE(readPresentContent(m_files->directories).equipment.records.size(), 1);
    }

    void aKilledProcessIsClearedUpAfter()
    {
        m_files->write(u"preferences/.abissora-0123456789abcdef.tmp"_s, "half");
        m_files->write(u"backups/.abissora-0123456789abcdef.tmp/savedEquipment.json"_s, "half");
        start();
        QVERIFY(!m_files->names(u"preferences"_s).contains(u".abissora-0123456789abcdef.tmp"_s));
        QVERIFY(!m_files->names(u"backups"_s).contains(u".abissora-0123456789abcdef.tmp"_s));
    }

    void besideAnotherProcessNothingIsWritten()
    {
        FolderLock first(m_files->directories.root());
        QCOMPARE(first.acquire(), FolderLock::Outcome::Held);
        m_files->write(u"preferences/.abissora-0123456789abcdef.tmp"_s, "of the first");
        m_session.emplace(*qApp, m_files->directories, product, m_http, *m_lock);
        m_session->showMainWindow();
        deleteFirstItem();
        QVERIFY(m_files->content(test::registerFile).contains("Uno"));
        QVERIFY(m_files->names(u"preferences"_s).contains(u".abissora-0123456789abcdef.tmp"_s));
        QVERIFY(!QFileInfo::exists(m_files->path(u"backups"_s)));
    }

    void aWishIsFulfilledAsThePersonWould()
    {
        start();
        ContentView& content = m_session->mainWindow().content();
        content.showSettings();
        m_session->fulfil(Wish::ShowDue);
        QVERIFY(!content.isShowingSettings());
        QCOMPARE(content.selectedTab(), int(ContentView::MaintenanceTab));
        m_session->fulfil(Wish::NewItem);
        test::settle();
        QVERIFY(content.showingAddSheet());
        QCOMPARE(content.selectedTab(), int(ContentView::MaintenanceTab));
    }

    void aWishDoesNotDisturbAnOpenSheet()
    {
        start();
        ContentView& content = m_session->mainWindow().content();
        m_session->fulfil(Wish::NewItem);
        test::settle();
        test::type(test::openDialog(m_session->mainWindow()), u"name"_s, u"Torcia"_s);
        m_session->fulfil(Wish::ShowDue);
        m_session->fulfil(Wish::NewItem);
        test::settle();
        QCOMPARE(content.selectedTab(), int(ContentView::ListTab));
        QCOMPARE(m_session->mainWindow().findChildren<EquipmentFormView*>().size(), 1);
        QCOMPARE(test::part<QLineEdit>(test::openDialog(m_session->mainWindow()), u"name"_s).text(), u"Torcia"_s);
    }

    void aWishDoesNotDisturbAQuestion()
    {
        start();
        table().setFocus();
        table().selectRow(0);
        QTest::keyClick(&table(), Qt::Key_Delete);
        m_session->fulfil(Wish::ShowDue);
        m_session->fulfil(Wish::NewItem);
        test::settle();
        QCOMPARE(m_session->mainWindow().content().selectedTab(), int(ContentView::ListTab));
        QVERIFY(!m_session->mainWindow().content().showingAddSheet());
        test::press(test::openDialog(m_session->mainWindow()), u"Annulla"_s);
    }

    void oldDocumentsLeaveTheArchiveOnceTheWindowIsThere()
    {
        const QString named = u"10000000-0000-4000-8000-000000000001.pdf"_s;
        for (const QString& document : {named, u"10000000-0000-4000-8000-000000000002.pdf"_s})
            m_files->write(u"backups/documents/20200101T000000.000Z-"_s + document, "%PDF-");
        m_files->write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s, named.toUtf8());
        start();
        QTRY_COMPARE(m_files->archive.archived(), QSet{named});
    }

private:
    void start()
    {
        QCOMPARE(m_lock->acquire(), FolderLock::Outcome::Held);
        m_session.emplace(*qApp, m_files->directories, product, m_http, *m_lock);
        m_session->showMainWindow();
        QCoreApplication::processEvents();
    }

    /// Until the files are those of the state.
    [[nodiscard]] IoResult<void> restored(const EarlierState& state)
    {
        return QCoro::waitFor(m_session->app().restore(state, std::make_shared<WorkProgress>()));
    }

    [[nodiscard]] EquipmentTableView& table() { return *m_session->mainWindow().findChild<EquipmentTableView*>(); }
    [[nodiscard]] int rows()
    {
        test::settle();
        return table().model()->rowCount();
    }

    void deleteFirstItem()
    {
        test::settle();
        table().setFocus();
        table().selectRow(0);
        QTest::keyClick(&table(), Qt::Key_Delete);
        test::press(test::openDialog(m_session->mainWindow()), u"Elimina"_s);
        test::settle();
    }

    /// One of two items is deleted, and the disk, which refused that, is well again.
    void startWithSomethingPending()
    {
        start();
        blockStoring();
        deleteFirstItem();
        unblockStoring();
        QCOMPARE(readPresentContent(m_files->directories).equipment.records.size(), 2);
    }

    void blockStoring()
    {
        QVERIFY(QDir().rename(m_files->directories.preferences(), m_files->path(u"away"_s)));
        m_files->write(u"preferences"_s, "in the way");
        m_blocked = m_files->path(u"away"_s);
    }

    void unblockStoring() const
    {
        QVERIFY(QFile::remove(m_files->directories.preferences()));
        QVERIFY(QDir().rename(m_blocked, m_files->directories.preferences()));
    }

    std::optional<QTemporaryDir> m_state;
    std::optional<test::TemporaryRegister> m_files;
    std::optional<FolderLock> m_lock;
    test::ScriptedHttpClient m_http;
    std::optional<Session> m_session;
    QString m_blocked;
};

ABISSORA_TEST(tst_Session);
#include "tst_Session.moc"
