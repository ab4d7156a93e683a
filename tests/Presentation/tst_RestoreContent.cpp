// SPDX-License-Identifier: MIT
#include "RestoreContent.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QSignalSpy>
#include <QTest>

using namespace abissora;
using namespace abissora::test;
using namespace std::chrono_literals;

namespace {

RestoreContent contentOf(RegisterFixture& f)
{
    return RestoreContent({f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac});
}

/// How a state differs, once that is known.
RestorePreview comparison(RestoreContent& content, qsizetype index)
{
    std::optional<RestorePreview> last;
    QObject receiver;
    QObject::connect(&content, &RestoreContent::compared, &receiver,
                     [&last](const RestorePreview& preview) { last = preview; });
    content.compare(index);
    QCoreApplication::processEvents();
    if (!last)
        qFatal("nothing was compared");
    return *last;
}

/// What the row says once its files were read.
EarlierStateRow readRow(RestoreContent& content, qsizetype index)
{
    static_cast<void>(content.row(index));
    QCoreApplication::processEvents();
    return content.row(index);
}

/// Loading the types has kept a state already.
void forgetStates(const RegisterFixture& f)
{
    if (!QDir(f.directories.backups()).removeRecursively())
        qFatal("the temporary folder cannot be emptied");
}

/// Keeps the present state, as a restoration would.
void keep(RegisterFixture& f)
{
    if (!f.generations.keep(Occasion::restoration))
        qFatal("the temporary folder cannot be written");
    f.clock.advance(1min);
}

/// "Title total: line | line", of the newest state.
QStringList texts(RegisterFixture& f)
{
    QStringList texts;
    RestoreContent content = contentOf(f);
    for (const DifferenceGroup& group : comparison(content, 0).groups) {
        QStringList lines;
        for (const DifferenceLine& line : group.lines)
            lines.append(line.text());
        texts.append(u"%1 %2: %3"_s.arg(group.title).arg(group.total).arg(lines.join(u" | "_s)));
    }
    return texts;
}

Equipment torch()
{
    Equipment item = equipment(1, u"Torcia"_s);
    item.maintenanceHistory = {maintenance(11), maintenance(12)};
    return item;
}

} // namespace

