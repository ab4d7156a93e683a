// SPDX-License-Identifier: MIT
#include "EditEquipmentView.h"
#include "Literals.h"

#include "Cards.h"
#include "FormDriver.h"
#include "ScreenFixture.h"
#include "TestRunner.h"
#include "Theme.h"
#include "ToggleSwitch.h"

#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

struct Open
{
    Open(const AppContext& context, const Equipment& item)
        : form(context, item)
        , driver(form)
        , saved(&form, &EditEquipmentView::saved)
    {
        form.open();
        form.activateWindow();
        QCoreApplication::processEvents();
    }

    EditEquipmentView form;
    FormDriver driver;
    QSignalSpy saved;
};

Instant at(const char* iso)
{
    return Instant(
        std::chrono::milliseconds(QDateTime::fromString(QLatin1String(iso), Qt::ISODateWithMs).toMSecsSinceEpoch()));
}

/// An item as the form would write it: saving it unchanged changes nothing.
Equipment settled(const ScreenFixture& f)
{
    Equipment item = makeItem(1, u"Erogatore vecchio"_s, EquipmentType::regulator, {});
    item.serialNumber = u"A\u00A0B"_s;
    item.purchaseDate = at("2020-03-29T00:59:59.999Z");
    item.lastServiceDate = f.inDays(-200);
    item.nextServiceDate = *f.calendar.addDays(item.lastServiceDate, 365);
    item.notes = u"prima\r\nseconda\u00A0riga\u2028terza"_s;
    item.maintenanceHistory.append(Maintenance());
    return item;
}

} // namespace

