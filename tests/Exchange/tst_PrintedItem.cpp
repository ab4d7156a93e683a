// SPDX-License-Identifier: MIT
#include "PaperParts.h"
#include "PrintedItem.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

PrintedPaper sheetOf(RegisterFixture& f, const Equipment& item)
{
    return PrintedItem::sheetOf(item, f.types, f.almanac, [](const QString&, int pixels) {
        return QImage(pixels, pixels, QImage::Format_ARGB32);
    });
}

} // namespace

class tst_PrintedItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void headAndFacts()
    {
        RegisterFixture f;
        Equipment item = equipment(1, u"GAV Hydros"_s);
        const PrintedPaper paper = sheetOf(f, item);
        QCOMPARE(paper.kind, u"Scheda di manutenzione"_s);
        QCOMPARE(paper.title, u"GAV Hydros"_s);
        QCOMPARE(paper.subtitle, u"GAV"_s);
        QVERIFY(!paper.picture.isNull());
        QCOMPARE(paper.notes, u"Note"_s);
        QCOMPARE(paper.facts, (QList<PrintedFact>{{u"Marca"_s, u"Marca"_s},
                                                  {u"Modello"_s, u"Modello"_s},
                                                  {u"Numero Seriale"_s, u"SN-01"_s},
                                                  {u"Stato"_s, u"Attivo"_s},
                                                  {u"Data Acquisto"_s, u"2 gennaio 2024"_s},
                                                  {u"Ultimo Tagliando"_s, u"7 giugno 2025"_s},
                                                  {u"Prossimo Tagliando"_s, u"1 gennaio 2027"_s, true},
                                                  {u"Giorni rimanenti"_s, u"199 giorni"_s}}));
        QCOMPARE(paper.foot, u"GAV Hydros · SN-01"_s);
        QCOMPARE(paper.printedOn, u"Stampato il 15 giugno 2026 con Abissora"_s);
        item.serialNumber.clear();
        item.brand.clear();
        item.isActive = false;
        const PrintedPaper bare = sheetOf(f, item);
        QCOMPARE(bare.foot, u"GAV Hydros"_s);
        QCOMPARE(bare.facts.at(0).value, u"—"_s);
        QCOMPARE(bare.facts.at(2).value, u"Non specificato"_s);
        QCOMPARE(bare.facts.at(3).value, u"Inattivo"_s);
    }

    void recordsNewestFirst()
    {
        RegisterFixture f;
        Maintenance old = maintenance(1, at("2024-05-01T10:00:00Z"), at("2025-05-01T10:00:00Z"));
        old.cost = 0;
        old.isCompleted.reset();
        old.notes.clear();
        Maintenance young = maintenance(2, at("2026-05-01T10:00:00Z"), at("2027-05-01T10:00:00Z"));
        young.type = MaintenanceType::test;
        young.isCompleted = false;
        young.receiptFileName = u"a.pdf"_s;
        young.certificateFileName = u"b.pdf"_s;
        const PrintedPaper paper = sheetOf(f, equipmentWith(1, {old, young}));
        QCOMPARE(cellsOf(paper.rows.at(0)),
                 (QStringList{u"1 mag 2026"_s, u"Test"_s, u"Revisione primo stadio"_s, u"Officina Blu"_s, u"€120.50"_s,
                              u"Non avvenuta"_s, u"Scontrino, certificato"_s}));
        QVERIFY(paper.rows.at(0).cells.at(5).isStrong);
        QCOMPARE(paper.rows.at(0).notes, u"Note: O-ring sostituiti"_s);
        QCOMPARE(cellsOf(paper.rows.at(1)), (QStringList{u"1 mag 2024"_s, u"Riparazione"_s, u"Revisione primo stadio"_s,
                                                         u"Officina Blu"_s, u"—"_s, u"Avvenuta"_s, u"—"_s}));
        QVERIFY(paper.rows.at(1).notes.isEmpty());
        for (const PrintedRow& row : paper.rows)
            QCOMPARE(row.cells.size(), paper.columns.size());
        QCOMPARE(paper.closing.label, u"Costo totale di 2 manutenzioni"_s);
        QCOMPARE(paper.closing.value, u"€120.50"_s);
        QCOMPARE(paper.columns.at(paper.closing.column).title, u"Costo"_s);
    }

    void oneRecordWithOnlyACertificate()
    {
        RegisterFixture f;
        Maintenance record = maintenance(1);
        record.cost = 0;
        record.certificateFileName = u"b.pdf"_s;
        const PrintedPaper paper = sheetOf(f, equipmentWith(1, {record}));
        QCOMPARE(paper.rows.at(0).cells.last().text, u"Certificato"_s);
        QCOMPARE(paper.closing.label, u"Costo totale di 1 manutenzione"_s);
        QCOMPARE(paper.closing.value, u"—"_s);
    }
};

ABISSORA_TEST(tst_PrintedItem);
#include "tst_PrintedItem.moc"
