// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "Cards.h"
#include "ClippedTexts.h"
#include "CostField.h"
#include "Literals.h"
#include "MaintenanceFormParts.h"
#include "ScaledText.h"
#include "TestRunner.h"
#include "ToggleSwitch.h"

#include <QAccessible>
#include <QComboBox>
#include <QPlainTextEdit>
#include <bit>

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel typeCalled(const QString& name, int days)
{
    EquipmentTypeModel type;
    type.name = name;
    type.serviceIntervalDays = days;
    return type;
}

} // namespace

class tst_MaintenanceFormView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newForm()
    {
        ShownMaintenanceForm s;
        QCOMPARE(s.form->windowTitle(), u"Nuova Manutenzione"_s);
        QCOMPARE(s.form->cancelButton()->text(), u"Annulla"_s);
        QCOMPARE(s.form->primaryButton()->text(), u"Salva"_s);
        QVERIFY(!s.form->primaryButton()->isEnabled());
        QStringList groups;
        for (const GroupBox* group : s.form->findChildren<GroupBox*>())
            groups.append(group->title());
        QCOMPARE(groups, QStringList({u"Dettagli Manutenzione"_s, u"Informazioni Aggiuntive"_s, u"Esito e Documenti"_s,
                                      u"Prossimo Tagliando"_s, u"Note"_s}));
        QCOMPARE(s.field<DateField>("date").text(), u"15/06/2026"_s);
        QCOMPARE(s.field<QLineEdit>("description").placeholderText(), u"Inserisci la descrizione"_s);
        QCOMPARE(s.field<QLineEdit>("performedBy").placeholderText(), u"Nome del tecnico"_s);
        QCOMPARE(s.field<CostField>("cost").cost(), std::optional(0.0));
        QVERIFY(s.field<ToggleSwitch>("isCompleted").isChecked());
        QCOMPARE(s.field<QAbstractButton>("attachScontrino").text(), u"Carica scontrino (PDF)"_s);
        QCOMPARE(s.field<QAbstractButton>("attachCertificato").text(), u"Carica certificato (PDF)"_s);
        auto& type = s.field<QComboBox>("type");
        QStringList kinds;
        for (int i = 0; i < type.count(); ++i)
            kinds.append(type.itemText(i));
        QCOMPARE(kinds,
                 QStringList({u"Manutenzione Annuale"_s, u"Riparazione"_s, u"Test"_s, u"Pulizia"_s, u"Altro"_s}));
        QCOMPARE(type.currentIndex(), 0);
    }

    void intervalIsExplained()
    {
        ShownMaintenanceForm s;
        s.f.types.setTypes({typeCalled(u"Erogatore"_s, 180)});
        s.open(std::nullopt);
        QCOMPARE(textOf(*s.form, u"intervalExplanation"_s),
                 u"Calcolata automaticamente: 180 giorni dall'intervallo configurato per la tipologia"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").instant(), s.f.inDays(180));
    }

    void nextDateFollowsTheDateUntilChangedByHand()
    {
        ShownMaintenanceForm s;
        s.f.types.setTypes({typeCalled(u"Erogatore"_s, 10)});
        s.typeDate("date", u"01062026"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"11/06/2026"_s);
        s.typeDate("nextServiceDate", u"31122026"_s);
        s.typeDate("date", u"02062026"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"31/12/2026"_s);
    }

    void editingChangesNothing()
    {
        Maintenance record = makeRecord(1, 30, u"Vecchia"_s);
        record.nextServiceDate += std::chrono::days(412);
        ShownMaintenanceForm s(record);
        QCOMPARE(s.form->windowTitle(), u"Modifica Manutenzione"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").instant(), record.nextServiceDate);
        s.save();
        QCOMPARE(s.history(), QList({record}));
    }

    void untouchedRecordComesBackBitForBit()
    {
        Maintenance record = makeRecord(1, 30, u"a\u00a0b\tc\nd\u2028e"_s);
        record.type = MaintenanceType::cleaning;
        record.cost = 0.1 + 0.2;
        record.notes = u"uno\r\ndue\u00a0tre"_s;
        record.performedBy = u" spazi "_s;
        record.isCompleted = false;
        record.receiptFileName = u"SPARITO.pdf"_s;
        record.date += std::chrono::milliseconds(123);
        ShownMaintenanceForm s(record);
        s.save();
        QCOMPARE(s.history(), QList({record}));
        QCOMPARE(std::bit_cast<std::uint64_t>(s.history().constFirst().cost),
                 std::bit_cast<std::uint64_t>(record.cost));
    }

    void everyFieldIsSaved()
    {
        ShownMaintenanceForm s;
        QVERIFY(s.field<QLineEdit>("description").hasFocus());
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"Revisione"_s);
        QTest::keyClicks(&s.field<QComboBox>("type"), u"R"_s);
        QTest::keyClicks(&s.field<QLineEdit>("performedBy"), u"Blu Service"_s);
        QTest::keyClicks(&s.field<CostField>("cost"), u"1.234,50"_s);
        QTest::mouseClick(&s.field<ToggleSwitch>("isCompleted"), Qt::LeftButton);
        QTest::keyClicks(&s.field<QPlainTextEdit>("notes"), u"nota"_s);
        s.typeDate("date", u"01062026"_s);
        s.typeDate("nextServiceDate", u"01062027"_s);
        const int idsBefore = s.f.ids.count();
        s.save();
        QVERIFY(!s.form->isVisible());
        const Maintenance saved = s.history().value(0);
        QCOMPARE(saved.id, SequentialIds::at(idsBefore + 1));
        QCOMPARE(saved.description, u"Revisione"_s);
        QCOMPARE(saved.type, MaintenanceType::repair);
        QCOMPARE(saved.performedBy, u"Blu Service"_s);
        QCOMPARE(saved.cost, 1234.5);
        QCOMPARE(saved.isCompleted, std::optional(false));
        QCOMPARE(saved.notes, u"nota"_s);
        QCOMPARE(s.f.almanac.dates.dayAndTime(saved.date), u"01/06/2026 12:00"_s);
        QCOMPARE(s.f.almanac.dates.dayAndTime(saved.nextServiceDate), u"01/06/2027 12:00"_s);
        QCOMPARE(s.f.equipment.equipment().last().nextServiceDate, saved.nextServiceDate);
    }

    void whatAScreenReaderPutsInIsSaved()
    {
        ShownMaintenanceForm s;
        const auto putIn = [&s](const char* name, const QString& text) {
            QAccessible::queryAccessibleInterface(&s.field<QWidget>(name))->setText(QAccessible::Value, text);
        };
        putIn("description", u"Revisione"_s);
        putIn("performedBy", u"Blu Service"_s);
        putIn("cost", u"45,50"_s);
        putIn("notes", u"nota"_s);
        s.save();
        const Maintenance saved = s.history().value(0);
        QCOMPARE(saved.description, u"Revisione"_s);
        QCOMPARE(saved.performedBy, u"Blu Service"_s);
        QCOMPARE(saved.cost, 45.5);
        QCOMPARE(saved.notes, u"nota"_s);
    }

    void dateStillBeingTypedIsSaved()
    {
        ShownMaintenanceForm s;
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"x"_s);
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, u"01062026"_s);
        QTest::keyClick(&date, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(s.f.almanac.dates.dayAndTime(s.history().value(0).date), u"01/06/2026 12:00"_s);
    }

    void theEndsOfTheCalendarCanBeTyped_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QTime>("timeOfDay");
        for (const char* zone :
             {"Europe/Rome", "America/New_York", "Asia/Tokyo", "Pacific/Kiritimati", "Pacific/Pago_Pago", "UTC"}) {
            QTest::addRow("%s early", zone) << QByteArray(zone) << QTime(0, 10);
            QTest::addRow("%s late", zone) << QByteArray(zone) << QTime(23, 50);
        }
    }

    void theEndsOfTheCalendarCanBeTyped()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QTime, timeOfDay);
        const Calendar calendar{QTimeZone(zone)};
        ShownMaintenanceForm s;
        s.f.clock.set(calendar.instant(QDate(2026, 6, 15), timeOfDay).value());
        const Almanac almanac{s.f.clock, calendar, s.f.almanac.dates};
        const auto onDisk = [&s] { return decodeEquipment(s.f.content(registerFile)).value().last(); };
        const auto open = [&](const std::optional<Maintenance>& editing) {
            s.form = std::make_unique<MaintenanceFormView>(std::make_unique<MaintenanceDraft>(s.f.equipment, s.f.types,
                                                                                              s.f.documents, s.f.ids,
                                                                                              almanac, s.id, editing),
                                                           s.f.opener, &s.below);
            s.form->open();
            settle();
        };
        open(std::nullopt);
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"x"_s);
        s.typeDate("date", u"31/12/9999"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"31/12/9999"_s); // the calendar reaches no further
        s.typeDate("nextServiceDate", u"01/01/0001"_s);
        s.save();
        QVERIFY(!s.form->isVisible());
        const Maintenance stored = onDisk().maintenanceHistory.value(0);
        QCOMPARE(calendar.local(stored.date).date(), QDate(9999, 12, 31));
        QCOMPARE(calendar.local(stored.nextServiceDate).date(), QDate(1, 1, 1));
        QCOMPARE(onDisk().lastServiceDate, stored.date);

        // As read back, another field is changed.
        open(stored);
        QCOMPARE(s.field<DateField>("date").text(), u"31/12/9999"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"01/01/0001"_s);
        QTest::keyClicks(&s.field<QLineEdit>("performedBy"), u"Blu"_s);
        s.save();
        QVERIFY(!s.form->isVisible());
        Maintenance expected = stored;
        expected.performedBy = u"Blu"_s;
        QCOMPARE(onDisk().maintenanceHistory, QList{expected});
    }

    void descriptionIsRequiredAsItStands()
    {
        ShownMaintenanceForm s;
        QTest::keyClick(s.form.get(), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(s.form->isVisible());
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"  "_s);
        QVERIFY(s.form->primaryButton()->isEnabled());
        s.save();
        QCOMPARE(s.history().value(0).description, u"  "_s);
    }

    void whatIsNoCostIsNotSaved()
    {
        ShownMaintenanceForm s;
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"x"_s);
        QVERIFY(s.form->primaryButton()->isEnabled());
        const int height = s.form->height();
        QTest::keyClicks(&s.field<CostField>("cost"), u"1.234.5"_s);
        QVERIFY(!s.form->primaryButton()->isEnabled());
        QCOMPARE(textOf(*s.form, u"noCost"_s), u"Il costo non è un importo valido"_s);
        QCOMPARE(s.form->height(), height);
        QTest::keyClick(&s.field<CostField>("cost"), Qt::Key_Return, Qt::ControlModifier);
        s.form->save();
        QVERIFY(s.form->isVisible());
        QCOMPARE(s.history(), QList<Maintenance>());
        QTest::keyClicks(&s.field<CostField>("cost"), u"e"_s);
        QVERIFY(textOf(*s.form, u"error"_s).startsWith(u"Importo non valido"_s));
        QTest::keyClick(&s.field<CostField>("cost"), Qt::Key_Backspace);
        QTest::keyClicks(&s.field<CostField>("cost"), u"00"_s);
        QVERIFY(!isShown(*s.form, u"noCost"_s));
        QVERIFY(!isShown(*s.form, u"error"_s));
        s.save();
        QCOMPARE(s.history().value(0).cost, 1234500.0);
    }

    void unfinishedDatesAreNotSaved()
    {
        ShownMaintenanceForm s;
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"Prova"_s);
        s.typeDate("nextServiceDate", u"12/2027"_s);
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClick(&date, Qt::Key_Delete);
        s.save();
        QVERIFY(s.history().isEmpty());
        QVERIFY(date.hasFocus());
        QVERIFY(textOf(*s.form, u"dateError"_s).startsWith(u"Manca la data"_s));
        s.typeDate("date", u"01/06/2026"_s);
        QVERIFY(!isShown(*s.form, u"dateError"_s));
        // The next date follows no more: what stands there unfinished is the person's own.
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"12/2027"_s);
        s.save();
        QVERIFY(s.history().isEmpty());
        QVERIFY(s.field<DateField>("nextServiceDate").hasFocus());
        s.typeDate("nextServiceDate", u"01/12/2027"_s);
        s.save();
        QCOMPARE(s.history().size(), 1);
    }

    void cancellingChangesNothing()
    {
        ShownMaintenanceForm s;
        const QList<Equipment> before = s.f.equipment.equipment();
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"x"_s);
        s.f.takeLog();
        QTest::keyClick(s.form.get(), Qt::Key_Escape);
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.f.equipment.equipment(), before);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void unknownItemIsIgnored()
    {
        ShownMaintenanceForm s;
        s.f.equipment.deleteEquipment(s.f.equipment.equipment().last());
        const QList<Equipment> before = s.f.equipment.equipment();
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"x"_s);
        s.save();
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.f.equipment.equipment(), before);
    }

    void tabOrderAndNames()
    {
        ShownMaintenanceForm s;
        s.form->activateWindow();
        s.form->cancelButton()->setFocus();
        QStringList order;
        QTest::keyClicks(&s.field<QLineEdit>("description"), u"x"_s);
        for (int i = 0; i < 12; ++i) {
            QWidget* const focused = QApplication::focusWidget();
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(focused);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(focused->objectName()));
            order.append(focused->objectName());
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"cancel"_s, u"primary"_s, u"date"_s, u"type"_s, u"description"_s,
                                     u"performedBy"_s, u"cost"_s, u"isCompleted"_s, u"attachScontrino"_s,
                                     u"attachCertificato"_s, u"nextServiceDate"_s, u"notes"_s}));
    }

    void nothingIsCutOffWithLargerText()
    {
        const ScaledText scaled(1.25);
        ShownMaintenanceForm s;
        QCOMPARE(clippedTexts(*s.form), QStringList());
    }
};

ABISSORA_TEST(tst_MaintenanceFormView);

#include "tst_MaintenanceFormView.moc"
