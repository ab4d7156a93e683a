// SPDX-License-Identifier: MIT
#include "CoalescedUpdate.h"
#include "CommandLine.h"
#include "DesktopOpener.h"
#include "Literals.h"
#include "SingleInstance.h"
#include "Snapshot.h"
#include "TestRunner.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

using namespace abissora;
using namespace abissora::test;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

} // namespace

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

    void openingByTheDesktopsCommand_data()
    {
        QTest::addColumn<QByteArray>("ending");
        QTest::addColumn<bool>("opens");
        QTest::newRow("opened") << QByteArray("exit 0") << true;
        QTest::newRow("no application") << QByteArray("exit 3") << false;
        QTest::newRow("killed") << QByteArray("kill -9 $$") << false;
        QTest::newRow("goes on as the application")
            << QByteArray("read line < \"$0.end\"; echo went on >> \"$0.log\"") << true;
    }

    void openingByTheDesktopsCommand()
    {
        QFETCH(QByteArray, ending);
        QFETCH(bool, opens);
        const QTemporaryDir folder;
        const QString command = folder.filePath(u"xdg-open"_s);
        const QString log = command + ".log"_L1;
        const QString end = command + ".end"_L1;
        QCOMPARE(::mkfifo(qPrintable(end), 0600), 0);
        QFile script(command);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" > \"$0.log\"\n" + ending + "\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folder.path().toLocal8Bit() + ':' + path);
        const QString document = folder.filePath(u"l'«è» $HOME\" %41.pdf"_s);
        const bool opened = DesktopOpener(std::chrono::seconds(opens ? 1 : 30)).open(QUrl::fromLocalFile(document));
        qputenv("PATH", path);
        QCOMPARE(opened, opens);
        QCOMPARE(contentOf(log), "1\n" + document.toUtf8() + '\n');
        if (!ending.startsWith("read"))
            return;
        QFile fifo(end); // the application is alive, and ends when it is told to
        QVERIFY(fifo.open(QIODevice::WriteOnly));
        fifo.close();
        QTRY_VERIFY(contentOf(log).endsWith("went on\n"));
    }

    void withoutTheCommandTheToolkitIsAsked()
    {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u".*"_s));
        const bool opened = DesktopOpener().open(QUrl::fromLocalFile(u"/nowhere/a.pdf"_s));
        qputenv("PATH", path);
        QVERIFY(!opened);
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
