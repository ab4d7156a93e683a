// SPDX-License-Identifier: MIT
#include "IoChecks.h"
#include "SaveRetry.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_SaveRetry : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void afterAFailureItWaits()
    {
        test::TemporaryRegister files;
        SaveRetry retry(files.preferences, files.console);
        QVERIFY(!retry.isWaiting());
        VERIFY_OK(files.preferences.setData(registerKey, "1"));
        QVERIFY(!retry.isWaiting());
        QVERIFY(QDir(files.directories.preferences()).removeRecursively());
        fail(files);
        QVERIFY(retry.isWaiting());
        QCOMPARE(retry.delay(), SaveRetry::firstDelay);
    }

    void itWaitsLongerEachTime()
    {
        test::TemporaryRegister files;
        SaveRetry retry(files.preferences, files.console);
        fail(files);
        QList<std::chrono::milliseconds> delays;
        for (int i = 0; i < 8; ++i) {
            delays.append(retry.delay());
            lookAgain(retry);
            QVERIFY(retry.isWaiting());
        }
        using namespace std::chrono_literals;
        QCOMPARE(delays, (QList<std::chrono::milliseconds>{2s, 4s, 8s, 16s, 32s, 60s, 60s, 60s}));
        QCOMPARE(files.console.calls(), QStringList());
    }

    void whatWasStoredIsLoggedOnce()
    {
        test::TemporaryRegister files;
        SaveRetry retry(files.preferences, files.console);
        fail(files);
        lookAgain(retry);
        QVERIFY(QFile::remove(files.directories.preferences()));
        QVERIFY(retry.retry());
        QVERIFY(!retry.isWaiting());
        QVERIFY(retry.retry());
        QCOMPARE(files.console.calls(), QStringList{u"💾 Salvato dopo un errore: savedEquipment"_s});
        QCOMPARE(files.content(test::registerFile), QByteArray("1"));
    }

    void theTimerStoresIt()
    {
        test::TemporaryRegister files;
        SaveRetry retry(files.preferences, files.console);
        fail(files);
        QVERIFY(QFile::remove(files.directories.preferences()));
        lookAgain(retry);
        QVERIFY(!retry.isWaiting());
        QCOMPARE(files.content(test::registerFile), QByteArray("1"));
        // The next failure begins anew.
        QVERIFY(QFile::remove(files.path(test::registerFile)));
        QVERIFY(QDir().rmdir(files.directories.preferences()));
        fail(files);
        QCOMPARE(retry.delay(), SaveRetry::firstDelay);
    }

    void whatFailedBeforeIsMadeUpForToo()
    {
        test::TemporaryRegister files;
        fail(files);
        const SaveRetry retry(files.preferences, files.console);
        QVERIFY(retry.isWaiting());
    }

private:
    static void fail(test::TemporaryRegister& files)
    {
        files.write(u"preferences"_s, "in the way");
        VERIFY_FAILED(files.preferences.setData(registerKey, "1"), EEXIST);
    }

    /// As if its time had come.
    static void lookAgain(const SaveRetry& retry)
    {
        auto* timer = retry.findChild<QTimer*>();
        QVERIFY(timer != nullptr);
        QVERIFY(timer->isActive());
        timer->setInterval(0);
        QVERIFY(QTest::qWaitFor([&] { return !timer->isActive() || timer->interval() > 0; }));
    }
};

ABISSORA_TEST(tst_SaveRetry);
#include "tst_SaveRetry.moc"
