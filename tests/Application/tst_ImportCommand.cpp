// SPDX-License-Identifier: MIT
#include "CommandRun.h"
#include "ExitStatus.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

class tst_ImportCommand : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anImportIsShownAndNothingStored()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        const QString table =
            files.write(u"in/a.csv"_s, "Nome;Seriale;Colore\nMuta;SN-1;blu\n\"Pin\nne\";SN-7;\n;SN-8;rosso\n");
        const auto before = everything(files);
        const Outcome answer = run(files, {u"--import"_s, table});
        QCOMPARE(answer.status, exitStatus::found);
        QCOMPARE(answer.error, u"Riga 5, colonna 1: Manca il nome\nColonna che non viene importata: «Colore».\n"_s);
        const QStringList lines = answer.out.split(u'\n');
        QCOMPARE(lines.at(0), u"riga\tNome\tNumero Seriale\tProssimo Tagliando"_s);
        QVERIFY(lines.at(1).startsWith(u"già presente\tMuta\tSN-1\t"_s));
        QVERIFY(lines.at(2).startsWith(u"nuova\tPin ne\tSN-7\t"_s));
        QVERIFY(lines.at(3).startsWith(u"errore\tManca il nome\tSN-8\t"_s));
        QCOMPARE(lines.at(4), u"3 righe: 1 nuova, 1 già presente, 1 con errori. Niente è stato salvato: con «--yes» si "
                              "importa."_s);
        QCOMPARE(everything(files), before);

        const Outcome refused = run(files, {u"--import"_s, table, u"--yes"_s});
        QCOMPARE(refused.status, exitStatus::badData);
        QCOMPARE(refused.error, u"Riga 5, colonna 1: Manca il nome\nNiente è stato importato.\n"_s);
        QCOMPARE(stored(files).size(), 1);
    }

    void whatIsNewIsStored()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        const QByteArray before = files.content(test::registerFile);
        const QString table = files.write(u"in/a.csv"_s, "Nome;Seriale\nMuta;SN-1\nPinne;SN-7\n");
        const Outcome answer = run(files, {u"--import"_s, table, u"--yes"_s});
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.status, exitStatus::done);
        QCOMPARE(answer.out, u"Importato 1 articolo.\n"_s);
        QCOMPARE(stored(files).size(), 2);
        QCOMPARE(stored(files).constLast().name, u"Pinne"_s);
        QVERIFY(!stored(files).constLast().id.isNull());
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(states.size(), 1);
        QCOMPARE(states.first().occasion, Occasion::import);
        QFile kept(states.first().files.value(u"savedEquipment"_s));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), before);

        const Outcome again = run(files, {u"--import"_s, table, u"--yes"_s});
        QCOMPARE(again.out, u"Non c'è niente di nuovo da importare.\n"_s);
        QCOMPARE(again.status, exitStatus::done);
        QCOMPARE(stored(files).size(), 2);
        QCOMPARE(files.generations.list().size(), 1);
    }

    void whatIsNotUnderstoodIsKeptFirst()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        QByteArray text = files.content(test::registerFile);
        text.replace("{\"id\"", "{\"colour\":1,\"id\"");
        files.write(test::registerFile, text);
        const QString table = files.write(u"in/a.csv"_s, "Nome\nPinne\n");
        QCOMPARE(run(files, {u"--import"_s, table, u"--yes"_s}).status, exitStatus::done);
        QCOMPARE(files.generations.list().size(), 1);
        QCOMPARE(files.generations.list().constFirst().occasion, Occasion::unknownMembers);
    }

    void recordsAreStored()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        const QString table =
            files.write(u"in/a.csv"_s, "Articolo,Date,Cost,Done\nMuta,12/31/2025,\"1,234.50\",yes\nMuta,1/2/2026,,\n");
        const Outcome answer = run(files, {u"--import"_s, table, u"--yes"_s});
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.out, u"Importate 2 manutenzioni.\n"_s);
        const Equipment item = stored(files).constFirst();
        QCOMPARE(item.maintenanceHistory.size(), 2);
        QCOMPARE(item.maintenanceHistory.first().cost, 1234.5);
        QCOMPARE(Calendar().local(item.lastServiceDate).date(), QDate(2026, 1, 2));
    }

    void aRegisterGoesIntoANewOne()
    {
        test::TemporaryRegister files;
        Equipment item = test::equipmentWith(1, {test::maintenance(11)});
        item.type = EquipmentType::other;
        item.customTypeName = u"Propulsore"_s;
        store(files, {item});
        files.write(test::typesFile, encode(QList{test::equipmentType(3, u"Propulsore"_s)}).value());
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.json"_s);
        QCOMPARE(run(files, {u"--export"_s, path}).status, exitStatus::done);

        const test::TemporaryRegister empty;
        QCOMPARE(run(empty, {u"--import"_s, path}).status, exitStatus::done);
        QVERIFY(everything(empty).isEmpty());
        const Outcome answer = run(empty, {u"--import"_s, path, u"--yes"_s});
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.status, exitStatus::done);
        QCOMPARE(stored(empty), QList{item});
        const auto types = decodeTypes(empty.content(test::typesFile)).value();
        QCOMPARE(std::ranges::count(types, u"Propulsore"_s, &EquipmentTypeModel::name), 1);
        QVERIFY(types.size() > 1);
        QCOMPARE(run(empty, {u"--check"_s}).status, exitStatus::done);
    }

    void newTypesComeWithIt()
    {
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        files.write(test::typesFile, encode(QList{test::equipmentType(3, u"Propulsore"_s)}).value());
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.json"_s);
        QCOMPARE(run(files, {u"--export"_s, path}).status, exitStatus::done);

        test::TemporaryRegister other;
        store(other, {dueIn(2, u"Pinne"_s, 5)});
        other.write(test::typesFile, encode(QList{test::equipmentType(4, u"Bussola"_s)}).value());
        const Outcome answer = run(other, {u"--import"_s, path, u"--yes"_s});
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.out, u"Importato 1 articolo.\n"_s);
        QCOMPARE(stored(other).size(), 2);
        QCOMPARE(decodeTypes(other.content(test::typesFile)).value().size(), 2);
        const QList<EarlierState> states = other.generations.list();
        QCOMPARE(std::ranges::count(states, Occasion::import, &EarlierState::occasion), 1);
        QCOMPARE(states.first().occasion, Occasion::import); // one of the icons' migration may come before it
    }

    void badFilesAreRefused_data()
    {
        QTest::addColumn<QString>("path"); ///< a file of this text when it does not begin with a slash
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("said");
        const auto add = [](const char* name, const QString& path, int status, const QString& said) {
            QTest::newRow(name) << path << status << said;
        };
        add("none", u"/nowhere/a.csv"_s, exitStatus::noInput, u"Il file «/nowhere/a.csv» non c'è."_s);
        add("a device without an end", u"/dev/zero"_s, exitStatus::noInput,
            u"Il file «/dev/zero» non si può leggere: Invalid argument."_s);
        add("no bytes", u"/dev/null"_s, exitStatus::noInput,
            u"Il file «/dev/null» non si può leggere: Invalid argument."_s);
        add("a folder", u"/"_s, exitStatus::noInput, u"Il file «/» non si può leggere: Is a directory."_s);
        add("nothing", u""_s, exitStatus::badData, u"Il file è vuoto."_s);
        add("a PDF", u"%PDF-1.4"_s, exitStatus::badData, u"Il file non è una tabella: è un documento PDF."_s);
        add("quotes", u"Nome;Note\na;\"b\n"_s, exitStatus::badData,
            u"Riga 2, colonna 2: le virgolette aperte qui non si chiudono."_s);
        add("no name", u"Marca;Note\na;b\n"_s, exitStatus::badData, u"Nessuna colonna è «Nome»."_s);
        add("a newer register", u"{\"format\":\"abissora-register\",\"version\":7}"_s, exitStatus::badData,
            u"Il registro è stato scritto da una versione più recente di Abissora (?)."_s);
    }

    void badFilesAreRefused()
    {
        QFETCH(QString, path);
        test::TemporaryRegister files;
        store(files, {dueIn(1, u"Muta"_s, 5)});
        if (!path.startsWith(u'/'))
            path = files.write(u"in/a.csv"_s, path.toUtf8());
        const QByteArray before = files.content(test::registerFile);
        for (const QStringList& arguments : {QStringList{u"--import"_s, path}, {u"--import"_s, path, u"--yes"_s}}) {
            const Outcome answer = run(files, arguments);
            QTEST(answer.status, "status");
            QTEST(answer.error.trimmed(), "said");
            QCOMPARE(answer.out, QString());
        }
        QCOMPARE(files.content(test::registerFile), before);
        QVERIFY(files.generations.list().isEmpty());
    }

    void faultsAreToldUpToAPoint()
    {
        const test::TemporaryRegister files;
        const QString table = files.write(u"in/a.csv"_s, "Nome;Stato\n" + QByteArray("a;?\n").repeated(100));
        const Outcome answer = run(files, {u"--import"_s, table});
        QCOMPARE(answer.status, exitStatus::found);
        QCOMPARE(answer.error.count(u'\n'), 20);
        QVERIFY(answer.out.contains(u"100 righe: 0 nuove, 100 con errori"_s));
    }
};

ABISSORA_TEST(tst_ImportCommand);
#include "tst_ImportCommand.moc"
