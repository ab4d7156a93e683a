// SPDX-License-Identifier: MIT
#include "Export.h"
#include "ImportStage.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_Export : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesTellForms_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("form"); ///< -1 for none
        QTest::newRow("a table") << u"/a/b.csv"_s << int(ExportForm::Records);
        QTest::newRow("in capitals") << u"B.CSV"_s << int(ExportForm::Records);
        QTest::newRow("a calendar") << u"b.csv.ics"_s << int(ExportForm::Calendar);
        QTest::newRow("a register") << u"b.Json"_s << int(ExportForm::Register);
        QTest::newRow("none") << u"/a.csv/b"_s << -1;
        QTest::newRow("nothing") << QString() << -1;
    }

    void namesTellForms()
    {
        QFETCH(QString, path);
        const auto form = exportFormOf(path, ExportForm::Records);
        QTEST(form ? int(*form) : -1, "form");
    }

    void formats()
    {
        QStringList suffixes;
        for (const SaveFormat& format : exportFormats())
            suffixes.append(format.suffix);
        QCOMPARE(suffixes, QStringList({u"csv"_s, u"csv"_s, u"ics"_s, u"json"_s}));
        for (qsizetype i = 0; i < suffixes.size(); ++i)
            QCOMPARE(exportFormOf(u"a."_s + suffixes.at(i), ExportForm(i)), std::optional(ExportForm(i)));
    }

    void everyFormHasItsText()
    {
        Equipment inactive = test::equipmentWith(2, {test::maintenance(3), test::maintenance(4)});
        inactive.isActive = false;
        const test::ImportStage stage({test::equipment(1), inactive});
        const ExportSource source = sourceOf(stage);
        QVERIFY(exported(ExportForm::Items, source).startsWith("\xEF\xBB\xBFNome;"));
        QVERIFY(exported(ExportForm::Records, source)
                    .startsWith("\xEF\xBB\xBF"
                                "Articolo;"));
        QVERIFY(exported(ExportForm::Calendar, source).startsWith("BEGIN:VCALENDAR\r\n"));
        QVERIFY(exported(ExportForm::Register, source)
                    .startsWith(R"({"format":"abissora-register","version":1,"program":"1.2",)"));
        QCOMPARE(exportedText(ExportForm::Items, source), u"Esportati 2 articoli"_s);
        QCOMPARE(exportedText(ExportForm::Records, source), u"Esportate 2 manutenzioni"_s);
        QCOMPARE(exportedText(ExportForm::Calendar, source), u"Esportato 1 articolo"_s);
        QCOMPARE(exportedText(ExportForm::Register, source), u"Esportati 2 articoli"_s);
    }

    void theWholeRegisterIsInIt()
    {
        const test::ImportStage stage({test::equipmentWith(1, {test::maintenance(2)})});
        const auto document = decodeRegisterDocument(exported(ExportForm::Register, sourceOf(stage))).value();
        QCOMPARE(document.savedEquipment, stage.equipment.equipment());
        QCOMPARE(document.equipmentTypes, stage.types.types());
        QCOMPARE(document.exported, stage.clock.now());
    }

    void whatHasNoStoredFormIsNoObstacle()
    {
        Equipment item = test::equipmentWith(1, {test::maintenance(2)});
        item.maintenanceHistory.first().cost = std::numeric_limits<double>::infinity();
        item.nextServiceDate = lastInstant + std::chrono::days(1000);
        const test::ImportStage stage;
        ExportSource source = sourceOf(stage);
        source.equipment = {item};
        QCOMPARE(decodeRegisterDocument(exported(ExportForm::Register, source))
                     .value()
                     .savedEquipment.first()
                     .maintenanceHistory.first()
                     .cost,
                 0.0);
        for (const ExportForm form : {ExportForm::Items, ExportForm::Records, ExportForm::Calendar})
            QVERIFY(!exported(form, source).isEmpty());
    }

    void whatIsCancelledEndsSoon()
    {
        const test::ImportStage stage({test::equipmentWith(1, {test::maintenance(2)})});
        for (const ExportForm form :
             {ExportForm::Items, ExportForm::Records, ExportForm::Calendar, ExportForm::Register}) {
            WorkProgress progress;
            const QByteArray whole = exported(form, sourceOf(stage), &progress);
            QCOMPARE(progress.fraction(), 1.0);
            QCOMPARE(whole, exported(form, sourceOf(stage)));
            progress.cancel();
            QVERIFY(exported(form, sourceOf(stage), &progress).size() < whole.size());
        }
    }

private:
    static ExportSource sourceOf(const test::ImportStage& stage)
    {
        return {stage.equipment.equipment(), stage.types.types(), stage.calendar,
                stage.clock.now(),           QLocale(u"it_IT"_s), u"1.2"_s};
    }
};

ABISSORA_TEST(tst_Export);
#include "tst_Export.moc"
