// SPDX-License-Identifier: MIT
#include "EquipmentFormView.h"
#include "Literals.h"

#include "Builders.h"
#include "DateField.h"
#include "FormParts.h"
#include "RegisterFixture.h"
#include "TestRunner.h"
#include "Theme.h"

using namespace abissora;
using namespace abissora::test;

namespace {

const QDate firstDay(1, 1, 1);
const QDate lastDay(9999, 12, 31);

Almanac almanacIn(const RegisterFixture& f, const QByteArray& zone)
{
    const Calendar calendar{QTimeZone(zone)};
    return {f.clock, calendar, DateFormat(QLocale(QLocale::Italian, QLocale::Italy), calendar)};
}

QList<Equipment> onDisk(const RegisterFixture& f)
{
    return decodeEquipment(f.content(registerFile)).value();
}

} // namespace

class tst_FarDatesInForms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void zones()
    {
        QTest::addColumn<QByteArray>("zone");
        for (const char* zone :
             {"Europe/Rome", "America/New_York", "Asia/Tokyo", "Pacific/Kiritimati", "Pacific/Pago_Pago", "UTC"})
            QTest::newRow(zone) << QByteArray(zone);
    }

    void aNewItemWithThemIsStored_data() { zones(); }

    void aNewItemWithThemIsStored()
    {
        QFETCH(QByteArray, zone);
        for (const int hour : {0, 11, 23}) {
            RegisterFixture f(QList{equipment(1)});
            const Almanac almanac = almanacIn(f, zone);
            f.clock.set(almanac.calendar.instant(QDate(2026, 6, 15), QTime(hour, 30)).value());
            EquipmentFormView form(f.equipment, f.types, almanac, f.ids);
            form.open();
            activate(form);
            type(form, "name", u"Lontano"_s);
            type(form, "brand", u"Marca"_s);
            type(form, "purchaseDate", u"01/01/0001"_s);
            type(form, "lastServiceDate", u"31/12/9999"_s);
            // The next service would lie beyond the calendar.
            QCOMPARE(textOf(form, "nextServiceDate"), u"15 giu 2026"_s);
            click(form, "primary");
            QVERIFY(!form.isVisible());
            const QList<Equipment> stored = onDisk(f);
            QCOMPARE(stored.size(), 2);
            QCOMPARE(stored.first(), equipment(1));
            QCOMPARE(almanac.calendar.local(stored.last().purchaseDate).date(), firstDay);
            QCOMPARE(almanac.calendar.local(stored.last().lastServiceDate).date(), lastDay);
            QCOMPARE(almanac.dates.longDate(stored.last().lastServiceDate), u"31 dicembre 9999"_s);
        }
    }

    void anItemIsChangedToThemAndAround_data() { zones(); }

    void anItemIsChangedToThemAndAround()
    {
        QFETCH(QByteArray, zone);
        RegisterFixture f(QList{equipment(1), equipment(2)});
        const Almanac almanac = almanacIn(f, zone);
        {
            EditEquipmentView form(f.equipment, f.types, almanac, f.equipment.equipment().first());
            form.open();
            activate(form);
            type(form, "purchaseDate", u"31/12/9999"_s);
            type(form, "lastServiceDate", u"01/01/0001"_s);
            click(form, "primary");
            QVERIFY(!form.isVisible());
        }
        const Equipment changed = onDisk(f).constFirst();
        QCOMPARE(almanac.calendar.local(changed.purchaseDate).date(), lastDay);
        QCOMPARE(almanac.calendar.local(changed.lastServiceDate).date(), firstDay);
        QCOMPARE(onDisk(f).constLast(), equipment(2));

        // As read back, another field is changed.
        f.equipment.loadEquipment();
        EditEquipmentView form(f.equipment, f.types, almanac, f.equipment.equipment().first());
        form.open();
        activate(form);
        QCOMPARE(usable<DateField>(form, "purchaseDate").text(), u"31/12/9999"_s);
        QCOMPARE(usable<DateField>(form, "lastServiceDate").text(), u"01/01/0001"_s);
        type(form, "name", u"Altro nome"_s);
        click(form, "primary");
        QVERIFY(!form.isVisible());
        QCOMPARE(onDisk(f).constFirst().name, u"Altro nome"_s);
        QCOMPARE(onDisk(f).constFirst().purchaseDate, changed.purchaseDate);
        QCOMPARE(onDisk(f).constFirst().lastServiceDate, changed.lastServiceDate);
    }

    void storedOnesAreKeptUntouched_data() { zones(); }

    void storedOnesAreKeptUntouched()
    {
        QFETCH(QByteArray, zone);
        Equipment far = equipment(1);
        far.purchaseDate = at("0001-01-01T00:00:00Z");
        far.lastServiceDate = at("9999-12-31T23:59:59Z");
        RegisterFixture f(QList{far, equipment(2)});
        EditEquipmentView form(f.equipment, f.types, almanacIn(f, zone), far);
        form.open();
        activate(form);
        QCOMPARE(usable<DateField>(form, "purchaseDate").text(), u"01/01/0001"_s);
        QCOMPARE(usable<DateField>(form, "lastServiceDate").text(), u"31/12/9999"_s);
        // Through every field without changing any.
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        type(form, "name", u"Altro nome"_s);
        click(form, "primary");
        QVERIFY(!form.isVisible());
        QCOMPARE(onDisk(f).constFirst().name, u"Altro nome"_s);
        QCOMPARE(onDisk(f).constFirst().purchaseDate, far.purchaseDate);
        QCOMPARE(onDisk(f).constFirst().lastServiceDate, far.lastServiceDate);
        QCOMPARE(onDisk(f).constLast(), equipment(2));
    }

    void aDayWithoutAnInstantIsNotSaved()
    {
        RegisterFixture f(QList{equipment(1)});
        const Almanac almanac = almanacIn(f, "FAR24"); // where the last day lies in the year 10000 of UTC
        EditEquipmentView form(f.equipment, f.types, almanac, equipment(1));
        form.open();
        activate(form);
        type(form, "purchaseDate", u"31/12/9999"_s);
        click(form, "primary");
        QVERIFY(form.isVisible());
        QVERIFY(usable<DateField>(form, "purchaseDate").hasFocus());
        QVERIFY(usable<DateField>(form, "purchaseDate").error().startsWith(u"Data non valida"_s));
        QCOMPARE(onDisk(f), QList{equipment(1)});
        type(form, "purchaseDate", u"30/12/9999"_s);
        click(form, "primary");
        QVERIFY(!form.isVisible());
        QCOMPARE(almanac.calendar.local(onDisk(f).constFirst().purchaseDate).date(), QDate(9999, 12, 30));
    }
};

ABISSORA_TEST(tst_FarDatesInForms);

#include "tst_FarDatesInForms.moc"
