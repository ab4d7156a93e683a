// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "ExitStatus.h"
#include "FolderLock.h"
#include "ProgramRun.h"
#include "SingleInstance.h"
#include "TestRunner.h"

#include <QImage>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

const QString noDisplay = u"Abissora non trova uno schermo su cui aprire la finestra; con «--snapshot FILE» la disegna "
                          "in un file PNG.\n"_s;
const QString hint = u" Con «--help» l'elenco delle opzioni.\n"_s;

/// Another process that is at work on the register: this one.
struct AnotherOnTheRegister
{
    explicit AnotherOnTheRegister(const QString& folder)
        : lock(folder)
        , instance(lock)
    {
        isOurs = instance.acquire() == SingleInstance::Outcome::Ours;
    }

    FolderLock lock;
    SingleInstance instance;
    bool isOurs = false;
};

} // namespace

/// From the arguments to the exit status, as whoever starts the program sees it.
class tst_Program : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void answersWithoutAScreen_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("answer");
        const QString help = CommandLine::helpText();
        const QString version = CommandLine::versionText();
        QTest::newRow("help") << QStringList{u"--help"_s} << help;
        QTest::newRow("h") << QStringList{u"-h"_s} << help;
        QTest::newRow("version") << QStringList{u"--version"_s} << version;
        QTest::newRow("v") << QStringList{u"-v"_s} << version;
        QTest::newRow("both in one") << QStringList{u"-hv"_s} << help;
        QTest::newRow("both, the other way round") << QStringList{u"-vh"_s} << help;
        QTest::newRow("whatever else is asked") << QStringList{u"--check"_s, u"--colour"_s, u"--help"_s} << help;
        QTest::newRow("beside the toolkit's own") << QStringList{u"-platform"_s, u"offscreen"_s, u"-vh"_s} << help;
    }

    void answersWithoutAScreen()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, answer);
        ProgramRun program;
        QCOMPARE(program.run(arguments), exitStatus::done);
        QCOMPARE(program.out, answer);
        QCOMPARE(program.error, QString());
    }

    void whatCannotBeUnderstoodIsAnError_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("with a window") << QStringList{u"--colour"_s} << u"Opzione sconosciuta: «colour»."_s;
        QTest::newRow("without") << QStringList{u"--check"_s, u"--colour"_s} << u"Opzione sconosciuta: «colour»."_s;
        QTest::newRow("two wishes") << QStringList{u"--show-due"_s, u"--new-item"_s}
                                    << u"Due comandi insieme non si possono eseguire."_s;
    }

    void whatCannotBeUnderstoodIsAnError()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, sentence);
        ProgramRun program;
        program.environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        QCOMPARE(program.run(arguments), exitStatus::usage);
        QCOMPARE(program.out, QString());
        QCOMPARE(program.error, sentence + hint);
        QVERIFY(QDir(program.home.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void withoutAScreenThereIsNoWindow_data()
    {
        QTest::addColumn<QStringList>("variable");
        QTest::newRow("none") << QStringList();
        QTest::newRow("nobody there") << QStringList{u"DISPLAY"_s, u":2147483"_s};
        QTest::newRow("no Wayland") << QStringList{u"WAYLAND_DISPLAY"_s, u"nowhere"_s};
        QTest::newRow("an unknown platform") << QStringList{u"QT_QPA_PLATFORM"_s, u"none-of-that-name"_s};
    }

    void withoutAScreenThereIsNoWindow()
    {
        QFETCH(const QStringList, variable);
        ProgramRun program;
        if (!variable.isEmpty())
            program.environment.insert(variable.at(0), variable.at(1));
        QCOMPARE(program.run({}), exitStatus::unavailable);
        QCOMPARE(program.out, QString());
        QVERIFY(program.error.endsWith(noDisplay)); // other libraries may have had their say on the way
        QCOMPARE(program.error.count(u"Abissora"_s), 1);
        QVERIFY(!QFileInfo::exists(program.path(u".local"_s)));
    }

    void drawsTheWindowWithoutAScreen_data()
    {
        QTest::addColumn<QStringList>("platform");
        QTest::newRow("by itself") << QStringList();
        QTest::newRow("on the toolkit's own") << QStringList{u"-platform"_s, u"offscreen"_s};
    }

    void drawsTheWindowWithoutAScreen()
    {
        QFETCH(const QStringList, platform);
        ProgramRun program;
        const QString data = program.path(u"registro"_s);
        const QString file = program.path(u"finestra.png"_s);
        QCOMPARE(program.run(platform + QStringList{u"--data-dir"_s, data, u"--snapshot"_s, file}), exitStatus::done);
        QCOMPARE(program.error, QString());
        QVERIFY(program.out.startsWith(u"📦 Caricati 3 equipaggiamenti\n"_s));
        const QImage picture(file, "PNG");
        QVERIFY(picture.width() >= 1000);
        QVERIFY(picture.height() >= 700);
        QVERIFY(QFileInfo::exists(data));
        QVERIFY(!QFileInfo::exists(program.path(u".local"_s)));
    }

    void aPictureThatCannotBeWrittenIsAnError()
    {
        ProgramRun program;
        const QString file = program.path(u"nowhere/finestra.png"_s);
        QCOMPARE(program.run({u"--data-dir"_s, program.path(u"registro"_s), u"--snapshot="_s + file}), 1);
        // The reason is the system's, in the toolkit's translation where that is installed.
        const QString beginning = u"Impossibile scrivere «%1»: "_s.arg(file);
        QVERIFY(program.error == beginning + u"File o cartella non trovati\n"_s ||
                program.error == beginning + u"No such file or directory\n"_s);
        QVERIFY(!QFileInfo::exists(program.path(u"nowhere"_s)));
    }

    void theRegisterIsWhereItIsSaidToBe_data()
    {
        QTest::addColumn<QStringList>("variable");
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("folder");
        const QStringList chosen{u"ABISSORA_DATA_DIR"_s, u"scelta"_s};
        QTest::newRow("usual") << QStringList() << QString() << u".local/share/abissora"_s;
        QTest::newRow("other data") << QStringList{u"XDG_DATA_HOME"_s, u"dati"_s} << QString() << u"dati/abissora"_s;
        QTest::newRow("variable") << chosen << QString() << u"scelta"_s;
        QTest::newRow("option") << QStringList() << u"detta"_s << u"detta"_s;
        QTest::newRow("both") << chosen << u"detta"_s << u"detta"_s;
    }

    void theRegisterIsWhereItIsSaidToBe()
    {
        QFETCH(const QStringList, variable);
        QFETCH(const QString, option);
        QFETCH(const QString, folder);
        ProgramRun program;
        if (!variable.isEmpty())
            program.environment.insert(variable.at(0), program.path(variable.at(1)));
        QStringList arguments{u"--due"_s};
        if (!option.isEmpty())
            arguments += QStringList{u"--data-dir"_s, program.path(option)};
        QCOMPARE(program.run(arguments), exitStatus::noInput);
        QCOMPARE(program.out, QString());
        QCOMPARE(program.error, u"In «%1» non c'è un registro.\n"_s.arg(program.path(folder)));
    }

    void aSecondStartMakesTheFirstComeForward_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("wish");
        QTest::addColumn<int>("status");
        QTest::newRow("alone") << QStringList() << QString() << exitStatus::done;
        QTest::newRow("for a new item") << QStringList{u"--new-item"_s} << u"new-item"_s << exitStatus::done;
        QTest::newRow("for what is due") << QStringList{u"--show-due"_s} << u"show-due"_s << exitStatus::done;
        QTest::newRow("for a picture") << QStringList{u"--snapshot"_s, u"finestra.png"_s} << QString() << 1;
    }

    void aSecondStartMakesTheFirstComeForward()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, wish);
        QFETCH(const int, status);
        ProgramRun program;
        const AnotherOnTheRegister first(program.path(u"registro"_s));
        QVERIFY(first.isOurs);
        const QSignalSpy forward(&first.instance, &SingleInstance::activationRequested);
        const QSignalSpy wished(&first.instance, &SingleInstance::wished);
        program.environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program.process.setWorkingDirectory(program.home.path());
        QCOMPARE(program.run(QStringList{u"--data-dir"_s, program.path(u"registro"_s)} + arguments), status);
        QCOMPARE(program.out, QString());
        QCOMPARE(program.error, u"Abissora è già aperta su questo registro: la sua finestra passa in primo piano.\n"_s);
        QCOMPARE(forward.size(), 1);
        QTRY_COMPARE(wished.size(), wish.isEmpty() ? 0 : 1);
        QCOMPARE(wish.isEmpty() ? QString() : wished.first().first().toString(), wish);
        QVERIFY(!QFileInfo::exists(program.path(u"finestra.png"_s)));
    }

    void aScreenThatVanishesEndsTheProgramAlone()
    {
        QProcess screen;
        screen.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s});
        QByteArray number;
        QVERIFY(QTest::qWaitFor(
            [&] {
                number += screen.readAllStandardOutput();
                return number.endsWith('\n');
            },
            60'000));
        ProgramRun program;
        program.environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(number.trimmed()));
        const QStringList place{u"--data-dir"_s, program.path(u"registro"_s)};
        program.start(place);
        // The list is drawn.
        QVERIFY(QTest::qWaitFor(
            [&program] {
                program.out += QString::fromUtf8(program.process.readAllStandardOutput());
                return program.out.contains("3 su 3"_L1);
            },
            60'000));
        screen.kill();
        QVERIFY(program.ends());
        QCOMPARE(program.process.exitCode(), 1);
        QTRY_COMPARE(screen.state(), QProcess::NotRunning);

        ProgramRun check;
        QCOMPARE(check.run(QStringList{u"--check"_s} + place), exitStatus::noInput); // the samples are not stored
        QCOMPARE(check.out, QString());
        const AnotherOnTheRegister next(program.path(u"registro"_s));
        QVERIFY(next.isOurs);
    }
};

ABISSORA_TEST(tst_Program);
#include "tst_Program.moc"
