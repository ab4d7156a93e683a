// SPDX-License-Identifier: MIT
#include "DesktopOpener.h"

#include "Literals.h"
#include "TestRunner.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/stat.h>

using namespace abissora;

namespace {

using namespace std::chrono_literals;

constexpr auto goesOn = R"(read line < "$0.end"; echo went on >> "$0.log")";

/// What finds commands, for as long as it lives.
class SearchPath
{
public:
    explicit SearchPath(const QByteArray& path) { qputenv("PATH", path); }
    ~SearchPath() { qputenv("PATH", m_before); }
    Q_DISABLE_COPY_MOVE(SearchPath)

private:
    QByteArray m_before = qgetenv("PATH");
};

/// The desktop's command, which logs what it is told and then goes on with `ending`.
class Command
{
public:
    explicit Command(const QByteArray& ending)
    {
        QFile script(m_command);
        if (!script.open(QIODevice::WriteOnly) || ::mkfifo(qPrintable(m_end), 0600) != 0)
            qFatal("the temporary folder cannot be written");
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" > \"$0.log\"\n" + ending + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QByteArray log() const
    {
        QFile file(m_command + ".log"_L1);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
    }
    /// Lets what goes on come to its end; waits for it to be there.
    void end() const { QVERIFY(QFile(m_end).open(QIODevice::WriteOnly)); }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QString m_command = m_folder.filePath(u"xdg-open"_s);
    QString m_end = m_command + ".end"_L1;
    SearchPath m_path{m_folder.path().toLocal8Bit() + ':' + qgetenv("PATH")};
};

QCoro::Task<> openInto(std::optional<bool>& opened, Opener& opener, QUrl url)
{
    opened = co_await opener.open(url);
}

} // namespace

class tst_DesktopOpener : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksTheDesktopsCommand_data()
    {
        QTest::addColumn<QByteArray>("ending");
        QTest::addColumn<bool>("opens");
        QTest::newRow("opened") << QByteArray("exit 0") << true;
        QTest::newRow("no application") << QByteArray("exit 3") << false;
        QTest::newRow("killed") << QByteArray("kill -9 $$") << false;
        QTest::newRow("goes on as the application") << QByteArray(goesOn) << true;
    }

    void asksTheDesktopsCommand()
    {
        QFETCH(QByteArray, ending);
        QFETCH(bool, opens);
        const Command command(ending);
        const QString document = command.path(u"l'«è» $HOME\" %41.pdf"_s);
        std::optional<bool> opened;
        DesktopOpener opener(opens ? 1s : 30s);
        openInto(opened, opener, QUrl::fromLocalFile(document));
        QTRY_COMPARE(opened, opens);
        QCOMPARE(command.log(), "1\n" + document.toUtf8() + '\n');
        if (ending == goesOn) { // the application is alive
            command.end();
            QTRY_VERIFY(command.log().endsWith("went on\n"));
        }
    }

    void everythingGoesOnWhileItWaits()
    {
        const Command command(goesOn);
        std::optional<bool> opened;
        {
            DesktopOpener opener(30s);
            openInto(opened, opener, QUrl(u"https://abissora.example/"_s));
        }
        QVERIFY(!opened);
        bool turned = false;
        QMetaObject::invokeMethod(
            this, [&turned] { turned = true; }, Qt::QueuedConnection);
        QTRY_VERIFY(turned);
        QVERIFY(!opened);
        command.end();
        QTRY_COMPARE(opened, true);
        QCOMPARE(command.log(), "1\nhttps://abissora.example/\nwent on\n");
    }

    void whatItStartsHearsTheSignals_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("broken pipe") << SIGPIPE << QByteArray("PIPE");
        QTest::newRow("file too large") << SIGXFSZ << QByteArray("XFSZ");
    }

    void whatItStartsHearsTheSignals()
    {
        QFETCH(int, number);
        QFETCH(QByteArray, name);
        const auto handler = std::signal(number, SIG_IGN); // as the program does
        const Command command("ulimit -c 0; kill -s " + name + " $$");
        std::optional<bool> opened;
        DesktopOpener opener(30s);
        openInto(opened, opener, QUrl(u"https://abissora.example/"_s));
        QTRY_COMPARE(opened, false);
        std::signal(number, handler);
    }

    void aCommandThatDoesNotStartOpensNothing()
    {
        const QTemporaryDir folder;
        QFile script(folder.filePath(u"xdg-open"_s));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/nowhere/sh\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        const SearchPath path(folder.path().toLocal8Bit());
        std::optional<bool> opened;
        DesktopOpener opener(30s);
        openInto(opened, opener, QUrl(u"https://abissora.example/"_s));
        QTRY_COMPARE(opened, false);
    }

    void withoutTheCommandTheToolkitIsAsked()
    {
        const SearchPath path("/nowhere");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u".*"_s));
        std::optional<bool> opened;
        DesktopOpener opener;
        openInto(opened, opener, QUrl::fromLocalFile(u"/nowhere/a.pdf"_s));
        QCOMPARE(opened, false);
    }
};

ABISSORA_TEST(tst_DesktopOpener);

#include "tst_DesktopOpener.moc"
