// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ExchangeActions.h"
#include "ImportParts.h"
#include "RecordJson.h"
#include "TestRunner.h"
#include "Theme.h"

using namespace abissora;
using namespace abissora::test;

namespace {

class Actions
{
public:
    Actions()
    {
        window.resize(1280, 800);
        activate(window);
    }

    [[nodiscard]] QString write(const QString& name, const QByteArray& bytes) const { return f.write(name, bytes); }
    /// Of the notice that is open, which goes.
    QString dismissNotice()
    {
        settle();
        auto* const notice = findDialog<Alert>(window);
        if (notice == nullptr)
            return u"(no notice)"_s;
        const QString message = notice->message();
        notice->close();
        settle();
        return message;
    }
    void importChosen()
    {
        settle();
        click(openDialog<ViewSheet>(window), u"import");
    }

    ImportRegister f;
    QWidget window;
    ExchangeActions actions{{f.equipment, f.types, f.settings, f.panel, f.work, f.ids, f.almanac, u"1.2.0"_s}};
};

} // namespace

class tst_ExchangeActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void importStoresOnceAndSaysHowMany()
    {
        Actions a;
        a.f.panel.answer(a.write(u"club.csv"_s, clubTable));
        a.actions.importFile(&a.window);
        QCOMPARE(a.f.panel.requests().first().contentTypes,
                 QStringList({u"text/csv"_s, u"application/json"_s, u"text/plain"_s}));
        QCOMPARE(a.f.equipment.equipment().size(), 1); // nothing yet
        const qsizetype kept = a.f.generations.list().size();
        a.importChosen();
        QCOMPARE(a.dismissNotice(), u"Importati 3 articoli."_s);
        QCOMPARE(a.f.equipment.equipment().size(), 4);
        QCOMPARE(decodeEquipment(a.f.content(registerFile)).value(), a.f.equipment.equipment());
        QCOMPARE(a.f.generations.list().size(), kept + 1);
        QCOMPARE(a.f.generations.list().constFirst().occasion, Occasion::import);
        QCOMPARE(a.f.takeLog(),
                 QStringList({u"📥 Importati 3 equipaggiamenti e 0 manutenzioni"_s,
                              u"➕ Aggiunto equipaggiamento: Erogatore MK25"_s,
                              u"➕ Aggiunto equipaggiamento: Bombola 12L"_s, u"➕ Aggiunto equipaggiamento: Pinne"_s}));
    }

    void aRegisterBringsItsTypes()
    {
        Actions a;
        RegisterDocument document;
        document.equipmentTypes = {equipmentType(900, u"Scooter"_s), equipmentType(901, u"GAV"_s)};
        document.savedEquipment = {equipmentWith(50, {maintenance(51)})};
        document.savedEquipment.first().serialNumber = u"other"_s;
        document.savedEquipment.first().name = u"Altro"_s;
        const qsizetype types = a.f.types.types().size();
        a.actions.importPath(a.write(u"r.json"_s, encode(document).value()), &a.window);
        a.importChosen();
        QCOMPARE(a.dismissNotice(), u"Importato 1 articolo."_s);
        QCOMPARE(a.f.types.types().size(), types + 1);
        QCOMPARE(a.f.types.types().last().name, u"Scooter"_s);
        QCOMPARE(a.f.equipment.equipment().last(), document.savedEquipment.first());
        QCOMPARE(std::ranges::count(a.f.generations.list(), Occasion::import, &EarlierState::occasion), 1);
    }

    void recordsGoToTheirItem()
    {
        Actions a;
        a.actions.importPath(a.write(u"m.csv"_s, "Articolo;Data;Descrizione;Esito\r\n"
                                                 "Erogatore di prova;2026-01-02;Revisione;Avvenuta\r\n"
                                                 "Erogatore di prova;2025-01-02;Pulizia;\r\n"),
                             &a.window);
        a.importChosen();
        QCOMPARE(a.dismissNotice(), u"Importate 2 manutenzioni."_s);
        const Equipment item = a.f.equipment.equipment().first();
        QCOMPARE(item.maintenanceHistory.size(), 2);
        QCOMPARE(item.lastServiceDate, item.maintenanceHistory.first().date); // the latest one, not the last one
        QVERIFY(item.maintenanceHistory.first().id != item.maintenanceHistory.last().id);
    }

    void whatCannotBeReadIsSaid()
    {
        Actions a;
        a.actions.importPath(a.write(u"a.csv"_s, "nome;note\r\nBoa;\"aperto\r\n"), &a.window);
        QCOMPARE(a.dismissNotice(), u"Riga 2, colonna 2: le virgolette aperte qui non si chiudono."_s);
        a.actions.importPath(a.write(u"b.csv"_s, "%PDF-1.4"), &a.window);
        QCOMPARE(a.dismissNotice(), u"Il file non è una tabella: è un documento PDF."_s);
        a.actions.importPath(a.f.path(u"none.csv"_s), &a.window);
        QVERIFY(a.dismissNotice().contains(u"No such file or directory"_s));
        QCOMPARE(a.f.equipment.equipment().size(), 1);
    }

    void nothingHappensWithoutAFile()
    {
        Actions a;
        a.actions.importFile(&a.window);
        a.actions.exportRegister(&a.window);
        settle();
        QVERIFY(!isDialogOpen(a.window));
        QCOMPARE(a.f.work.titles(), QStringList());
    }

    void aWindowThatGoesMeanwhileTakesNothing()
    {
        Actions a;
        a.f.work.beSlow();
        auto window = std::make_unique<QWidget>();
        a.actions.importPath(a.write(u"club.csv"_s, clubTable), window.get());
        window.reset();
        a.f.work.finish();
        settle();
        QVERIFY(!isDialogOpen(a.window));
    }

    void cancelledReadingShowsNothing()
    {
        Actions a;
        a.f.work.beSlow();
        a.actions.importPath(a.write(u"club.csv"_s, clubTable), &a.window);
        a.f.work.progress().cancel();
        a.f.work.finish();
        settle();
        QVERIFY(!isDialogOpen(a.window));
    }

    void aRegisterThatChangesMeanwhileIsComparedAgain()
    {
        Actions a;
        a.f.work.beSlow();
        Equipment item = equipment(9, u"Pinne"_s);
        item.brand = u"Mares"_s;
        item.model = u"Avanti Q+"_s;
        a.actions.importPath(a.write(u"club.csv"_s, clubTable), &a.window);
        a.f.equipment.addEquipment(item);
        a.f.work.finish();
        QCOMPARE(a.f.work.held(), 1);
        a.f.work.finish();
        settle();
        auto& sheet = openDialog<ViewSheet>(a.window);
        QCOMPARE(textOf(sheet, u"summary"), u"5 righe: 2 nuove, 2 già presenti,"_s);
    }

    void whatGoesOutIsAsItWasAndCanBeCancelled()
    {
        Actions a;
        a.f.work.beSlow();
        for (const bool isCancelled : {false, true}) {
            const QString name = isCancelled ? u"b.csv"_s : u"a.csv"_s;
            a.f.panel.answer(a.f.path(name));
            a.actions.exportRegister(&a.window);
            a.f.equipment.addEquipment(equipment(isCancelled ? 8 : 9, u"Boa"_s));
            if (isCancelled)
                a.f.work.progress().cancel();
            a.f.work.finish();
            QCOMPARE(a.dismissNotice(),
                     isCancelled ? u"(no notice)"_s : u"Esportato 1 articolo in «%1»."_s.arg(a.f.path(name)));
            QCOMPARE(QFile::exists(a.f.path(name)), !isCancelled);
        }
        QVERIFY(!a.f.content(u"a.csv"_s).contains("Boa"));
    }

    void exportFollowsTheName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QByteArray>("beginning");
        QTest::addColumn<QString>("notice");
        QTest::newRow("items") << u"a.csv"_s << 0 << QByteArray("\xEF\xBB\xBFNome;Tipo;Marca")
                               << u"Esportato 1 articolo"_s;
        QTest::newRow("records") << u"a.csv"_s << 1
                                 << QByteArray("\xEF\xBB\xBF"
                                               "Articolo;Marca")
                                 << u"Esportate nessuna manutenzione"_s;
        QTest::newRow("calendar") << u"a.ics"_s << 0 << QByteArray("BEGIN:VCALENDAR") << u"Esportato 1 articolo"_s;
        QTest::newRow("register") << u"a.json"_s << 0
                                  << QByteArray("{\"format\":\"abissora-register\",\"version\":1,\"program\":\"1.2.0\"")
                                  << u"Esportato 1 articolo"_s;
    }
    void exportFollowsTheName()
    {
        QFETCH(QString, name);
        QFETCH(int, selected);
        QFETCH(QByteArray, beginning);
        QFETCH(QString, notice);
        Actions a;
        a.f.panel.selectFormat(selected);
        a.f.panel.answer(a.f.path(name));
        a.actions.exportRegister(&a.window);
        QCOMPARE(a.f.panel.saveRequests().first().formats.size(), 4);
        QCOMPARE(a.dismissNotice(), u"%1 in «%2»."_s.arg(notice, a.f.path(name)));
        QVERIFY2(a.f.content(name).startsWith(beginning), a.f.content(name).left(80).constData());
    }

    void whatCannotBeWrittenIsSaid()
    {
        Actions a;
        a.f.panel.answer(a.f.path(u"none/a.csv"_s));
        a.actions.exportRegister(&a.window);
        QVERIFY(a.dismissNotice().startsWith(u"Non è stato possibile scrivere «"_s));
    }
};

ABISSORA_TEST(tst_ExchangeActions);
#include "tst_ExchangeActions.moc"
