// SPDX-License-Identifier: MIT
#include "CommandRun.h"
#include "ExitStatus.h"
#include "FolderLock.h"
#include "TestRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

class tst_ExchangeCommands : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void exports_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("beginning");
        QTest::addColumn<QString>("said");
        QTest::newRow("items") << QStringList{u"--export=%1/a.csv"_s} << QByteArray("\xEF\xBB\xBFNome")
                               << u"Esportati 2 articoli.\n"_s;
        QTest::newRow("items, named") << QStringList{u"--export=%1/a.csv"_s, u"--what=articoli"_s}
                                      << QByteArray("\xEF\xBB\xBFNome") << u"Esportati 2 articoli.\n"_s;
        QTest::newRow("records") << QStringList{u"--export=%1/a.CSV"_s, u"--what=manutenzioni"_s}
                                 << QByteArray("\xEF\xBB\xBF\x41rticolo") << u"Esportata 1 manutenzione.\n"_s;
        QTest::newRow("calendar") << QStringList{u"--export=%1/a.ics"_s} << QByteArray("BEGIN:VCALENDAR\r\n")
                                  << u"Esportati 2 articoli.\n"_s;
        QTest::newRow("register") << QStringList{u"--export=%1/a.json"_s}
                                  << QByteArray(R"({"format":"abissora-register")") << u"Esportati 2 articoli.\n"_s;
    }

    void exports()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, beginning);
        test::TemporaryRegister files;
        store(files, {test::equipmentWith(1, {test::maintenance(11)}), dueIn(2, u"Muta"_s, 5)});
        const QTemporaryDir folder;
        arguments.first() = arguments.first().arg(folder.path());
        const auto before = everything(files);
        const Outcome answer = run(files, arguments);
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.status, exitStatus::done);
        QTEST(answer.out, "said");
        QFile file(arguments.first().section(u'=', 1));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith(beginning));
        QCOMPARE(everything(files), before);
    }

    void exportsThatFail_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("said");
        QTest::newRow("an unknown form")
            << QStringList{u"--export=/home/anna/a.xls"_s} << exitStatus::usage
            << u"Il nome «/home/anna/a.xls» non dice il formato: finisce in .csv, .ics o .json.\n"_s;
        QTest::newRow("records in a calendar")
            << QStringList{u"--export=/home/anna/a.ics"_s, u"--what=manutenzioni"_s} << exitStatus::usage
            << u"«--what» sceglie fra le tabelle: il file deve finire in .csv.\n"_s;
        QTest::newRow("no such folder") << QStringList{u"--export=/nowhere/a.csv"_s} << exitStatus::cannotCreate
                                        << u"Non è stato possibile scrivere «/nowhere/a.csv»: "_s;
    }

    void exportsThatFail()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, said);
        test::TemporaryRegister files;
        store(files, {test::equipment(1)});
        const Outcome answer = run(files, arguments);
        QTEST(answer.status, "status");
        QVERIFY2(answer.error.startsWith(said), qPrintable(answer.error));
        QCOMPARE(answer.error.count(u'\n'), 1);
        QCOMPARE(answer.out, QString());
    }

    void withoutARegisterNothingGoesOut()
    {
        const test::TemporaryRegister files;
        const QString sentence = u"In «%1» non c'è un registro.\n"_s.arg(files.directories.root());
        for (const QStringList& arguments : {QStringList{u"--export=/home/anna/a.csv"_s}, QStringList{u"--due"_s}}) {
            const Outcome answer = run(files, arguments);
            QCOMPARE(answer.status, exitStatus::noInput);
            QCOMPARE(answer.error, sentence);
        }
        QVERIFY(everything(files).isEmpty());
    }

    void anUnreadableRegisterIsNotTakenForEmpty()
    {
        const test::TemporaryRegister files;
        files.write(test::registerFile, "[{}");
        const QString table = files.write(u"in/a.csv"_s, "Nome\nMuta\n");
        for (const QStringList& arguments :
             {QStringList{u"--export=/home/anna/a.csv"_s}, QStringList{u"--due"_s}, QStringList{u"--import"_s, table},
              QStringList{u"--import"_s, table, u"--yes"_s}}) {
            const Outcome answer = run(files, arguments);
            QCOMPARE(answer.status, exitStatus::noInput);
            QVERIFY(answer.error.startsWith(u"Il registro non si può leggere: "_s));
        }
        QCOMPARE(files.content(test::registerFile), QByteArray("[{}"));
    }

    void whileTheProgramIsOpenItIsOnlyRead()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        const QString table = files.write(u"in/a.csv"_s, "Nome\nPinne\n");
        FolderLock lock(files.directories.root());
        QCOMPARE(lock.acquire(), FolderLock::Outcome::Held);
        const auto before = everything(files);
        const Outcome refused = run(files, {u"--import"_s, table, u"--yes"_s});
        QCOMPARE(refused.status, exitStatus::tryAgain);
        QCOMPARE(refused.error,
                 u"Abissora è aperta su questo registro: va chiusa prima di importare, oppure si importa "
                 "lì.\n"_s);
        QCOMPARE(run(files, {u"--import"_s, table}).status, exitStatus::done);
        QCOMPARE(run(files, {u"--due"_s}).status, exitStatus::found);
        const QTemporaryDir folder;
        QCOMPARE(run(files, {u"--export"_s, folder.filePath(u"a.ics"_s)}).status, exitStatus::done);
        QCOMPARE(everything(files), before);
    }

    void theStatusTellsWhatIsDue_data()
    {
        QTest::addColumn<QStringList>("days");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("names");
        QTest::newRow("30 days") << QStringList() << exitStatus::found << u"Muta|Pinne|GAV"_s;
        QTest::newRow("today") << QStringList{u"0"_s} << exitStatus::found << u"Muta|Pinne"_s;
        QTest::newRow("a year") << QStringList{u"365"_s} << exitStatus::found << u"Muta|Pinne|GAV|Boa"_s;
    }

    void theStatusTellsWhatIsDue()
    {
        QFETCH(QStringList, days);
        test::TemporaryRegister files;
        Equipment inactive = dueIn(5, u"Torcia"_s, 0);
        inactive.isActive = false;
        store(files, {dueIn(1, u"Boa"_s, 90), dueIn(2, u"GAV"_s, 20), dueIn(3, u"Pinne"_s, 0), dueIn(4, u"Muta"_s, -40),
                      inactive});
        const Outcome lines = run(files, QStringList{u"--due"_s} + days);
        QTEST(lines.status, "status");
        QStringList names;
        for (const QString& line : lines.out.trimmed().split(u'\n'))
            names.append(line.section(u'\t', 2).section(u' ', 0, 0));
        QTEST(names.join(u'|'), "names");
        const Outcome json = run(files, QStringList{u"--due"_s} + days + QStringList{u"--json"_s});
        QTEST(json.status, "status");
        names.clear();
        const QJsonArray values = QJsonDocument::fromJson(json.out.toUtf8()).array();
        for (const auto& value : values)
            names.append(value[u"name"_s].toString());
        QTEST(names.join(u'|'), "names");
    }

    void nothingIsDue()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Boa"_s, 90)});
        QCOMPARE(run(files, {u"--due"_s}).status, exitStatus::done);
        QCOMPARE(run(files, {u"--due"_s}).out, QString());
        QCOMPARE(run(files, {u"--due"_s, u"--json"_s}).out, u"[\n]\n"_s);
    }
};

ABISSORA_TEST(tst_ExchangeCommands);
#include "tst_ExchangeCommands.moc"
