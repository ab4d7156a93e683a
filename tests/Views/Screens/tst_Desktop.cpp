// SPDX-License-Identifier: MIT
#include "CoalescedUpdate.h"
#include "CommandLine.h"
#include "DesktopOpener.h"
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
        const QString command = folder.filePath(QStringLiteral("xdg-open"));
        const QString log = command + QLatin1String(".log");
        const QString end = command + QLatin1String(".end");
        QCOMPARE(::mkfifo(qPrintable(end), 0600), 0);
        QFile script(command);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" > \"$0.log\"\n" + ending + "\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folder.path().toLocal8Bit() + ':' + path);
        const QString document = folder.filePath(QStringLiteral("l'«è» $HOME\" %41.pdf"));
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
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(".*")));
        const bool opened = DesktopOpener().open(QUrl::fromLocalFile(QStringLiteral("/nowhere/a.pdf")));
        qputenv("PATH", path);
        QVERIFY(!opened);
    }

    void commandLine()
    {
        const auto parsed =
            CommandLine::parse({QStringLiteral("--data-dir"), QStringLiteral("d"), QStringLiteral("--snapshot=a.png")});
        QVERIFY(parsed.has_value());
        QCOMPARE(parsed->dataDir, QStringLiteral("d"));
        QCOMPARE(parsed->snapshot, QStringLiteral("a.png"));
        QVERIFY(!parsed->help && !parsed->version);
        QVERIFY(CommandLine::parse({QStringLiteral("-v")})->version);
        QVERIFY(CommandLine::parse({QStringLiteral("--help")})->help);
        QVERIFY(CommandLine::parse({}).has_value());
    }

    void commandLineErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("unknown") << QStringList(QStringLiteral("--colour"))
                                 << QStringLiteral("Opzione sconosciuta: «colour».");
        QTest::newRow("no value") << QStringList(QStringLiteral("--data-dir"))
                                  << QStringLiteral("A un'opzione manca il suo valore, o ne ha uno di troppo.");
        QTest::newRow("empty value") << QStringList(QStringLiteral("--data-dir="))
                                     << QStringLiteral("L'opzione «--data-dir» ha un valore vuoto.");
        QTest::newRow("stray") << QStringList(QStringLiteral("registro"))
                               << QStringLiteral("Argomento inatteso: «registro».");
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
        QVERIFY(CommandLine::versionText().startsWith(QLatin1String("Abissora ")));
    }

    void secondInstanceAsksTheFirst()
    {
        QTemporaryDir folder;
        SingleInstance first(folder.path());
        QVERIFY(first.acquire());
        QSignalSpy asked(&first, &SingleInstance::activationRequested);
        {
            SingleInstance second(folder.path() + QStringLiteral("/."));
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
        const QString file = folder.filePath(QStringLiteral("finestra.png"));
        QLabel window(QStringLiteral("Testo"));
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
        QLabel window(QStringLiteral("Testo"));
        Snapshot taker(window, folder.filePath(QStringLiteral("manca/finestra.png")));
        QSignalSpy failed(&taker, &Snapshot::failed);
        window.show();
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(!failed.first().first().toString().isEmpty());
    }
};

ABISSORA_TEST(tst_Desktop);

#include "tst_Desktop.moc"
