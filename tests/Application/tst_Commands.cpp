// SPDX-License-Identifier: MIT
#include "CommandRun.h"
#include "ExitStatus.h"
#include "FolderLock.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

class tst_Commands : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void statesAreListedALineEach()
    {
        test::TemporaryRegister files;
        const QString name = keepOne(files);
        const Outcome answer = run(files, {u"--list-states"_s});
        QCOMPARE(answer.status, exitStatus::done);
        QVERIFY(answer.out.startsWith(name + u'\t'));
        QVERIFY(answer.out.endsWith(u"articoli: 1, manutenzioni: 1\n"_s));
        QCOMPARE(answer.error, QString());
        QCOMPARE(run(test::TemporaryRegister(), {u"--list-states"_s}).out, QString());
    }

    void statesThatCannotBeListedAreNotTakenForNone()
    {
        const test::TemporaryRegister files;
        const QString place = files.write(u"backups"_s, "a file");
        const Outcome answer = run(files, {u"--list-states"_s});
        QCOMPARE(answer.status, exitStatus::noInput);
        QCOMPARE(answer.out, QString());
        QCOMPARE(answer.error, u"Gli stati non si possono elencare: «%1»: Not a directory\n"_s.arg(place));
    }

    void aStateIsRestoredWithItsDocuments()
    {
        test::TemporaryRegister files;
        const QString name = keepOne(files);
        files.documents.deleteDocument(document);
        const Outcome answer = run(files, {u"--restore"_s, name});
        QCOMPARE(answer.status, exitStatus::done);
        QCOMPARE(answer.out, u"Ripristinato lo stato «%1».\n"_s.arg(name));
        QCOMPARE(decodeEquipment(files.content(test::registerFile)).value().size(), 1);
        QCOMPARE(files.names(u"MaintenanceDocuments"_s), QStringList{document});
        QCOMPARE(files.generations.list().constFirst().occasion, Occasion::restoration);
    }

    void aStateOfTypesAloneIsListedAndRestored()
    {
        test::TemporaryRegister files;
        const QByteArray types = encode(QList{test::equipmentType(1, u"Faro"_s)}).value();
        static_cast<void>(files.preferences.setData(typesKey, types));
        static_cast<void>(files.preferences.setData(typesKey, "[]", Occasion::typesReset));
        const QString name = files.generations.list().value(0).name;
        const Outcome listed = run(files, {u"--list-states"_s});
        QVERIFY(listed.out.startsWith(name + u'\t'));
        QVERIFY(listed.out.endsWith(u"tipologie: 1 su 1\n"_s));
        const Outcome answer = run(files, {u"--restore"_s, name});
        QCOMPARE(answer.status, exitStatus::done);
        QCOMPARE(files.content(test::typesFile), types);
        QCOMPARE(files.names(u"preferences"_s), QStringList{u"equipmentTypes.json"_s});
        // What was there before can come back too.
        QCOMPARE(files.generations.list().size(), 2);
    }

    void anEmptyStateIsRefused()
    {
        test::TemporaryRegister files;
        keepOne(files);
        const QString name = u"20250102T030405.000Z-deleted-item"_s;
        QVERIFY(QDir().mkpath(files.path(u"backups/"_s + name)));
        const QMap<QString, QByteArray> before = everything(files);
        const Outcome answer = run(files, {u"--restore"_s, name});
        QCOMPARE(answer.status, exitStatus::badData);
        QVERIFY(answer.error.startsWith(u"Non è stato possibile ripristinare «%1»: "_s.arg(name)));
        QCOMPARE(answer.out, QString());
        QCOMPARE(everything(files), before);
        QVERIFY(run(files, {u"--list-states"_s}).out.endsWith(u"\tniente di leggibile\n"_s));
    }

    void anUnknownStateIsRefused()
    {
        test::TemporaryRegister files;
        keepOne(files);
        const Outcome answer = run(files, {u"--restore"_s, u"../x"_s});
        QCOMPARE(answer.status, exitStatus::noInput);
        QVERIFY(answer.error.startsWith(u"Nessuno stato si chiama «../x»."_s));
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
    }

    void whileTheProgramIsOpenNothingIsRestored()
    {
        test::TemporaryRegister files;
        const QString name = keepOne(files);
        FolderLock lock(files.directories.root());
        QCOMPARE(lock.acquire(), FolderLock::Outcome::Held);
        const Outcome answer = run(files, {u"--restore"_s, name});
        QCOMPARE(answer.status, exitStatus::tryAgain);
        QVERIFY(answer.error.contains(u"è aperta su questo registro"_s));
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(run(files, {u"--check"_s}).status, exitStatus::found); // reads all the same
    }

    void aCheckEndsWithWhatItFound()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        const Outcome well = run(files, {u"--check"_s});
        QCOMPARE(well.status, exitStatus::done);
        QVERIFY(well.out.startsWith(u"Tutto in ordine: 0 articoli"_s));
        files.write(test::registerFile, "[5]");
        const Outcome ill = run(files, {u"--check"_s});
        QCOMPARE(ill.status, exitStatus::found);
        QVERIFY(ill.out.startsWith(u"savedEquipment.json: valore danneggiato: [0]: expected an object"_s));
    }

    void whatIsKeptForGoodIsToldAndInOrder()
    {
        const test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        files.write(u"backups/20260101T000000.000Z-unreadable/savedEquipment.json"_s, "[5]");
        const Outcome kept = run(files, {u"--check"_s});
        QCOMPARE(kept.status, exitStatus::done);
        QVERIFY(
            kept.out.startsWith(u"conservato perché illeggibile: stato 20260101T000000.000Z-unreadable: leggibili 0 "
                                "articoli su 1\nTutto in ordine: 0 articoli"_s));
        files.write(test::registerFile, "[5]");
        QCOMPARE(run(files, {u"--check"_s}).status, exitStatus::found);
    }

    void aCheckOfNothingIsNoCheck()
    {
        const test::TemporaryRegister files;
        const Outcome empty = run(files, {u"--check"_s});
        QCOMPARE(empty.status, exitStatus::noInput);
        QCOMPARE(empty.out, QString());
        QCOMPARE(empty.error, u"In «%1» non c'è un registro.\n"_s.arg(files.directories.root()));
        QCOMPARE(files.names(u"."_s), QStringList());
    }

    void whatACheckCannotSeeIsNotInOrder()
    {
        const test::TemporaryRegister files;
        files.write(u"preferences"_s, "a file");
        const Outcome closed = run(files, {u"--check"_s});
        QCOMPARE(closed.status, exitStatus::found);
        QVERIFY(closed.out.startsWith(u"cartella preferences: non si legge: Not a directory\nLetti: 0 articoli"_s));
        QCOMPARE(closed.error, QString());
    }

    void twoCommandsAtOnceAreRefused()
    {
        QVERIFY(!CommandLine::parse({u"--check"_s, u"--list-states"_s}));
        QVERIFY(!CommandLine::parse({u"--restore"_s, QString()}));
        QCOMPARE(CommandLine::parse({u"--restore"_s, u"x"_s})->command, Command::Restore);
        QVERIFY(!CommandLine::parse({u"--snapshot"_s, u"x"_s})->command);
    }

private:
    static inline const QString document = u"00000000-0000-4000-8000-000000000001.pdf"_s;

    /// A state with one item, whose record has a document; now the register is empty.
    static QString keepOne(test::TemporaryRegister& files)
    {
        Maintenance record = test::maintenance(11);
        record.receiptFileName = document;
        files.write(u"MaintenanceDocuments/"_s + document, "%PDF-");
        StorageManager storage = files.storageManager(QList{test::equipmentWith(1, {record})});
        storage.saveEquipment({}, Occasion::deletedItem);
        return files.generations.list().constFirst().name;
    }
};

ABISSORA_TEST(tst_Commands);
#include "tst_Commands.moc"
