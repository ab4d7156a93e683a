// SPDX-License-Identifier: MIT
#include "ImportFields.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QStringList>
#include <QTest>

using namespace abissora;

class tst_ImportFields : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void headingsTellFields_data()
    {
        QTest::addColumn<QString>("headings");
        QTest::addColumn<QString>("titles"); ///< "-" for none
        QTest::addColumn<ImportSubject>("subject");
        const auto add = [](const char* name, const QString& headings, const QString& titles, ImportSubject subject) {
            QTest::newRow(name) << headings << titles << subject;
        };
        using enum ImportSubject;
        add("our own items",
            u"Nome|Tipo|Marca|Modello|Numero Seriale|Data Acquisto|Ultimo Tagliando|Prossimo Tagliando|Stato|Note"_s,
            u"Nome|Tipo|Marca|Modello|Numero Seriale|Data Acquisto|Ultimo Tagliando|Prossimo Tagliando|Stato|Note"_s,
            Items);
        add("our own records",
            u"Articolo|Marca|Modello|Numero Seriale|Data|Tipo|Descrizione|Eseguito da|Costo|Esito|Prossimo "
            "Tagliando|Note"_s,
            u"Articolo|Marca|Modello|Numero Seriale|Data|Tipo|Descrizione|Eseguito da|Costo|Esito|Prossimo "
            "Tagliando|Note"_s,
            Records);
        add("English items",
            u"ITEM|Category|Manufacturer|model|S/N|Purchased on|Last inspection|Due date|Active|Remarks"_s,
            u"Nome|Tipo|Marca|Modello|Numero Seriale|Data Acquisto|Ultimo Tagliando|Prossimo Tagliando|Stato|Note"_s,
            Items);
        add("English records", u"Gear|Service date|Work done|Technician|Price|Completed"_s,
            u"Articolo|Data|Descrizione|Eseguito da|Costo|Esito"_s, Records);
        add("other letter case, blanks and marks", u"  DATA   D'ACQUISTO |N. di serie|Nome:"_s,
            u"Data Acquisto|Numero Seriale|Nome"_s, Items);
        add("unknown and empty ones", u"Nome||Colore|Taglia"_s, u"Nome|-|-|-"_s, Items);
        add("a heading twice", u"Nome|Nome"_s, u"Nome|Nome"_s, Items);
        add("two words for one field: the title counts", u"Articolo|Nome"_s, u"-|Nome"_s, Items);
        add("two words for one field: else the first", u"Attrezzatura|Articolo"_s, u"Nome|-"_s, Items);
        add("items with a price and what was done to them", u"Name|Purchase date|Service date|Price|Description"_s,
            u"Nome|Data Acquisto|Ultimo Tagliando|-|-"_s, Items);
        add("a date and nothing of work", u"Articolo|Data"_s, u"Nome|-"_s, Items);
    }

    void headingsTellFields()
    {
        QFETCH(QString, headings);
        QFETCH(ImportSubject, subject);
        const QStringList cells = headings.split(u'|');
        QCOMPARE(subjectOf(cells), subject);
        QStringList titles;
        for (const ImportField field : fieldsOf(cells, subject))
            titles.append(field == ImportField::None ? u"-"_s : titleOf(field, subject));
        QTEST(titles.join(u'|'), "titles");
    }

    void everyTitleIsUnderstood()
    {
        for (const ImportSubject subject : {ImportSubject::Items, ImportSubject::Records}) {
            QStringList titles;
            for (const ImportField field : fieldsOf(subject))
                titles.append(titleOf(field, subject));
            QCOMPARE(fieldsOf(titles, subject), fieldsOf(subject));
            QCOMPARE(subjectOf(titles), subject);
        }
        QCOMPARE(titleOf(ImportField::None, ImportSubject::Items), u"Non importare"_s);
    }
};

ABISSORA_TEST(tst_ImportFields);
#include "tst_ImportFields.moc"
