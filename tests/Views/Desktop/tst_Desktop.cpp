// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Literals.h"
#include "SingleInstance.h"
#include "Snapshot.h"
#include "TestRunner.h"
#include "VisibleUpdate.h"

#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

/// The small parts around the windows.
class tst_Desktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void manyRequestsOneUpdate()
    {
        int updates = 0;
        CoalescedUpdate update([&updates] { ++updates; });
        update.schedule();
        update.schedule();
        QCOMPARE(updates, 0);
        QCoreApplication::processEvents();
        QCOMPARE(updates, 1);
        update.schedule();
        QCoreApplication::processEvents();
        QCOMPARE(updates, 2);
    }

    void updateMayAskForAnother()
    {
        int updates = 0;
        CoalescedUpdate* self = nullptr;
        CoalescedUpdate update([&] {
            if (++updates < 3)
                self->schedule();
        });
        self = &update;
        update.schedule();
        QTRY_COMPARE(updates, 3);
    }

    void commandLine()
    {
        const auto parsed = CommandLine::parse({u"--data-dir"_s, u"d"_s, u"--snapshot=a.png"_s});
        QVERIFY(parsed.has_value());
        QCOMPARE(parsed->dataDir, u"d"_s);
        QCOMPARE(parsed->snapshot, u"a.png"_s);
        QVERIFY(!parsed->help && !parsed->version);
        QVERIFY(CommandLine::parse({u"-v"_s})->version);
        QVERIFY(CommandLine::parse({u"--help"_s})->help);
        QVERIFY(CommandLine::parse({}).has_value());
    }

    void commandLineErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("unknown") << QStringList(u"--colour"_s) << u"Opzione sconosciuta: «colour»."_s;
        QTest::newRow("no value") << QStringList(u"--data-dir"_s)
                                  << u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s;
        QTest::newRow("empty value") << QStringList(u"--data-dir="_s)
                                     << u"L'opzione «--data-dir» ha un valore vuoto."_s;
        QTest::newRow("stray") << QStringList(u"registro"_s) << u"Argomento inatteso: «registro»."_s;
    }

    void commandLineErrors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, sentence);
        const auto parsed = CommandLine::parse(arguments);
        QVERIFY(!parsed.has_value());
        QCOMPARE(parsed.error(), sentence);
    }

    void helpNamesEveryOption()
    {
        for (const char* option : {"--data-dir", "--snapshot", "--version", "--help", "ABISSORA_DATA_DIR"})
            QVERIFY(CommandLine::helpText().contains(QLatin1String(option)));
        QVERIFY(CommandLine::versionText().startsWith("Abissora "_L1));
    }

    void secondInstanceAsksTheFirst()
    {
        QTemporaryDir folder;
        SingleInstance first(folder.path());
        QVERIFY(first.acquire());
        QSignalSpy asked(&first, &SingleInstance::activationRequested);
        {
            SingleInstance second(folder.path() + u"/."_s);
            QVERIFY(!second.acquire());
        }
        QTRY_COMPARE(asked.size(), 1);
        QTemporaryDir elsewhere;
        SingleInstance other(elsewhere.path());
        QVERIFY(other.acquire());
    }

    void lockIsGivenBack()
    {
        QTemporaryDir folder;
        {
            SingleInstance first(folder.path());
            QVERIFY(first.acquire());
        }
        SingleInstance next(folder.path());
        QVERIFY(next.acquire());
    }

    void snapshot()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"finestra.png"_s);
        QLabel window(u"Testo"_s);
        window.resize(120, 60);
        Snapshot taker(window, file);
        QSignalSpy taken(&taker, &Snapshot::taken);
        window.show();
        QTRY_COMPARE(taken.size(), 1);
        QCOMPARE(QImage(file).size(), QSize(120, 60) * window.devicePixelRatio());
    }

    void snapshotToNowhere()
    {
        QTemporaryDir folder;
        QLabel window(u"Testo"_s);
        Snapshot taker(window, folder.filePath(u"manca/finestra.png"_s));
        QSignalSpy failed(&taker, &Snapshot::failed);
        window.show();
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(!failed.first().first().toString().isEmpty());
    }
};

ABISSORA_TEST(tst_Desktop);

#include "tst_Desktop.moc"
