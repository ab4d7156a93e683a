// SPDX-License-Identifier: MIT
#include "EnvironmentValue.h"
#include "FailingCalls.h"
#include "RegisterCheck.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

using namespace abissora;

namespace {

const QString document = u"MaintenanceDocuments/00000000-0000-4000-8000-000000000001.pdf"_s;

QList<Equipment> oneItem()
{
    Maintenance record = test::maintenance(11);
    record.receiptFileName = u"00000000-0000-4000-8000-000000000001.pdf"_s;
    return {test::equipmentWith(1, {record})};
}

} // namespace

class tst_RegisterCheck : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allIsWell()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, encode(oneItem()).value());
        files.write(test::typesFile, "[]");
        files.write(u"preferences/darkMode.json"_s, "true");
        files.write(document, "%PDF-");
        const CheckReport report = checkRegister(files.directories);
        QCOMPARE(report.problems, QStringList());
        QCOMPARE(report.summary, u"1 articolo, 1 manutenzione, 0 tipologie, 1 documento, 0 stati precedenti"_s);
    }

    void nothingIsStored()
    {
        test::TemporaryRegister files;
        const CheckReport report = checkRegister(files.directories);
        QVERIFY(!report.hasRegister);
        QCOMPARE(report.problems, QStringList());
        QCOMPARE(files.names(u"."_s), QStringList());
        QVERIFY(!checkRegister(ApplicationDirectories(files.path(u"nowhere"_s))).hasRegister);
        files.write(test::typesFile, "[]");
        QVERIFY(!checkRegister(files.directories).hasRegister);
        files.write(test::registerFile, "[]");
        QVERIFY(checkRegister(files.directories).hasRegister);
    }

    void whatIsNoFolderIsNamed_data()
    {
        QTest::addColumn<QString>("folder");
        for (const QString& folder : {u"preferences"_s, u"MaintenanceDocuments"_s, u"backups"_s})
            QTest::addRow("%s", qPrintable(folder)) << folder;
        QTest::newRow("deleted documents") << u"backups/documents"_s;
    }

    void whatIsNoFolderIsNamed()
    {
        QFETCH(const QString, folder);
        test::TemporaryRegister files;
        if (folder != "preferences"_L1)
            files.write(test::registerFile, encode(QList{test::equipment(1)}).value());
        files.write(folder, "a file");
        const CheckReport report = checkRegister(files.directories);
        QVERIFY(report.hasRegister);
        QCOMPARE(report.problems, QStringList{u"cartella %1: non si legge: Not a directory"_s.arg(folder)});
    }

    void aPlainFileIsNoRegister()
    {
        test::TemporaryRegister files;
        const QString path = files.write(u"file"_s, "a file");
        const CheckReport report = checkRegister(ApplicationDirectories(path));
        QVERIFY(report.hasRegister);
        QCOMPARE(report.problems, QStringList{u"cartella %1: non si legge: Not a directory"_s.arg(path)});
    }

    void aFolderThatMayNotBeListedIsNamed()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, encode(oneItem()).value());
        files.write(document, "%PDF-");
        const QString closed = files.directories.maintenanceDocuments();
        {
            const test::FailingCalls failing("open@1=EACCES", closed);
            QCOMPARE(checkRegister(files.directories).problems,
                     QStringList{u"cartella MaintenanceDocuments: non si legge: Permission denied"_s});
        }
        QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0), 0);
        // Nothing is closed to root.
        QCOMPARE(checkRegister(files.directories).problems.size(), ::geteuid() == 0 ? 0 : 1);
        QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0700), 0);
    }

    void whatIsKeptElsewhereIsLookedInto()
    {
        test::TemporaryRegister files;
        const test::EnvironmentValue state("XDG_STATE_HOME", files.path(u"state"_s).toUtf8());
        files.write(test::registerFile, "[]");
        QVERIFY(QDir().mkpath(files.path(u"state/abissora"_s)));
        const QString elsewhere = files.directories.emergency();
        QCOMPARE(checkRegister(files.directories).problems, QStringList());
        QVERIFY(QDir().mkpath(elsewhere));
        {
            const test::FailingCalls failing("open@1=EACCES", elsewhere);
            QCOMPARE(checkRegister(files.directories).problems,
                     QStringList{u"cartella %1: non si legge: Permission denied"_s.arg(elsewhere)});
        }
        QVERIFY(QDir().rmdir(elsewhere));
        // As in the home of another user.
        const test::FailingCalls failing("open@1=EACCES", elsewhere);
        QCOMPARE(checkRegister(files.directories).problems, QStringList());
    }

    void aFolderInAFilesPlaceIsNamed()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile + u"/stray"_s, "");
        const CheckReport report = checkRegister(files.directories);
        QVERIFY(report.hasRegister);
        QCOMPARE(report.problems, QStringList{u"savedEquipment.json: non si legge: Is a directory"_s});
    }

    void everyDamagedValueIsNamed()
    {
        test::TemporaryRegister files;
        QList<Equipment> items = oneItem();
        items.append(test::equipment(2));
        QByteArray json = encode(items).value();
        json.replace("\"cost\":120.5", "\"cost\":\"x\"").replace("\"model\":\"Modello\"", "\"model\":5");
        files.write(test::registerFile, json);
        files.write(test::typesFile, "[{\"id\":1}");
        files.write(u"preferences/reminderDays.json"_s, "{");
        const QStringList problems = checkRegister(files.directories).problems;
        QCOMPARE(
            problems.filter(u"savedEquipment.json: valore danneggiato: "_s),
            QStringList({u"savedEquipment.json: valore danneggiato: [0].model: expected a string, found a number"_s,
                         u"savedEquipment.json: valore danneggiato: [0].maintenanceHistory[0].cost: expected a "
                         "number, found a string"_s,
                         u"savedEquipment.json: valore danneggiato: [1].model: expected a string, found a number"_s}));
        QVERIFY(problems.filter(u"equipmentTypes.json: "_s).size() >= 7);
        QVERIFY(problems.contains(u"reminderDays.json: impostazione danneggiata"_s));
    }

    void documentsAndRecordsDisagree()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, encode(oneItem()).value());
        files.write(u"MaintenanceDocuments/libretto.pdf"_s, "%PDF-");
        QCOMPARE(checkRegister(files.directories).problems,
                 QStringList({u"documento mancante: 00000000-0000-4000-8000-000000000001.pdf («Erogatore di prova», "
                              "«Revisione primo stadio»)"_s,
                              u"documento in più, di nessuna manutenzione: libretto.pdf"_s}));
    }

    void settingsThatDoNotCountAreDamaged_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("counts");
        QTest::newRow("a switch") << u"darkMode"_s << QByteArray("true") << true;
        QTest::newRow("a text for a switch") << u"darkMode"_s << QByteArray("\"ciao\"") << false;
        QTest::newRow("a number for a switch") << u"notificationsEnabled"_s << QByteArray("1") << false;
        QTest::newRow("nothing for a switch") << u"checkForUpdatesOnLaunch"_s << QByteArray("null") << false;
        QTest::newRow("a number") << u"reminderDays"_s << QByteArray("30.0") << true;
        QTest::newRow("half a number") << u"reminderDays"_s << QByteArray("1.5") << false;
        QTest::newRow("a number too large") << u"defaultServiceInterval"_s << QByteArray("1e300") << false;
        QTest::newRow("a text for a number") << u"iconSetVersion"_s << QByteArray("\"4\"") << false;
        QTest::newRow("a text") << u"currencySymbol"_s << QByteArray("\"€\"") << true;
        QTest::newRow("a number for a text") << u"currencySymbol"_s << QByteArray("5") << false;
        QTest::newRow("a byte order mark") << u"darkMode"_s << QByteArray("\xEF\xBB\xBFtrue") << false;
        QTest::newRow("a zero at the end") << u"darkMode"_s << QByteArray("true\0", 5) << false;
        QTest::newRow("no bytes") << u"darkMode"_s << QByteArray() << false;
        QTest::newRow("an unknown one") << u"ofTomorrow"_s << QByteArray("[1]") << true;
        QTest::newRow("an unknown one with a mark") << u"ofTomorrow"_s << QByteArray("\xEF\xBB\xBF[1]") << false;
    }

    void settingsThatDoNotCountAreDamaged()
    {
        QFETCH(const QString, key);
        QFETCH(const QByteArray, stored);
        QFETCH(const bool, counts);
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        files.write(u"preferences/%1.json"_s.arg(key), stored);
        const QStringList damaged{u"%1.json: impostazione danneggiata"_s.arg(key)};
        QCOMPARE(checkRegister(files.directories).problems, counts ? QStringList() : damaged);
    }

    void aDocumentThatIsNoneIsDamaged()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, encode(oneItem()).value());
        for (const QByteArray& content : {QByteArray(), QByteArray("<html>")}) {
            files.write(document, content);
            QCOMPARE(checkRegister(files.directories).problems,
                     QStringList{u"documento danneggiato: 00000000-0000-4000-8000-000000000001.pdf («Erogatore di "
                                 "prova», «Revisione primo stadio»): Not a PDF document"_s});
        }
    }

    void statesThatCannotBeRead()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        const QByteArray damaged = encode(QList{test::equipment(1), test::equipment(2)}).value().chopped(20);
        files.write(u"backups/20260101T000000.000Z-deleted-item/savedEquipment.json"_s, damaged);
        files.write(u"backups/20260101T000000.000Z-deleted-item/equipmentTypes.json"_s, "[5]");
        files.write(u"backups/20260101T000000.000Z-deleted-item/darkMode.json"_s, "5");
        files.write(u"backups/20260102T000000.000Z-deleted-item/savedEquipment.json"_s, "[]");
        QVERIFY(QDir(files.directories.backups()).mkdir(u"20260103T000000.000Z-change"_s));
        const CheckReport report = checkRegister(files.directories);
        QCOMPARE(report.problems,
                 QStringList({u"stato 20260101T000000.000Z-deleted-item: leggibili 1 articoli su 2"_s,
                              u"stato 20260101T000000.000Z-deleted-item: leggibili 0 tipologie su 1"_s,
                              u"stato 20260101T000000.000Z-deleted-item: darkMode.json: impostazione danneggiata"_s,
                              u"stato 20260103T000000.000Z-change: senza articoli né tipologie"_s}));
        QVERIFY(report.summary.endsWith(u"3 stati precedenti"_s));
    }

    void damageThatWasKeptIsNoProblemOfToday()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        const QByteArray damaged = encode(QList{test::equipment(1), test::equipment(2)}).value().chopped(20);
        files.write(u"backups/20260101T000000.000Z-unreadable/savedEquipment.json"_s, damaged);
        files.write(u"backups/20260101T000000.000Z-unreadable/darkMode.json"_s, "5");
        files.write(u"backups/20260102T000000.000Z-restoration/savedEquipment.json"_s, damaged);
        QVERIFY(QDir(files.directories.backups()).mkdir(u"20260103T000000.000Z-unreadable"_s));
        const CheckReport report = checkRegister(files.directories);
        QCOMPARE(report.problems, QStringList{u"stato 20260103T000000.000Z-unreadable: senza articoli né tipologie"_s});
        QCOMPARE(report.notes,
                 QStringList({u"stato 20260101T000000.000Z-unreadable: leggibili 1 articoli su 2"_s,
                              u"stato 20260101T000000.000Z-unreadable: darkMode.json: impostazione danneggiata"_s,
                              u"stato 20260102T000000.000Z-restoration: leggibili 1 articoli su 2"_s}));
    }

    void aStateThatMayNotBeListedIsNamed()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        files.write(u"backups/20260101T000000.000Z-unreadable/savedEquipment.json"_s, "[]");
        const test::FailingCalls failing("open@1=EACCES", files.path(u"backups/20260101T000000.000Z-unreadable"_s));
        QCOMPARE(checkRegister(files.directories).problems,
                 QStringList{u"stato 20260101T000000.000Z-unreadable: non si legge: Permission denied"_s});
    }
};

ABISSORA_TEST(tst_RegisterCheck);
#include "tst_RegisterCheck.moc"
