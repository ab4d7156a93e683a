// SPDX-License-Identifier: MIT
#include "EquipmentFormView.h"
#include "Literals.h"

#include "Alert.h"
#include "Builders.h"
#include "Cards.h"
#include "DateField.h"
#include "FocusInSight.h"
#include "FormParts.h"
#include "RegisterFixture.h"
#include "TestRunner.h"
#include "Theme.h"
#include "ToggleSwitch.h"

#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

struct OpenEdit
{
    OpenEdit(RegisterFixture& f, const Almanac& almanac, const Equipment& item)
        : form(f.equipment, f.types, almanac, item)
        , saved(&form, &EditEquipmentView::saved)
    {
        form.open();
        activate(form);
    }
    OpenEdit(RegisterFixture& f, const Equipment& item)
        : OpenEdit(f, f.almanac, item)
    {}

    EditEquipmentView form;
    QSignalSpy saved;
};

/// An item as the form would write it: saving it unchanged changes nothing.
Equipment settled(const RegisterFixture& f)
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
        RegisterFixture f;
        const Equipment item = settled(f);
        OpenEdit o(f, item);
        QCOMPARE(o.form.windowTitle(), u"Modifica Attrezzatura"_s);
        QStringList groups;
        for (const GroupBox* group : o.form.findChildren<GroupBox*>())
            groups.append(group->title());
        QCOMPARE(groups,
                 QStringList({u"Informazioni Generali"_s, u"Dettagli Tecnici"_s, u"Date"_s, u"Stato"_s, u"Note"_s}));
        QCOMPARE(usable<QLineEdit>(o.form, "name").text(), item.name);
        QCOMPARE(usable<QLineEdit>(o.form, "brand").text(), item.brand);
        QCOMPARE(usable<QLineEdit>(o.form, "model").text(), item.model);
        QCOMPARE(usable<QLineEdit>(o.form, "serialNumber").text(), item.serialNumber);
        QCOMPARE(usable<DateField>(o.form, "purchaseDate").text(), u"29/03/2020"_s);
        QCOMPARE(chosenType(o.form), u"Erogatore"_s);
        QCOMPARE(textOf(o.form, "interval"), u"365 giorni"_s);
        QCOMPARE(usable<ToggleSwitch>(o.form, "isActive").text(), u"Attivo"_s);
        QVERIFY(usable<ToggleSwitch>(o.form, "isActive").isChecked());
        QVERIFY(!isShown(o.form, "incomplete"));
        QVERIFY(isShown(o.form, "required"));
        QCOMPARE(QApplication::focusWidget(), &usable<QLineEdit>(o.form, "name"));
    }

    void theFirstEmptyRequiredFieldHasTheFocus()
    {
        RegisterFixture f;
        Equipment item = settled(f);
        item.brand = u" "_s;
        OpenEdit o(f, item);
        QCOMPARE(QApplication::focusWidget(), &usable<QLineEdit>(o.form, "brand"));
        QVERIFY(isShown(o.form, "incomplete"));
    }

    void writesEveryFieldAndKeepsTheRest()
    {
        RegisterFixture f;
        const Equipment item = settled(f);
        f.equipment.addEquipment(item);
        OpenEdit o(f, item);
        type(o.form, "name", u"Luce"_s);
        choose(o.form, u"Torcia"_s);
        type(o.form, "brand", u"Altra"_s);
        type(o.form, "model", QString());
        type(o.form, "serialNumber", u"9"_s);
        type(o.form, "purchaseDate", u"30/03/2020"_s);
        type(o.form, "lastServiceDate", u"25/10/2026"_s);
        click(o.form, "isActive");
        type(o.form, "notes", u"nuove"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"25 ott 2027"_s);
        QSignalSpy changed(&f.equipment, &EquipmentViewModel::equipmentChanged);
        f.console.clear();
        click(o.form, "primary");

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
        RegisterFixture f;
        Equipment item = settled(f);
        item.type = EquipmentType::other;
        item.customTypeName = u"Torcia"_s;
        f.equipment.addEquipment(item);
        OpenEdit o(f, item);
        QCOMPARE(chosenType(o.form), u"Torcia"_s);
        choose(o.form, u"Bombola"_s);
        click(o.form, "primary");
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
        RegisterFixture f;
        const Calendar calendar{QTimeZone(zone)};
        const Almanac almanac{f.clock, calendar, f.almanac.dates};
        Equipment item = settled(f);
        item.lastServiceDate = lastService;
        item.nextServiceDate = *calendar.addDays(lastService, 365);
        f.equipment.addEquipment(item);
        const auto before = f.equipment.equipment();
        const auto stored = f.preferences.data(StorageManager::equipmentKey).value();
        for (int times = 0; times < 3; ++times) {
            OpenEdit o(f, almanac, f.equipment.equipment().last());
            QCOMPARE(f.preferences.data(StorageManager::equipmentKey).value(), stored);
            // Through every field without changing any.
            for (int i = 0; i < 12; ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            click(o.form, "primary");
            QCOMPARE(f.equipment.equipment(), before);
            QCOMPARE(f.preferences.data(StorageManager::equipmentKey).value(), stored);
        }
    }

    void longAndManyLinedTextsSurvive()
    {
        RegisterFixture f;
        Equipment item = settled(f);
        item.name = QString(50'000, u'x');
        item.brand = u"due\nrighe"_s;
        f.equipment.addEquipment(item);
        OpenEdit o(f, item);
        click(o.form, "primary");
        QCOMPARE(f.equipment.equipment().last(), item);
    }

    void aDeletedTypeIsStillShown()
    {
        RegisterFixture f;
        Equipment item = settled(f);
        item.type = EquipmentType::other;
        item.customTypeName = u"Faro"_s;
        f.equipment.addEquipment(item);
        OpenEdit o(f, item);
        QCOMPARE(chosenType(o.form), u"Faro"_s);
        QCOMPARE(offeredTypes(o.form).size(), 17);
        QCOMPARE(offeredTypes(o.form).constLast(), u"Faro"_s);
        QVERIFY(!usable<TypePicker>(o.form, "type").itemIcon(16).isNull());
        QVERIFY(!isShown(o.form, "interval"));
        click(o.form, "primary");
        QCOMPARE(f.equipment.equipment().last(), item);
    }

    void anotherChoiceDropsTheDeletedType()
    {
        RegisterFixture f;
        Equipment item = settled(f);
        item.customTypeName = u"Faro"_s;
        OpenEdit o(f, item);
        choose(o.form, u"Computer Subacqueo"_s);
        QVERIFY(!offeredTypes(o.form).contains(u"Faro"_s));
        QCOMPARE(textOf(o.form, "interval"), u"730 giorni"_s);
    }

    void theIntervalFollowsTheCatalogue()
    {
        RegisterFixture f;
        OpenEdit o(f, settled(f));
        EquipmentTypeModel type = *f.types.getTypeByName(u"Erogatore"_s);
        type.serviceIntervalDays = 30;
        f.types.updateType(type);
        QCOMPARE(textOf(o.form, "interval"), u"30 giorni"_s);
        type.isActive = false;
        f.types.updateType(type);
        QVERIFY(!isShown(o.form, "interval"));
        QCOMPARE(chosenType(o.form), u"Erogatore"_s); // as the appended entry
    }

    void escapeWritesNothing()
    {
        RegisterFixture f;
        const Equipment item = settled(f);
        f.equipment.addEquipment(item);
        OpenEdit o(f, item);
        type(o.form, "name", u"Altro nome"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!o.form.isVisible());
        QCOMPARE(f.equipment.equipment().last(), item);
        QVERIFY(o.saved.isEmpty());
    }

    void anEmptiedFieldAlerts()
    {
        RegisterFixture f;
        const Equipment item = settled(f);
        f.equipment.addEquipment(item);
        OpenEdit o(f, item);
        type(o.form, "brand", QString());
        click(o.form, "primary");
        QVERIFY(findDialog<Alert>(o.form));
        QTest::keyClick(&openDialog<Alert>(o.form), Qt::Key_Return);
        QVERIFY(!findDialog<Alert>(o.form));
        QCOMPARE(f.equipment.equipment().last(), item);
        QVERIFY(o.saved.isEmpty());
    }

    void tabFollowsTheReadingOrder()
    {
        RegisterFixture f;
        OpenEdit o(f, settled(f));
        QStringList order;
        for (int i = 0; i < 11; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"name"_s, u"type"_s, u"brand"_s, u"model"_s, u"serialNumber"_s, u"purchaseDate"_s,
                                     u"lastServiceDate"_s, u"isActive"_s, u"notes"_s, u"cancel"_s, u"primary"_s}));
    }

    void whatHasTheFocusIsInSight_data() { addWindowSizes(); }

    void whatHasTheFocusIsInSight()
    {
        QFETCH(QSize, size);
        RegisterFixture f;
        QWidget window;
        window.resize(size);
        window.show();
        EditEquipmentView form(f.equipment, f.types, f.almanac, settled(f), &window);
        form.open();
        activate(form);
        QCOMPARE(stopsOutOfSight(form), QStringList());
        QCOMPARE(stopsOutOfSight(form, true), QStringList());
        QVERIFY(part(form, "required").visibleRegion().boundingRect() == part(form, "required").rect());
        QTest::keyClick(form.focusWidget(), Qt::Key_E, Qt::AltModifier);
        QVERIFY(usable(form, "notes").hasFocus());
        for (int line = 0; line < 20; ++line) {
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
            QVERIFY(isFocusInSight(form));
        }
        QTest::keyClick(form.focusWidget(), Qt::Key_V, Qt::AltModifier);
        QTRY_VERIFY(!usable<ToggleSwitch>(form, "isActive").isChecked());
    }
};

ABISSORA_TEST(tst_EditEquipmentView);

#include "tst_EditEquipmentView.moc"
