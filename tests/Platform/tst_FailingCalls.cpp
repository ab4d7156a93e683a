// SPDX-License-Identifier: MIT
#include "FailingCalls.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace abissora;

/// The failing calls themselves, in another program that is preloaded with them.
class tst_FailingCalls : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_folder.emplace();
        QVERIFY(m_folder->isValid() && QDir(m_folder->path()).mkpath(u"register"_s) &&
                QDir(m_folder->path()).mkdir(u"x"_s));
    }

    void changesAreNumbered()
    {
        run({});
        QCOMPARE(m_status, 0);
        QCOMPARE(log(), QByteArray("1 create R/a\n2 write R/a\n3 mkdir R/c\n4 rename R/c/b\n"));
    }

    void whatAPlanNamesFails_data()
    {
        QTest::addColumn<QByteArray>("plan");
        QTest::addColumn<QByteArray>("complaint");
        QTest::newRow("by name") << QByteArray("mkdir@1=EACCES") << QByteArray("Permission denied");
        QTest::newRow("by number") << QByteArray("change@3=EROFS") << QByteArray("Read-only file system");
        QTest::newRow("from a number on") << QByteArray("change@2+=ENOSPC") << QByteArray("No space left on device");
    }

    void whatAPlanNamesFails()
    {
        QFETCH(QByteArray, plan);
        QFETCH(QByteArray, complaint);
        run(plan);
        QVERIFY(m_status != 0);
        QVERIFY2(m_complaints.contains(complaint), m_complaints.constData());
        QVERIFY(!QFile::exists(m_folder->filePath(u"register/c/b"_s)));
        QVERIFY(QFile::exists(m_folder->filePath(u"elsewhere"_s)));
    }

    void aProcessIsKilledBeforeOrAfterACall_data()
    {
        QTest::addColumn<QByteArray>("plan");
        QTest::addColumn<bool>("isMade");
        QTest::newRow("before") << QByteArray("change@3=kill-before") << false;
        QTest::newRow("after") << QByteArray("change@3=kill-after") << true;
    }

    void aProcessIsKilledBeforeOrAfterACall()
    {
        QFETCH(QByteArray, plan);
        QFETCH(bool, isMade);
        run(plan);
        QCOMPARE(m_status, SIGKILL);
        QCOMPARE(QFile::exists(m_folder->filePath(u"register/c"_s)), isMade);
    }

    void whatIsNoPlanEndsTheProgram_data()
    {
        QTest::addColumn<QByteArray>("plan");
        for (const char* plan : {"write", "write@1", "write=EIO", "write@0=EIO", "write@x=EIO", "write@1=EWHAT", "@"})
            QTest::newRow(plan) << QByteArray(plan);
    }

    void whatIsNoPlanEndsTheProgram()
    {
        QFETCH(QByteArray, plan);
        run(plan);
        QCOMPARE(m_status, 125);
        QVERIFY2(m_complaints.contains(QByteArray("is not understood: " + plan)), m_complaints.constData());
    }

private:
    /// Runs as a program of its own, which changes something elsewhere and four things in the folder under watch.
    void run(const QByteArray& plan)
    {
        constexpr auto script = "import os, sys\n"
                                "os.close(os.open('elsewhere', os.O_WRONLY | os.O_CREAT))\n"
                                "file = os.open('register/a', os.O_WRONLY | os.O_CREAT)\n"
                                "os.write(file, b'uno')\n"
                                "os.mkdir(sys.argv[1] + '/x/../register/c')\n"
                                "os.rename('register/a', 'register/c/b')\n";
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C"_s);
        environment.insert(u"LD_PRELOAD"_s, QString::fromUtf8(FAILING_CALLS));
        environment.insert(u"ABISSORA_FAILING_CALLS"_s, QString::fromUtf8(plan));
        environment.insert(u"ABISSORA_FAILING_CALLS_UNDER"_s, m_folder->filePath(u"register"_s));
        environment.insert(u"ABISSORA_FAILING_CALLS_LOG"_s, m_folder->filePath(u"log"_s));
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(m_folder->path());
        program.start(u"python3"_s, {u"-B"_s, u"-c"_s, QString::fromUtf8(script), m_folder->path()});
        QVERIFY(program.waitForFinished(-1));
        m_complaints = program.readAllStandardError();
        m_status = program.exitCode();
    }

    /// With R for the folder under watch.
    [[nodiscard]] QByteArray log() const
    {
        QFile file(m_folder->filePath(u"log"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll().replace(m_folder->filePath(u"register"_s).toUtf8(), "R")
                                              : QByteArray("(none)");
    }

    std::optional<QTemporaryDir> m_folder;
    QByteArray m_complaints;
    int m_status = 0;
};

ABISSORA_TEST(tst_FailingCalls);
#include "tst_FailingCalls.moc"
