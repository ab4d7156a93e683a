// SPDX-License-Identifier: MIT
#include "Export.h"
#include "ImportStage.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QByteArray document(const QList<Equipment>& items, const QList<EquipmentTypeModel>& types = {})
{
    RegisterDocument document;
    document.savedEquipment = items;
    document.equipmentTypes = types;
    return encode(document).value();
}

QString shown(const QList<ImportColumn>& columns)
{
    QStringList texts;
    for (const ImportColumn& column : columns)
        texts.append(column.heading + u'>' + column.title);
    return texts.join(u'|');
}

void setField(ImportPlan& plan, qsizetype column, ImportField field)
{
    ImportReading reading = plan.reading();
    reading.fields[column] = field;
    plan.read(reading);
}

/// A table of so many rows.
ImportSource tableOf(int rows)
{
    QByteArray text = "Nome\n";
    for (int row = 0; row < rows; ++row)
        text += QByteArray::number(row) + '\n';
    return parseImport(u"a.csv"_s, text).value();
}

} // namespace

class tst_ImportPlan : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsThatDoNotDo_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("problem");
        QTest::newRow("no name") << QByteArray("Marca;Modello\na;b\n") << u"Nessuna colonna è «Nome»."_s;
        QTest::newRow("a name twice") << QByteArray("\nNome;Marca;nome\na;b;c\n")
                                      << u"Riga 2, colonna 3: «Nome» c'è già nella colonna 1."_s;
        QTest::newRow("no item") << QByteArray("Data;Descrizione\n1/1/26;b\n") << u"Nessuna colonna è «Articolo»."_s;
        QTest::newRow("items without anything known")
            << QByteArray("Rosso;Verde\na;b\n") << u"Nessuna colonna è «Nome»."_s;
    }

    void columnsThatDoNotDo()
    {
        QFETCH(QByteArray, text);
        const test::ImportStage stage;
        const ImportPlan plan = stage.plan(text);
        QTEST(plan.columnsProblem(), "problem");
        QVERIFY(plan.rows().isEmpty());
        QCOMPARE(plan.chosenCount(), 0);
    }

    void columnsAreMatchedByHand()
    {
        const test::ImportStage stage;
        ImportPlan plan = stage.plan("Cosa;Marca\nMuta;Mares\n");
        setField(plan, 0, ImportField::Name);
        QCOMPARE(plan.columnsProblem(), QString());
        QCOMPARE(plan.rows().first().item.name, u"Muta"_s);
        QCOMPARE(shown(plan.columns()), u"Cosa>Nome|Marca>Marca|>Prossimo Tagliando"_s);
        setField(plan, 1, ImportField::Name);
        QCOMPARE(plan.columnsProblem(), u"Riga 1, colonna 2: «Nome» c'è già nella colonna 1."_s);
        setField(plan, 1, ImportField::None);
        QCOMPARE(plan.rows().first().item.brand, QString());
        plan.read(plan.usualReading(ImportSubject::Records));
        QCOMPARE(plan.columnsProblem(), u"Nessuna colonna è «Articolo»."_s);
        plan.read(plan.usualReading(ImportSubject::Items));
        QCOMPARE(plan.columnsProblem(), u"Nessuna colonna è «Nome»."_s);
    }

    void howFarItIsIsTold()
    {
        const test::ImportStage stage;
        WorkProgress progress;
        QCOMPARE(ImportPlan(tableOf(1000), stage.context(), &progress).rows().size(), 1000);
        QVERIFY2(progress.fraction() > 0.9 && progress.fraction() <= 1,
                 qPrintable(QString::number(progress.fraction())));
    }

    void whatIsCancelledEndsSoon()
    {
        const test::ImportStage stage;
        WorkProgress progress;
        progress.cancel();
        ImportPlan plan(tableOf(1000), stage.context(), &progress);
        QCOMPARE(plan.rows().size(), 0);
        const ImportSource registerSource = parseImport(u"r.json"_s, document({test::equipment(1)})).value();
        QCOMPARE(ImportPlan(registerSource, stage.context(), &progress).rows().size(), 0);
        plan.read(plan.reading()); // without anybody who could cancel
        QCOMPARE(plan.rows().size(), 1000);
    }

    void formats_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("format");
        QTest::newRow("a register") << QByteArray("[]") << u"Registro di Abissora"_s;
        QTest::newRow("tabs") << QByteArray("Nome\tMarca\na\tb\n")
                              << u"Separatore tabulazione · UTF-8 · Virgola decimale"_s;
        QTest::newRow("full stops") << QByteArray("Articolo,Data,Costo\na,1/1/26,\"1,234.5\"\nCitt\xE0,1/1/26,\n")
                                    << u"Separatore , · Windows-1252 · Punto decimale"_s;
    }

    void formats()
    {
        QFETCH(QByteArray, text);
        const test::ImportStage stage;
        QTEST(stage.plan(text).format(), "format");
    }

    void rowsAreChosen()
    {
        const test::ImportStage stage({test::equipment(1, u"Muta"_s)});
        ImportPlan plan = stage.plan("Nome;Marca;Modello;Stato\na;;;\nMuta;Marca;Modello;\nb;;;?\nc;;;\n");
        QCOMPARE(plan.summary(), u"4 righe: 2 nuove, 1 già presente"_s);
        QCOMPARE(plan.faultSummary(), u"1 con errori"_s);
        QCOMPARE(plan.faults(10), QStringList{u"Riga 4, colonna 4: Stato sconosciuto: ?"_s});
        QVERIFY(plan.areNewChosen() && plan.isChosen(0) && !plan.isChosen(1) && !plan.isChosen(2) && plan.isChosen(3));
        plan.setChosen(0, false);
        QVERIFY(!plan.areNewChosen());
        plan.setChosen(1, true); // present: as the person likes
        plan.setChosen(2, true); // faulty: never
        QVERIFY(plan.isChosen(1) && !plan.isChosen(2) && !plan.canBeChosen(2));
        plan.setNewChosen(true);
        QVERIFY(plan.isChosen(0) && !plan.isChosen(1));
        plan.setNewChosen(false);
        QVERIFY(plan.chosenCount() == 0 && !plan.areNewChosen());
    }

    void faultsAreBounded()
    {
        const test::ImportStage stage;
        const ImportPlan plan = stage.plan("Nome;Stato\n" + QByteArray("a;?\n").repeated(50));
        QCOMPARE(plan.faults(20).size(), 20);
        QCOMPARE(plan.faults(20).constLast(), u"Riga 21, colonna 2: Stato sconosciuto: ?"_s);
    }

    void whatIsCountedHasNoColumnInTheFile()
    {
        const test::ImportStage stage;
        const ImportPlan plan = stage.plan("Nome;Ultimo tagliando\na;31/12/9999\n");
        QCOMPARE(plan.faults(9), QStringList{u"Riga 2, Prossimo Tagliando: Data non valida"_s});
    }

    void chosenRowsAreStoredUnderIdsOfTheirOwn()
    {
        test::ImportStage stage({test::equipment(1, u"Muta"_s)});
        ImportPlan plan = stage.plan("Nome;Marca;Modello\nMuta;Marca;Modello\nPinne;;\n");
        plan.setChosen(0, true);
        stage.import(plan);
        QCOMPARE(stage.equipment.equipment().size(), 3);
        QSet<QUuid> ids;
        for (const Equipment& item : stage.equipment.equipment())
            ids.insert(item.id);
        QCOMPARE(ids.size(), 3);
        QVERIFY(!ids.contains(QUuid()));
        QCOMPARE(decodeEquipment(stage.content(test::registerFile)).value(), stage.equipment.equipment());
        QCOMPARE(stage.takeLog().constFirst(), u"📥 Importati 2 equipaggiamenti e 0 manutenzioni"_s);
    }

    void recordsReachTheirItem()
    {
        test::ImportStage stage({test::equipment(1, u"Muta"_s), test::equipmentWith(2, {test::maintenance(20)})});
        const ImportPlan plan = stage.plan("Articolo;Data;Costo;Esito\nMuta;1/5/2026;12,5;sì\nMuta;1/4/2026;;no\n");
        QCOMPARE(importedText(plan.records(stage.ids)), u"Importate 2 manutenzioni"_s);
        stage.import(plan);
        const Equipment item = stage.equipment.equipment().first();
        QCOMPARE(item.maintenanceHistory.size(), 2);
        QCOMPARE(item.maintenanceHistory.first().cost, 12.5);
        QCOMPARE(item.maintenanceHistory.last().isCompleted, std::optional(false));
        QCOMPARE(stage.day(item.lastServiceDate), u"2026-05-01"_s);
        QCOMPARE(item.nextServiceDate, item.maintenanceHistory.first().nextServiceDate);
        QCOMPARE(stage.equipment.equipment().last(), test::equipmentWith(2, {test::maintenance(20)}));
    }

    void oneStateIsKeptBeforeAnImport()
    {
        test::ImportStage stage({test::equipment(1, u"Muta"_s)});
        const auto before = stage.generations.list().size();
        stage.import(stage.plan("Nome\nPinne\n"));
        const QList<EarlierState> states = stage.generations.list();
        QCOMPARE(states.size(), before + 1);
        QCOMPARE(states.first().occasion, Occasion::import);
    }

    void aRegisterComesWhole()
    {
        Equipment item = test::equipmentWith(41, {test::maintenance(42)});
        item.customTypeName = u"Propulsore"_s;
        item.type = EquipmentType::other;
        item.maintenanceHistory.first().receiptFileName = u"a.pdf"_s;
        test::ImportStage stage;
        const ImportPlan plan =
            stage.plan(document({item}, {test::equipmentType(43, u"Propulsore"_s), test::equipmentType(44, u"GAV"_s)}));
        QCOMPARE(plan.table(), nullptr);
        QCOMPARE(shown(plan.columns()),
                 u">Nome|>Tipo|>Marca|>Modello|>Numero Seriale|>Prossimo Tagliando|>Manutenzioni"_s);
        QCOMPARE(test::shownRow(plan.rows().first()),
                 u"Erogatore di prova|Propulsore|Marca|Modello|SN-01|01/01/2027|1"_s);
        QCOMPARE(plan.types(stage.ids), QList{test::equipmentType(43, u"Propulsore"_s)});
        stage.import(plan);
        QCOMPARE(stage.equipment.equipment(), QList{item});
        QVERIFY(stage.types.getTypeByName(u"Propulsore"_s));
    }

    void theSameItemsAreMarked()
    {
        Equipment known = test::equipment(1, u"Muta"_s);
        Equipment renamed = test::equipment(1, u"Altra"_s); // the same id
        renamed.serialNumber = u"x"_s;
        const Equipment numbered = test::equipment(2, u"Altra"_s); // the same number
        const test::ImportStage stage({known});
        const ImportPlan plan = stage.plan(document({renamed, numbered}));
        QCOMPARE(plan.count(ImportRow::Standing::Present), 2);
        QCOMPARE(plan.chosenCount(), 0);
    }

    void chosenAgainTheyAreOthers()
    {
        Maintenance record = test::maintenance(12);
        record.receiptFileName = u"a.pdf"_s;
        record.certificateFileName = u"b.pdf"_s;
        const Equipment item = test::equipmentWith(1, {record});
        test::ImportStage stage({item});
        Equipment foreign = test::equipmentWith(99, {record}); // another id, the same documents
        foreign.name = u"Altra"_s;
        foreign.serialNumber.clear();
        foreign.maintenanceHistory.first().certificateFileName = u"c.pdf"_s;
        ImportPlan plan = stage.plan(document({item, foreign, foreign}));
        plan.setChosen(0, true);
        stage.import(plan);
        const QList<Equipment>& items = stage.equipment.equipment();
        QCOMPARE(items.size(), 4);
        QSet<QUuid> ids;
        QStringList documents;
        for (const Equipment& one : items) {
            ids.insert(one.id);
            const Maintenance& history = one.maintenanceHistory.first();
            documents.append(history.receiptFileName.value_or(u"-"_s) + history.certificateFileName.value_or(u"-"_s));
        }
        QCOMPARE(ids.size(), 4);
        QVERIFY(items.at(1).maintenanceHistory.first().id != record.id);
        // A document belongs to one record, and would go away with it.
        QCOMPARE(documents, QStringList({u"a.pdfb.pdf"_s, u"--"_s, u"-c.pdf"_s, u"--"_s}));
    }

    void typesGetIdsThatAreFree()
    {
        test::ImportStage stage;
        EquipmentTypeModel taken = stage.types.types().first();
        taken.name = u"Nuovo"_s;
        EquipmentTypeModel none = taken;
        none.name = u"Altro ancora"_s;
        none.id = QUuid();
        const auto added = stage.plan(document({}, {taken, none, taken})).types(stage.ids);
        QCOMPARE(added.size(), 2);
        QVERIFY(added.first().id != taken.id && !added.last().id.isNull());
    }

    void counts()
    {
        ImportedRecords one;
        one.items.append(test::equipment(1));
        QCOMPARE(importedText(one), u"Importato 1 articolo"_s);
        one.items.append(test::equipment(2));
        QCOMPARE(importedText(one), u"Importati 2 articoli"_s);
        QCOMPARE(importedText({{}, {{QUuid(), test::maintenance(1)}}}), u"Importata 1 manutenzione"_s);
    }
};

ABISSORA_TEST(tst_ImportPlan);
#include "tst_ImportPlan.moc"