class tst_EditEquipmentView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void startsWithTheItem()
    {
        ScreenFixture f;
        const Equipment item = settled(f);
        Open o(f.context, item);
        QCOMPARE(o.form.windowTitle(), u"Modifica Attrezzatura"_s);
        QStringList groups;
        for (const GroupBox* group : o.form.findChildren<GroupBox*>())
            groups.append(group->title());
        QCOMPARE(groups,
                 QStringList({u"Informazioni Generali"_s, u"Dettagli Tecnici"_s, u"Date"_s, u"Stato"_s, u"Note"_s}));
        QCOMPARE(o.driver.part<QLineEdit>("name").text(), item.name);
        QCOMPARE(o.driver.part<QLineEdit>("brand").text(), item.brand);
        QCOMPARE(o.driver.part<QLineEdit>("model").text(), item.model);
        QCOMPARE(o.driver.part<QLineEdit>("serialNumber").text(), item.serialNumber);
        QCOMPARE(o.driver.part<DateField>("purchaseDate").text(), u"29/03/2020"_s);
        QCOMPARE(o.driver.chosenType(), u"Erogatore"_s);
        QCOMPARE(o.driver.text("interval"), u"365 giorni"_s);
        QCOMPARE(o.driver.part<ToggleSwitch>("isActive").text(), u"Attivo"_s);
        QVERIFY(o.driver.part<ToggleSwitch>("isActive").isChecked());
        QVERIFY(!o.driver.shows("incomplete"));
        QVERIFY(o.driver.shows("required"));
        QCOMPARE(QApplication::focusWidget(), &o.driver.part<QLineEdit>("name"));
    }

    void theFirstEmptyRequiredFieldHasTheFocus()
    {
        ScreenFixture f;
        Equipment item = settled(f);
        item.brand = u" "_s;
        Open o(f.context, item);
        QCOMPARE(QApplication::focusWidget(), &o.driver.part<QLineEdit>("brand"));
        QVERIFY(o.driver.shows("incomplete"));
    }

    void writesEveryFieldAndKeepsTheRest()
    {
        ScreenFixture f;
        const Equipment item = settled(f);
        f.equipment.addEquipment(item);
        Open o(f.context, item);
        o.driver.type("name", u"Luce"_s);
        o.driver.choose(u"Torcia"_s);
        o.driver.type("brand", u"Altra"_s);
        o.driver.type("model", QString());
        o.driver.type("serialNumber", u"9"_s);
        o.driver.type("purchaseDate", u"30/03/2020"_s);
        o.driver.type("lastServiceDate", u"25/10/2026"_s);
        o.driver.click("isActive");
        o.driver.type("notes", u"nuove"_s);
        QCOMPARE(o.driver.text("nextServiceDate"), u"25 ott 2027"_s);
        QSignalSpy changed(&f.equipment, &EquipmentViewModel::equipmentChanged);
        f.console.clear();
        o.driver.save();

        Equipment expected = item;
        expected.name = u"Luce"_s;
        expected.type = EquipmentType::other;
        expected.customTypeName = u"Torcia"_s;
        expected.brand = u"Altra"_s;
        expected.model.clear();
        expected.serialNumber = u"9"_s;
        expected.purchaseDate = *f.calendar.instant(QDate(2020, 3, 30), f.calendar.local(item.purchaseDate).time());
        expected.lastServiceDate =
            *f.calendar.instant(QDate(2026, 10, 25), f.calendar.local(item.lastServiceDate).time());
        expected.nextServiceDate = *f.calendar.addDays(expected.lastServiceDate, 365);
        expected.isActive = false;
        expected.notes = u"nuove"_s;
        QCOMPARE(f.equipment.equipment().last(), expected);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(o.saved.size(), 1);
        QCOMPARE(o.saved.first().first().value<Equipment>(), expected);
        QCOMPARE(f.takeLog(), QStringList(u"✏️ Aggiornato equipaggiamento: Luce"_s));
        QVERIFY(!o.form.isVisible());
    }

    void toABuiltInKindClearsTheCustomName()
    {
        ScreenFixture f;
        Equipment item = settled(f);
        item.type = EquipmentType::other;
        item.customTypeName = u"Torcia"_s;
        f.equipment.addEquipment(item);
        Open o(f.context, item);
        QCOMPARE(o.driver.chosenType(), u"Torcia"_s);
        o.driver.choose(u"Bombola"_s);
        o.driver.save();
        QCOMPARE(f.equipment.equipment().last().type, EquipmentType::cylinder);
        QVERIFY(!f.equipment.equipment().last().customTypeName);
    }

    void savingUnchangedChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<Instant>("lastService");
        for (const char* zone : {"Europe/Rome", "UTC", "America/Sao_Paulo", "Pacific/Apia", "Asia/Kathmandu"}) {
            for (const char* instant :
                 {"2026-03-29T00:30:00.001Z", "2026-03-29T01:30:00.000Z", "2026-10-25T00:30:00.999Z",
                  "2026-10-25T01:30:00.999Z", "2018-11-04T02:59:00.500Z", "2011-12-30T09:59:59.999Z"})
                QTest::addRow("%s %s", zone, instant) << QByteArray(zone) << at(instant);
        }
    }

    void savingUnchangedChangesNothing()
    {
        QFETCH(QByteArray, zone);
        QFETCH(Instant, lastService);
        ScreenFixture f;
        AppContext context = f.context;
        context.calendar = Calendar(QTimeZone(zone));
        Equipment item = settled(f);
        item.lastServiceDate = lastService;
        item.nextServiceDate = *context.calendar.addDays(lastService, 365);
        f.equipment.addEquipment(item);
        const auto before = f.equipment.equipment();
        const auto stored = f.preferences.data(StorageManager::equipmentKey).value();
        for (int times = 0; times < 3; ++times) {
            Open o(context, f.equipment.equipment().last());
            QCOMPARE(f.preferences.data(StorageManager::equipmentKey).value(), stored);
            // Through every field without changing any.
            for (int i = 0; i < 12; ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            o.driver.save();
            QCOMPARE(f.equipment.equipment(), before);
            QCOMPARE(f.preferences.data(StorageManager::equipmentKey).value(), stored);
        }
    }

    void longAndManyLinedTextsSurvive()
    {
        ScreenFixture f;
        Equipment item = settled(f);
        item.name = QString(50'000, u'x');
        item.brand = u"due\nrighe"_s;
        f.equipment.addEquipment(item);
        Open o(f.context, item);
        o.driver.save();
        QCOMPARE(f.equipment.equipment().last(), item);
    }

    void aDeletedTypeIsStillShown()
    {
        ScreenFixture f;
        Equipment item = settled(f);
        item.type = EquipmentType::other;
        item.customTypeName = u"Faro"_s;
        f.equipment.addEquipment(item);
        Open o(f.context, item);
        QCOMPARE(o.driver.chosenType(), u"Faro"_s);
        QCOMPARE(o.driver.offeredTypes().size(), 17);
        QCOMPARE(o.driver.offeredTypes().last(), u"Faro"_s);
        QVERIFY(!o.driver.part<TypePicker>("type").itemIcon(16).isNull());
        QVERIFY(!o.driver.shows("interval"));
        o.driver.save();
        QCOMPARE(f.equipment.equipment().last(), item);
    }

    void anotherChoiceDropsTheDeletedType()
    {
        ScreenFixture f;
        Equipment item = settled(f);
        item.customTypeName = u"Faro"_s;
        Open o(f.context, item);
        o.driver.choose(u"Computer Subacqueo"_s);
        QVERIFY(!o.driver.offeredTypes().contains(u"Faro"_s));
        QCOMPARE(o.driver.text("interval"), u"730 giorni"_s);
    }

    void theIntervalFollowsTheCatalogue()
    {
        ScreenFixture f;
        Open o(f.context, settled(f));
        EquipmentTypeModel type = *f.types.getTypeByName(u"Erogatore"_s);
        type.serviceIntervalDays = 30;
        f.types.updateType(type);
        QCOMPARE(o.driver.text("interval"), u"30 giorni"_s);
        type.isActive = false;
        f.types.updateType(type);
        QVERIFY(!o.driver.shows("interval"));
        QCOMPARE(o.driver.chosenType(), u"Erogatore"_s); // as the appended entry
    }

    void escapeWritesNothing()
    {
        ScreenFixture f;
        const Equipment item = settled(f);
        f.equipment.addEquipment(item);
        Open o(f.context, item);
        o.driver.type("name", u"Altro nome"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!o.form.isVisible());
        QCOMPARE(f.equipment.equipment().last(), item);
        QVERIFY(o.saved.isEmpty());
    }

    void anEmptiedFieldAlerts()
    {
        ScreenFixture f;
        const Equipment item = settled(f);
        f.equipment.addEquipment(item);
        Open o(f.context, item);
        o.driver.type("brand", QString());
        o.driver.save();
        QVERIFY(o.driver.alert());
        QTest::keyClick(o.driver.alert(), Qt::Key_Return);
        QVERIFY(!o.driver.alert());
        QCOMPARE(f.equipment.equipment().last(), item);
        QVERIFY(o.saved.isEmpty());
    }

    void tabFollowsTheReadingOrder()
    {
        ScreenFixture f;
        Open o(f.context, settled(f));
        QStringList order;
        for (int i = 0; i < 11; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"name"_s, u"type"_s, u"brand"_s, u"model"_s, u"serialNumber"_s, u"purchaseDate"_s,
                                     u"lastServiceDate"_s, u"isActive"_s, u"notes"_s, u"cancel"_s, u"primary"_s}));
    }
};

ABISSORA_TEST(tst_EditEquipmentView);

#include "tst_EditEquipmentView.moc"
