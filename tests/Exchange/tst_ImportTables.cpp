// SPDX-License-Identifier: MIT
#include "ImportStage.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

using Standing = ImportRow::Standing;

QString standings(const ImportPlan& plan)
{
    QString text;
    for (const ImportRow& row : plan.rows())
        text += row.standing == Standing::New ? u'n' : row.standing == Standing::Present ? u'p' : u'f';
    return text;
}

} // namespace

class tst_ImportTables : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void items_data()
    {
        QTest::addColumn<QString>("headings");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("shown");
        const auto add = [](const char* name, const QString& headings, const QString& row, const QString& shown) {
            QTest::newRow(name) << headings << row << shown;
        };
        // Today is 15 June 2026. What is counted stands in a column of its own at the end.
        add("a name alone", u"Nome"_s, u"Muta"_s, u"Muta|15/06/2027"_s);
        add("no name", u"Nome;Marca"_s, u";b"_s, u"!Manca il nome|b|15/06/2027"_s);
        add("a name of blanks", u"Nome;Marca"_s, u"\"  \";b"_s, u"!Manca il nome|b|15/06/2027"_s);
        add("a service and the usual interval", u"Nome;Ultimo tagliando"_s, u"Muta;1/3/26"_s,
            u"Muta|01/03/2026|01/03/2027"_s);
        add("the interval of the type", u"Nome;Tipo;Ultimo tagliando"_s, u"Suunto;computer subacqueo;2026-03-01"_s,
            u"Suunto|Computer Subacqueo|01/03/2026|29/02/2028"_s);
        add("an unknown type", u"Nome;Tipo"_s, u"Scooter; Propulsore "_s, u"Scooter|Propulsore|15/06/2027"_s);
        add("a quoted type with blanks", u"Nome;Tipo"_s, u"Faber;\" bombola \""_s, u"Faber|Bombola|15/06/2027"_s);
        add("a type of the catalogue in other letters", u"Nome;Tipo"_s, u"Led;TORCIA"_s, u"Led|Torcia|15/06/2027"_s);
        add("no type", u"Nome;Tipo"_s, u"Boa;"_s, u"Boa|Altro|15/06/2027"_s);
        add("a next service", u"Nome;Scadenza"_s, u"Muta;1/12/2026"_s, u"Muta|01/12/2026"_s);
        add("29 February of a wrong year", u"Nome;Scadenza"_s, u"Muta;29/02/2027"_s,
            u"Muta|!Data non valida: 29/02/2027"_s);
        add("the end of time", u"Nome;Ultimo tagliando"_s, u"Muta;31/12/9999"_s, u"Muta|31/12/9999|!Data non valida"_s);
        add("states", u"Nome;Stato"_s, u"Muta;dismessa"_s, u"Muta|Inattivo|15/06/2027"_s);
        add("an unknown state", u"Nome;Stato"_s, u"Muta;boh"_s, u"Muta|!Stato sconosciuto: boh|15/06/2027"_s);
        add("a defused formula", u"Nome;Note"_s, u"Muta;'=1+1"_s, u"Muta|=1+1|15/06/2027"_s);
        add("two faults", u"Nome;Scadenza"_s, u";x"_s, u"!Manca il nome|!Data non valida: x"_s);
    }

    void items()
    {
        QFETCH(QString, headings);
        QFETCH(QString, row);
        const test::ImportStage stage;
        const ImportPlan plan = stage.plan((headings + u'\n' + row + u'\n').toUtf8());
        QCOMPARE(plan.columnsProblem(), QString());
        QCOMPARE(plan.rows().size(), 1);
        QTEST(test::shownRow(plan.rows().first()), "shown");
    }

    void datesFollowFromOneAnother_data()
    {
        QTest::addColumn<QString>("row"); ///< purchase, last service, next service
        QTest::addColumn<QString>("dates");
        QTest::newRow("none") << u";;"_s << u"2026-06-15 2026-06-15 2027-06-15"_s;
        QTest::newRow("all") << u"1/2/2020;3/4/2025;5/6/2027"_s << u"2020-02-01 2025-04-03 2027-06-05"_s;
        QTest::newRow("bought") << u"1/2/2020;;"_s << u"2020-02-01 2020-02-01 2021-01-31"_s;
        QTest::newRow("serviced") << u";3/4/2025;"_s << u"2025-04-03 2025-04-03 2026-04-03"_s;
        QTest::newRow("due") << u";;5/6/2026"_s << u"2025-06-05 2025-06-05 2026-06-05"_s;
        QTest::newRow("due in a long time") << u";;5/6/2030"_s << u"2026-06-15 2026-06-15 2030-06-05"_s;
        QTest::newRow("three forms") << u"1 feb 20;2025-04-03;05.06.2027"_s << u"2020-02-01 2025-04-03 2027-06-05"_s;
    }

    void datesFollowFromOneAnother()
    {
        QFETCH(QString, row);
        const test::ImportStage stage;
        const ImportPlan plan =
            stage.plan(("Nome;Data acquisto;Ultimo tagliando;Scadenza\nMuta;"_L1 + row + u'\n').toUtf8());
        QCOMPARE(plan.faults(10), QStringList());
        const Equipment item = plan.rows().first().item;
        QTEST(QStringList(
                  {stage.day(item.purchaseDate), stage.day(item.lastServiceDate), stage.day(item.nextServiceDate)})
                  .join(u' '),
              "dates");
    }

    void aColumnTellsTheOrderOfItsDays()
    {
        const test::ImportStage stage;
        const ImportPlan plan =
            stage.plan("Nome,Last service,Bought\na,5/12/2026,5/12/2026\nb,12/31/2025,31/12/2025\n");
        QCOMPARE(plan.faults(10), QStringList());
        QCOMPARE(stage.day(plan.rows().first().item.lastServiceDate), u"2026-05-12"_s);
        QCOMPARE(stage.day(plan.rows().first().item.purchaseDate), u"2026-12-05"_s);
    }

    void aTypeOfOnesOwnIsKept()
    {
        test::ImportStage stage;
        stage.types.addType(test::equipmentType(7, u"bombola"_s));
        const ImportPlan plan = stage.plan("Nome;Tipo\na;bombola\nb;BOMBOLA\nc;Bombola\nd;Nuovo\n");
        QStringList types;
        for (const ImportRow& row : plan.rows())
            types.append(rawValue(row.item.type) + u'/' + row.item.customTypeName.value_or(u"-"_s));
        QCOMPARE(types, QStringList({u"Altro/bombola"_s, u"Bombola/-"_s, u"Bombola/-"_s, u"Altro/Nuovo"_s}));
    }

    void whatIsThereIsMarked()
    {
        const test::ImportStage stage({test::equipment(1, u"Muta"_s)}); // Marca, Modello, SN-01
        const ImportPlan plan =
            stage.plan("Nome;Marca;Modello;Seriale\n"
                       "x;y;z;sn-01\nmuta;MARCA;modello;\nMuta;Altra;Modello;\n;Marca;Modello;SN-01\n");
        QCOMPARE(standings(plan), u"ppnf"_s);
        QCOMPARE(plan.chosenCount(), 1);
    }

    void records_data()
    {
        QTest::addColumn<QString>("headings");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("shown");
        const auto add = [](const char* name, const QString& headings, const QString& row, const QString& shown) {
            QTest::newRow(name) << headings << row << shown;
        };
        const QString usual = u"Articolo;Data;Descrizione"_s;
        add("the usual", usual, u"Muta;1/3/26;Lavata"_s, u"Muta|01/03/2026|Lavata|01/03/2027"_s);
        add("no date", usual, u"Muta;;Lavata"_s, u"Muta|!Manca la data|Lavata|"_s);
        add("no day", usual, u"Muta;31/04/2026;Lavata"_s, u"Muta|!Data non valida: 31/04/2026|Lavata|"_s);
        add("an unknown item", usual, u"Boa;1/3/26;Lavata"_s, u"!Nessun articolo così: Boa|01/03/2026|Lavata|"_s);
        add("no item", usual, u";1/3/26;Lavata"_s, u"!Manca l'articolo|01/03/2026|Lavata|"_s);
        add("one of several items", usual, u"Pinne;1/3/26;x"_s, u"!Più articoli così: Pinne|01/03/2026|x|"_s);
        const QString numbered = u"Seriale;Data;Descrizione"_s;
        add("by its number", numbered, u"sn-01;1/3/26;x"_s, u"sn-01|01/03/2026|x|01/03/2027"_s);
        add("an unknown number", numbered, u"SN-9;1/3/26;x"_s, u"!Nessun articolo così: SN-9|01/03/2026|x|"_s);
        add("another number", u"Articolo;Seriale;Data;Esito"_s, u"Muta;SN-9;1/3/26;"_s,
            u"!Nessun articolo così: Muta|SN-9|01/03/2026||"_s);
        add("a computer's interval", usual, u"Suunto;1/3/26;x"_s, u"Suunto|01/03/2026|x|29/02/2028"_s);
        add("a next service", u"Articolo;Data;Esito;Scadenza"_s, u"Muta;1/3/26;sì;5/6/2026"_s,
            u"Muta|01/03/2026|Avvenuta|05/06/2026"_s);
        add("an unknown outcome", u"Articolo;Data;Esito"_s, u"Muta;1/3/26;boh"_s,
            u"Muta|01/03/2026|!Esito sconosciuto: boh|"_s);
        add("a kind in other letters", u"Articolo;Data;Tipo;Descrizione"_s, u"Muta;1/3/26;PULIZIA;x"_s,
            u"Muta|01/03/2026|Pulizia|x|01/03/2027"_s);
        add("a kind of other words", u"Articolo;Data;Tipo;Descrizione"_s, u"Muta;1/3/26;Collaudo;x"_s,
            u"Muta|01/03/2026|Altro|Collaudo: x|01/03/2027"_s);
        add("an amount", u"Articolo;Data;Costo"_s, u"Muta;1/3/26;€ 1.234,5"_s, u"Muta|01/03/2026|1234,50|01/03/2027"_s);
        add("no amount", u"Articolo;Data;Costo"_s, u"Muta;1/3/26;gratis"_s,
            u"Muta|01/03/2026|!Importo non valido: gratis|"_s);
    }

    void records()
    {
        QFETCH(QString, headings);
        QFETCH(QString, row);
        const test::ImportStage stage(presentItems());
        const ImportPlan plan = stage.plan((headings + u'\n' + row + u'\n').toUtf8());
        QCOMPARE(plan.subject(), ImportSubject::Records);
        QTEST(test::shownRow(plan.rows().first()), "shown");
    }

    void bothDecimalSignsInOneColumn()
    {
        const test::ImportStage stage(presentItems());
        const ImportPlan plan = stage.plan("Articolo;Data;Costo\nMuta;1/1/26;1.234,56\nMuta;2/1/26;1,234.56\n"
                                           "Muta;3/1/26;1.234\nMuta;4/1/26;12\n");
        QCOMPARE(plan.faults(10), QStringList{u"Riga 4, colonna 3: Importo ambiguo: 1.234"_s});
        QCOMPARE(plan.rows().at(0).record.cost, 1234.56);
        QCOMPARE(plan.rows().at(1).record.cost, 1234.56);
        QCOMPARE(plan.format(), u"Separatore ; · UTF-8 · Virgola e punto decimali"_s);
    }

    void theSameWorkIsMarked()
    {
        Equipment item = test::equipment(1, u"Muta"_s);
        item.maintenanceHistory = {test::maintenance(2)}; // 14 March 2025, a repair
        const test::ImportStage stage({item});
        const ImportPlan plan =
            stage.plan("Articolo;Data;Tipo;Descrizione\nMuta;14/3/2025;Riparazione;Revisione primo stadio\n"
                       "Muta;15/3/2025;Riparazione;Revisione primo stadio\n"
                       "Muta;14/3/2025;Pulizia;Revisione primo stadio\nMuta;14/3/2025;Riparazione;x\n");
        QCOMPARE(standings(plan), u"pnnn"_s);
    }

    void aTypeWithoutDaysGivesARecordOneDay()
    {
        test::ImportStage stage(presentItems());
        EquipmentTypeModel type = stage.types.getTypeByName(u"Muta"_s).value();
        type.serviceIntervalDays = 0;
        stage.types.updateType(type);
        const ImportPlan plan = stage.plan("Articolo;Data;Descrizione\nMuta;1/3/26;x\n");
        QCOMPARE(stage.day(plan.rows().first().record.nextServiceDate), u"2026-03-02"_s);
    }

    void whatIsWrongIsToldOnOneShortLine()
    {
        const test::ImportStage stage;
        const QString words = u"\"a\n\x1b[31m"_s + QString(5000, u'x') + u"\""_s;
        const ImportPlan plan = stage.plan((u"Nome;Scadenza\nMuta;"_s + words + u'\n').toUtf8());
        const QString fault = plan.faults(1).constFirst();
        QVERIFY2(fault.startsWith(u"Riga 2, colonna 2: Data non valida: a [31mxx"_s), qPrintable(fault));
        QVERIFY2(fault.size() < 200 && !fault.contains(u'\x1b'), qPrintable(fault));
    }

private:
    static QList<Equipment> presentItems()
    {
        Equipment suit = test::equipment(1, u"Muta"_s);
        suit.type = EquipmentType::wetsuit;
        Equipment computer = test::equipment(2, u"Suunto"_s);
        computer.type = EquipmentType::computer;
        Equipment fins = test::equipment(3, u"Pinne"_s);
        Equipment others = test::equipment(4, u"Pinne"_s);
        computer.serialNumber = u"SN-02"_s;
        fins.serialNumber = u"SN-03"_s;
        others.serialNumber = u"SN-04"_s;
        return {suit, computer, fins, others};
    }
};

ABISSORA_TEST(tst_ImportTables);
#include "tst_ImportTables.moc"