class tst_RestoreContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsKept()
    {
        RegisterFixture f;
        QVERIFY(contentOf(f).states().isEmpty());
    }

    void nothingDiffers()
    {
        RegisterFixture f(QList{torch()});
        keep(f);
        RestoreContent content = contentOf(f);
        const RestorePreview preview = comparison(content, 0);
        QCOMPARE(preview.title, u"15 giugno 2026, 12:00"_s);
        QCOMPARE(preview.subtitle, u"Uguale ad adesso"_s);
        QVERIFY(preview.groups.isEmpty());
        QVERIFY(preview.canBeRestored);
    }

    void theMillisecondsThatAreNotStoredAreNoDifference()
    {
        RegisterFixture f(QList<Equipment>{});
        Equipment item = torch();
        item.purchaseDate += 345ms;
        item.maintenanceHistory.first().date += 1ms;
        f.equipment.addEquipment(item);
        keep(f);
        QCOMPARE(texts(f), QStringList());
    }

    void itemsComeBackGoAndChange()
    {
        RegisterFixture f(QList{torch(), equipment(2, u"Pinne"_s), equipment(3, u"GAV"_s)});
        keep(f);
        f.equipment.deleteEquipment(f.equipment.equipment().at(0));
        Equipment changed = f.equipment.equipment().at(0);
        changed.serialNumber = u"SN-02"_s;
        f.equipment.updateEquipment(changed);
        f.equipment.addEquipment(equipment(4, u"Muta"_s));
        RestoreContent content = contentOf(f);
        const qsizetype oldest = content.states().size() - 1;
        const auto [title, subtitle, groups, canBeRestored] = comparison(content, oldest);
        QCOMPARE(subtitle, u"Che cosa cambia rispetto ad adesso"_s);
        QVERIFY(canBeRestored);
        QCOMPARE(groups.size(), 3);
        QCOMPARE(groups.at(0).title, u"Tornano"_s);
        QCOMPARE(groups.at(0).lines.first().text(), u"Torcia, 2 manutenzioni"_s);
        QCOMPARE(groups.at(0).lines.first().look, appearanceOf(torch(), f.types));
        QCOMPARE(groups.at(1).title, u"Spariscono"_s);
        QCOMPARE(groups.at(1).lines.first().text(), u"Muta, nessuna manutenzione"_s);
        QCOMPARE(groups.at(2).title, u"Cambiano"_s);
        QCOMPARE(groups.at(2).lines.first().text(), u"Pinne, Numero Seriale: SN-02 → SN-01"_s);
        QCOMPARE(groups.at(2).lines.first().becomes, u"SN-01"_s);
    }

    void whatChanges_data()
    {
        QTest::addColumn<std::function<void(Equipment&)>>("change");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const std::function<void(Equipment&)>& change, const QString& text) {
            QTest::newRow(name) << change << text;
        };
        row(
            "name", [](Equipment& i) { i.name = u"Faro"_s; }, u"Faro, Nome: Faro → Torcia"_s);
        row(
            "brand", [](Equipment& i) { i.brand = u"B"_s; }, u"Torcia, Marca: B → Marca"_s);
        row(
            "emptied", [](Equipment& i) { i.model.clear(); }, u"Torcia, Modello: vuoto → Modello"_s);
        row(
            "type", [](Equipment& i) { i.customTypeName = u"Faro"_s; }, u"Torcia, Tipo: Faro → GAV"_s);
        row(
            "state", [](Equipment& i) { i.isActive = false; }, u"Torcia, Stato: Inattivo → Attivo"_s);
        row(
            "date", [](Equipment& i) { i.purchaseDate = at("2024-02-03T03:04:05Z"); },
            u"Torcia, Data Acquisto: 3 feb 2024 → 2 gen 2024"_s);
        row(
            "time of the day", [](Equipment& i) { i.purchaseDate += 1h; }, u"Torcia, Data Acquisto"_s);
        row(
            "notes of lines", [](Equipment& i) { i.notes = u"una\ndue"_s; }, u"Torcia, Note: una due → Note"_s);
        row(
            "several",
            [](Equipment& i) {
                i.name = u"Faro"_s;
                i.notes = u"-"_s;
            },
            u"Faro, Nome, Note"_s);
        row(
            "record gone", [](Equipment& i) { i.maintenanceHistory.removeFirst(); }, u"Torcia, torna 1 manutenzione"_s);
        row(
            "records gone", [](Equipment& i) { i.maintenanceHistory.clear(); }, u"Torcia, tornano 2 manutenzioni"_s);
        row(
            "record new", [](Equipment& i) { i.maintenanceHistory.append(maintenance(13)); },
            u"Torcia, sparisce 1 manutenzione"_s);
        row(
            "record changed", [](Equipment& i) { i.maintenanceHistory[1].cost = 1; },
            u"Torcia, cambia 1 manutenzione"_s);
        row(
            "both", [](Equipment& i) { i.maintenanceHistory[0].id = SequentialIds::at(99); },
            u"Torcia, 2 manutenzioni"_s);
        row(
            "fields and records",
            [](Equipment& i) {
                i.notes = u"-"_s;
                i.maintenanceHistory.clear();
            },
            u"Torcia, Note, tornano 2 manutenzioni"_s);
        row(
            "order", [](Equipment& i) { i.maintenanceHistory.swapItemsAt(0, 1); },
            u"Torcia, ordine delle manutenzioni"_s);
    }

    void whatChanges()
    {
        QFETCH(std::function<void(Equipment&)>, change);
        RegisterFixture f(QList{torch()});
        keep(f);
        Equipment changed = f.equipment.equipment().first();
        change(changed);
        f.equipment.updateEquipment(changed);
        QFETCH(QString, text);
        QCOMPARE(texts(f), QStringList{u"Cambiano 1: "_s + text});
    }

    void types()
    {
        RegisterFixture f(QList{torch()});
        f.types.setTypes({equipmentType(1, u"Faro"_s), equipmentType(2, u"Boa"_s), equipmentType(3, u"Rete"_s)});
        f.types.saveTypes();
        keep(f);
        EquipmentTypeModel renewed = equipmentType(9, u"Rete"_s); // another id: nobody sees a difference
        EquipmentTypeModel changed = equipmentType(2, u"Boa"_s);
        changed.color = u"RED"_s;
        f.types.setTypes({changed, renewed, equipmentType(4, u"Sonda"_s)});
        QCOMPARE(texts(f), (QStringList{u"Tipologie che tornano 1: Faro"_s, u"Tipologie che spariscono 1: Sonda"_s,
                                        u"Tipologie che cambiano 1: Boa, Colore: Rosso → Grigio"_s}));
        changed.icon = u"dive.mask"_s;
        changed.serviceIntervalDays = 30;
        f.types.setTypes({equipmentType(1, u"Faro"_s), changed, renewed});
        QCOMPARE(texts(f), QStringList{u"Tipologie che cambiano 1: Boa, Intervallo Tagliando, Colore, Icona"_s});
    }

    void settings()
    {
        RegisterFixture f(QList{torch()});
        keep(f);
        f.settings.setDarkMode(true);
        QCOMPARE(texts(f), QStringList{u"Impostazioni 1: Cambiano, Modalità Scura: sì → no"_s});
        f.settings.setReminderDays(7);
        QCOMPARE(texts(f), QStringList{u"Impostazioni 2: Cambiano, Giorni di anticipo, Modalità Scura"_s});
    }

    void documentsThatComeBack()
    {
        RegisterFixture f(QList{torch()});
        Equipment item = f.equipment.equipment().first();
        item.maintenanceHistory[0].receiptFileName = f.storedDocument(u"a.pdf"_s);
        item.maintenanceHistory[0].certificateFileName = f.storedDocument(u"b.pdf"_s);
        item.maintenanceHistory[1].receiptFileName = f.storedDocument(u"c.pdf"_s);
        f.equipment.updateEquipment(item);
        keep(f);
        f.archive.archive(*item.maintenanceHistory[0].receiptFileName);
        f.archive.archive(*item.maintenanceHistory[0].certificateFileName);
        QCOMPARE(texts(f), QStringList{u"Documenti che tornano 2: Scontrino del 14 mar 2025, Torcia | "
                                       "Certificato del 14 mar 2025, Torcia"_s});
    }

    void manyOfASortAreCounted()
    {
        QList<Equipment> many;
        for (int i = 0; i < 130; ++i)
            many.append(equipment(i + 100, u"Articolo %1"_s.arg(i)));
        RegisterFixture f(QList{torch()});
        forgetStates(f);
        f.write(u"backups/20260601T100000.000Z-import/savedEquipment.json"_s, encode(many).value());
        RestoreContent content = contentOf(f);
        const DifferenceGroup group = comparison(content, 0).groups.first();
        QCOMPARE(group.total, 130);
        QCOMPARE(group.lines.size(), 100);
        QCOMPARE(group.rest(), u"e altri 30"_s);
        DifferenceGroup few{DifferenceGroup::Kind::Returning, {}, 0, {}};
        few.add({u"uno"_s, {}, {}});
        QCOMPARE(few.rest(), QString());
    }

    void whatIsUnreadable()
    {
        RegisterFixture f(QList{torch(), equipment(2, u"Pinne"_s)});
        forgetStates(f);
        QByteArray damaged = f.content(registerFile);
        damaged.replace("Pinne\"", "Pinne\",\"isActive\":7,\"x\":\"");
        f.write(u"backups/20260601T100000.000Z-unreadable/savedEquipment.json"_s, damaged);
        f.write(u"backups/20260501T100000.000Z-unreadable/savedEquipment.json"_s, "nonsense");
        RestoreContent content = contentOf(f);
        QCOMPARE(content.states().size(), 2);
        QVERIFY(content.row(0).isWarning);
        QVERIFY(comparison(content, 0).canBeRestored);
        const RestorePreview nothing = comparison(content, 1);
        QVERIFY(!nothing.canBeRestored);
        QCOMPARE(nothing.subtitle, u"Niente di leggibile"_s);
        QVERIFY(nothing.groups.isEmpty());
    }

    void aStateWithoutARegisterTouchesOnlyWhatItHas()
    {
        RegisterFixture f(QList{torch()});
        f.settings.setReminderDays(7);
        f.settings.setDarkMode(true);
        forgetStates(f);
        f.write(u"backups/20260601T100000.000Z-foreign/equipmentTypes.json"_s, encode(f.types.types().mid(1)).value());
        f.write(u"backups/20260601T100000.000Z-foreign/darkMode.json"_s, "false");
        QCOMPARE(texts(f), (QStringList{u"Tipologie che spariscono 1: "_s + f.types.types().first().name,
                                        u"Impostazioni 1: Cambiano, Modalità Scura: sì → no"_s}));
        RestoreContent content = contentOf(f);
        QCOMPARE(readRow(content, 0).counts, u"15 tipologie"_s);
        QVERIFY(comparison(content, 0).canBeRestored);
    }

    void groupsBeginOnce()
    {
        RegisterFixture f(QList{torch()});
        forgetStates(f);
        for (const char* name : {"20260615T080000.000Z-import", "20260615T070000.000Z-import",
                                 "20260614T070000.000Z-import", "20260501T070000.000Z-import"})
            f.write(u"backups/%1/savedEquipment.json"_s.arg(QLatin1String(name)), "[]");
        f.write(QDir(f.folder.path()).relativeFilePath(f.directories.emergency()) +
                    u"/20240101T000000.000Z-emergency/savedEquipment.json"_s,
                "[]");
        RestoreContent content = contentOf(f);
        QStringList titles;
        for (qsizetype i = 0; i < content.states().size(); ++i)
            titles.append(content.groupTitleAbove(i));
        QDir(f.directories.emergency()).removeRecursively();
        QCOMPARE(titles, (QStringList{u"Non salvato"_s, u"Oggi"_s, {}, u"Ieri"_s, u"Maggio"_s}));
    }

    void rowsAreReadOnce()
    {
        RegisterFixture f(QList{torch()});
        forgetStates(f);
        const QString name = u"backups/20260615T080000.000Z-import/savedEquipment.json"_s;
        f.write(name, encode(QList{torch(), equipment(2)}).value());
        RestoreContent content = contentOf(f);
        const QSignalSpy read(&content, &RestoreContent::rowRead);
        QCOMPARE(content.row(0).counts, u"…"_s);
        QCOMPARE(content.row(0).occasion, u"Prima di importare"_s);
        QCOMPARE(content.readRows(), 0);
        QCOMPARE(readRow(content, 0).counts, u"2 articoli · 2 manutenzioni"_s);
        f.write(name, "[]");
        QCOMPARE(readRow(content, 0).counts, u"2 articoli · 2 manutenzioni"_s);
        QCOMPARE(content.readRows(), 1);
        QCOMPARE(read.size(), 1);
    }

    void onlyWhatIsWantedLastIsCompared()
    {
        RegisterFixture f(QList{torch()});
        keep(f);
        f.equipment.addEquipment(equipment(2));
        keep(f);
        RestoreContent content = contentOf(f);
        const QSignalSpy compared(&content, &RestoreContent::compared);
        f.work.beSlow();
        const RestorePreview beginning = content.compare(0);
        QCOMPARE(beginning.title, u"15 giugno 2026, 12:01"_s);
        QCOMPARE(beginning.subtitle, u"Lettura in corso…"_s);
        QVERIFY(!beginning.canBeRestored);
        QCoreApplication::processEvents();
        QCOMPARE(f.work.held(), 1);
        content.compare(1);
        f.work.finish(); // nobody wants that one any more
        QCOMPARE(compared.size(), 0);
        f.work.finish();
        QCOMPARE(compared.size(), 1);
        QCOMPARE(compared.first().first().value<RestorePreview>().title, u"15 giugno 2026, 12:00"_s);
    }

    void theLastOneAskedForIsReadFirst()
    {
        RegisterFixture f(QList{torch()});
        forgetStates(f);
        for (int minute = 10; minute < 60; ++minute)
            f.write(u"backups/20260501T08%1.000Z-import/savedEquipment.json"_s.arg(minute * 100), "[]");
        RestoreContent content = contentOf(f);
        QList<qsizetype> order;
        QObject::connect(&content, &RestoreContent::rowRead, &content, [&order](qsizetype i) { order.append(i); });
        QVERIFY(content.states().size() > 40);
        for (qsizetype index = 0; index < 40; ++index)
            static_cast<void>(content.row(index));
        QCoreApplication::processEvents();
        QCOMPARE(order.size(), 32); // what was asked for long before is forgotten
        QCOMPARE(order.first(), 39);
        QCOMPARE(order.last(), 8);
        QCOMPARE(f.work.titles().first(), QString());
    }

    void nobodyReadsForAContentThatIsGone()
    {
        RegisterFixture f(QList{torch()});
        keep(f);
        std::optional<RestoreContent> content;
        content.emplace(
            RestoreContent::Sources{f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac});
        f.work.beSlow();
        content->compare(0);
        QCoreApplication::processEvents();
        content.reset();
        QVERIFY(f.work.progress().isCancelled());
        f.work.finish();
    }
};

ABISSORA_TEST(tst_RestoreContent);
#include "tst_RestoreContent.moc"
