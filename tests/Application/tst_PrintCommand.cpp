// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "CommandLine.h"
#include "CommandRun.h"
#include "Commands.h"
#include "ExitStatus.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTemporaryDir>

using namespace abissora;

namespace {

class Run
{
public:
    Run()
    {
        Equipment other = test::equipment(3, u"Pinne"_s);
        static_cast<void>(files.storageManager(
            QList{test::equipmentWith(1, {test::maintenance(11)}), test::equipmentWith(2, {}), other}));
    }

    int operator()(const QStringList& item = {})
    {
        const CommandStreams streams{stdout, std::tmpfile()};
        const auto line = CommandLine::parse(QStringList{u"--print"_s, path} + item);
        const int status = runCommand(line.value(), files.directories, streams);
        error = test::contentOf(streams.error);
        return status;
    }

    [[nodiscard]] QByteArray written() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] qsizetype pages() const { return written().count("/Type /Page\n"); }

    test::TemporaryRegister files;
    QTemporaryDir folder;
    QString path = folder.filePath(u"a.pdf"_s);
    QString error;
};

} // namespace

class tst_PrintCommand : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theListOfAllItems()
    {
        Run run;
        QCOMPARE(run(), exitStatus::done);
        QCOMPARE(run.error, QString());
        QVERIFY(run.written().startsWith("%PDF-"));
        QCOMPARE(run.pages(), 1);
    }

    void everySheetOfOneName()
    {
        Run run;
        QCOMPARE(run({u"--item"_s, u"Erogatore di prova"_s}), exitStatus::done);
        QCOMPARE(run.pages(), 2);
        QCOMPARE(run({u"--item"_s, u"Pinne"_s}), exitStatus::done);
        QCOMPARE(run.pages(), 1);
    }

    void aNameMustBeExact()
    {
        Run run;
        QCOMPARE(run({u"--item"_s, u"pinne"_s}), exitStatus::noInput);
        QCOMPARE(run.error, u"Nessun articolo si chiama «pinne».\n"_s);
        QVERIFY(!QFile::exists(run.path));
    }

    void whatCannotBeWrittenIsSaid()
    {
        Run run;
        run.path = run.folder.path();
        QCOMPARE(run(), exitStatus::cannotCreate);
        QCOMPARE(run.error, u"Non è stato possibile scrivere «%1»: Is a directory\n"_s.arg(run.path));
        run.path = u"/dev/full"_s;
        QCOMPARE(run(), exitStatus::cannotCreate);
        QVERIFY(run.error.endsWith(u": No space left on device\n"_s));
    }

    void whereThereIsNoRegister()
    {
        Run run;
        QVERIFY(QFile::remove(run.files.directories.root() + u'/' + test::registerFile));
        QCOMPARE(run(), exitStatus::noInput);
        QVERIFY(run.error.contains(u"non c'è un registro"_s));
        QVERIFY(!QFile::exists(run.path));
    }
};

ABISSORA_TEST(tst_PrintCommand);
#include "tst_PrintCommand.moc"
