// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "RegisterTables.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const Calendar rome{QTimeZone("Europe/Rome")};

/// Without the byte order mark, which must be there.
QString text(const QByteArray& bytes)
{
    const QByteArray mark("\xEF\xBB\xBF");
    return bytes.startsWith(mark) ? QString::fromUtf8(bytes.mid(mark.size())) : u"no mark"_s;
}

/// Of the only record, in its row; quoted where its sign is some table's separator.
QString cost(double value, const QLocale& locale)
{
    Maintenance record = test::maintenance(2);
    record.cost = value;
    const QString table = text(recordsCsv({test::equipmentWith(1, {record})}, rome, locale));
    const QString separator = table.contains(u';') ? u";"_s : u","_s;
    return table.section(u"\r\n"_s, 1, 1).section(separator, 8, 8).remove(u'"');
}

} // namespace

class tst_RegisterTables : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void items()
    {
        Equipment item = test::equipment(1, u"Muta; 5 mm"_s);
        item.notes = u"=1+1\n\"due\""_s;
        item.isActive = false;
        item.customTypeName = u"-Mia"_s;
        QCOMPARE(text(itemsCsv({item}, rome, QLocale(u"it_IT"_s))),
                 u"Nome;Tipo;Marca;Modello;Numero Seriale;Data Acquisto;Ultimo Tagliando;Prossimo "
                 "Tagliando;Stato;Note\r\n\"Muta; 5 mm\";'-Mia;Marca;Modello;SN-01;2024-01-02;2025-06-07;2027-01-01;"
                 "Inattivo;\"'=1+1\n\"\"due\"\"\"\r\n"_s);
    }

    void records()
    {
        Maintenance record = test::maintenance(2);
        record.isCompleted = true;
        record.receiptFileName = u"a.pdf"_s;
        const QList<Equipment> items{test::equipmentWith(1, {record, test::maintenance(3)}), test::equipment(4)};
        QCOMPARE(text(recordsCsv(items, rome, QLocale(u"en_US"_s))),
                 u"Articolo,Marca,Modello,Numero Seriale,Data,Tipo,Descrizione,Eseguito da,Costo,Esito,Prossimo "
                 "Tagliando,Note\r\nErogatore di prova,Marca,Modello,SN-01,2025-03-14,Riparazione,Revisione primo "
                 "stadio,Officina Blu,120.5,Avvenuta,2026-03-14,O-ring sostituiti\r\nErogatore di "
                 "prova,Marca,Modello,SN-01,2025-03-14,Riparazione,Revisione primo stadio,Officina "
                 "Blu,120.5,,2026-03-14,O-ring sostituiti\r\n"_s);
    }

    void daysAreThoseOfTheZone()
    {
        Equipment item = test::equipment(1);
        item.nextServiceDate = test::at("2026-06-15T10:30:00Z");
        const auto day = [&item](const char* zone) {
            return text(itemsCsv({item}, Calendar{QTimeZone(zone)}, QLocale(u"it_IT"_s)))
                .section(u"\r\n"_s, 1, 1)
                .section(u';', 7, 7);
        };
        QCOMPARE(day("Europe/Rome"), u"2026-06-15"_s);
        QCOMPARE(day("Pacific/Kiritimati"), u"2026-06-16"_s);
        QCOMPARE(day("Pacific/Honolulu"), u"2026-06-15"_s);
    }

    void amounts_data()
    {
        QTest::addColumn<double>("cost");
        QTest::addColumn<QString>("comma");
        QTest::addColumn<QString>("fullStop");
        const auto add = [](double cost, const QString& comma, const QString& fullStop) {
            QTest::newRow(qPrintable(fullStop)) << cost << comma << fullStop;
        };
        add(0, u"0"_s, u"0"_s);
        add(1234.5, u"1234,5"_s, u"1234.5"_s);
        add(-12.25, u"-12,25"_s, u"-12.25"_s);
        add(1.125, u"1,1250"_s, u"1.1250"_s); // "1.125" might be a thousand and more
        add(0.0001, u"0,0001"_s, u"0.0001"_s);
        add(1e21, u"1000000000000000000000"_s, u"1000000000000000000000"_s);
    }

    void amounts()
    {
        QFETCH(double, cost);
        QTEST(::cost(cost, QLocale(u"it_IT"_s)), "comma");
        QTEST(::cost(cost, QLocale(u"de_DE"_s)), "comma");
        QTEST(::cost(cost, QLocale(u"en_US"_s)), "fullStop");
        QTEST(::cost(cost, QLocale(u"ar_EG"_s)), "fullStop"); // whose own sign few programs know
    }

    void nothingIsAHeadingAlone()
    {
        QVERIFY(itemsCsv({}, rome, QLocale(u"it_IT"_s)).endsWith("Stato;Note\r\n"));
        QVERIFY(recordsCsv({test::equipment(1)}, rome, QLocale(u"it_IT"_s)).endsWith("Tagliando;Note\r\n"));
    }
};

ABISSORA_TEST(tst_RegisterTables);
#include "tst_RegisterTables.moc"
