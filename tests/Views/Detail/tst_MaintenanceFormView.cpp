// SPDX-License-Identifier: MIT
#include "MaintenanceFormView.h"
#include "ScaledText.h"

#include "Buttons.h"
#include "ClippedTexts.h"
#include "CostField.h"
#include "DateField.h"
#include "DetailParts.h"
#include "GroupBox.h"
#include "TestRunner.h"
#include "ToggleSwitch.h"

#include <QAccessible>
#include <QComboBox>
#include <QPlainTextEdit>
#include <bit>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The form over a window, for an item of this kind.
struct Shown
{
    explicit Shown(const std::optional<Maintenance>& editing = std::nullopt,
                   EquipmentType kind = EquipmentType::regulator)
    {
        Equipment item = makeItem(1, QStringLiteral("Articolo"), kind, f.inDays(100));
        if (editing)
            item.maintenanceHistory = {*editing};
        id = item.id;
        f.equipment.addEquipment(item);
        below.resize(1280, 1300);
        below.show();
        open(editing);
    }

    void open(const std::optional<Maintenance>& editing)
    {
        form = std::make_unique<MaintenanceFormView>(f.context, id, editing, &below);
        form->open();
        settle();
    }
    template <typename Field>
    Field& field(const char* name)
    {
        return part<Field>(*form, QLatin1String(name));
    }
    void typeDate(const char* name, const QString& text)
    {
        auto& date = field<DateField>(name);
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, text);
        QTest::keyClick(&date, Qt::Key_Tab);
    }
    void save() { click(*form, QStringLiteral("primary")); }
    [[nodiscard]] QList<Maintenance> history() const { return f.equipment.equipment().last().maintenanceHistory; }

    ScreenFixture f;
    QUuid id;
    QWidget below;
    std::unique_ptr<MaintenanceFormView> form;
};

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
        Shown s;
        QCOMPARE(s.form->windowTitle(), QStringLiteral("Nuova Manutenzione"));
        QCOMPARE(s.form->cancelButton()->text(), QStringLiteral("Annulla"));
        QCOMPARE(s.form->primaryButton()->text(), QStringLiteral("Salva"));
        QVERIFY(!s.form->primaryButton()->isEnabled());
        QStringList groups;
        for (const GroupBox* group : s.form->findChildren<GroupBox*>())
            groups.append(group->title());
        QCOMPARE(groups, QStringList({QStringLiteral("Dettagli Manutenzione"),
                                      QStringLiteral("Informazioni Aggiuntive"), QStringLiteral("Esito e Documenti"),
                                      QStringLiteral("Prossimo Tagliando"), QStringLiteral("Note")}));
        QCOMPARE(s.field<DateField>("date").text(), QStringLiteral("15/06/2026"));
        QCOMPARE(s.field<QLineEdit>("description").placeholderText(), QStringLiteral("Inserisci la descrizione"));
        QCOMPARE(s.field<QLineEdit>("performedBy").placeholderText(), QStringLiteral("Nome del tecnico"));
        QCOMPARE(s.field<CostField>("cost").cost(), std::optional(0.0));
        QVERIFY(s.field<ToggleSwitch>("isCompleted").isChecked());
        QCOMPARE(s.field<QAbstractButton>("attachScontrino").text(), QStringLiteral("Carica scontrino (PDF)"));
        QCOMPARE(s.field<QAbstractButton>("attachCertificato").text(), QStringLiteral("Carica certificato (PDF)"));
        auto& type = s.field<QComboBox>("type");
        QStringList kinds;
        for (int i = 0; i < type.count(); ++i)
            kinds.append(type.itemText(i));
        QCOMPARE(kinds, QStringList({QStringLiteral("Manutenzione Annuale"), QStringLiteral("Riparazione"),
                                     QStringLiteral("Test"), QStringLiteral("Pulizia"), QStringLiteral("Altro")}));
        QCOMPARE(type.currentIndex(), 0);
    }

    void interval_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("typeDays");
        QTest::addColumn<QString>("typeName");
        QTest::addColumn<int>("expected");
        const auto regulator = static_cast<int>(EquipmentType::regulator);
        const auto computer = static_cast<int>(EquipmentType::computer);
        QTest::newRow("of the type") << regulator << 180 << QStringLiteral("Erogatore") << 180;
        QTest::newRow("unmatched") << regulator << 180 << QStringLiteral("Pinne") << 365;
        QTest::newRow("exact case") << regulator << 180 << QStringLiteral("erogatore") << 365;
        QTest::newRow("unmatched computer") << computer << 180 << QStringLiteral("Pinne") << 730;
        QTest::newRow("computer of a type") << computer << 90 << QStringLiteral("Computer Subacqueo") << 90;
        QTest::newRow("none") << regulator << 0 << QStringLiteral("Erogatore") << 1;
        QTest::newRow("negative") << regulator << -5 << QStringLiteral("Erogatore") << 1;
    }

    void interval()
    {
        QFETCH(int, kind);
        QFETCH(int, typeDays);
        QFETCH(QString, typeName);
        QFETCH(int, expected);
        Shown s(std::nullopt, static_cast<EquipmentType>(kind));
        s.f.types.setTypes({typeCalled(typeName, typeDays)});
        s.open(std::nullopt);
        QCOMPARE(s.form->equipmentIntervalDays(), expected);
        QCOMPARE(textOf(*s.form, QStringLiteral("intervalExplanation")),
                 QStringLiteral("Calcolata automaticamente: %1 giorni dall'intervallo configurato per la tipologia")
                     .arg(expected));
        QCOMPARE(s.field<DateField>("nextServiceDate").instant(), s.f.inDays(expected));
    }

    void inactiveTypesAndUnknownItemsDoNotCount()
    {
        Shown s;
        EquipmentTypeModel inactive = typeCalled(QStringLiteral("Erogatore"), 10);
        inactive.isActive = false;
        s.f.types.setTypes({inactive});
        QCOMPARE(s.form->equipmentIntervalDays(), 365);
        s.f.equipment.deleteEquipment(s.f.equipment.equipment().last());
        QCOMPARE(s.form->equipmentIntervalDays(), 365);
    }

    void intervalBeyondTheCalendar()
    {
        Shown s;
        EquipmentTypeModel type = typeCalled(QStringLiteral("Erogatore"), 1);
        type.serviceIntervalDays = std::numeric_limits<std::int64_t>::max();
        s.f.types.setTypes({type});
        s.open(std::nullopt);
        QCOMPARE(s.field<DateField>("nextServiceDate").instant(), s.f.clock.now());
    }

    void nextDateFollowsTheDateUntilChangedByHand()
    {
        Shown s;
        s.f.types.setTypes({typeCalled(QStringLiteral("Erogatore"), 10)});
        s.typeDate("date", QStringLiteral("01062026"));
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), QStringLiteral("11/06/2026"));
        s.typeDate("nextServiceDate", QStringLiteral("31122026"));
        s.typeDate("date", QStringLiteral("02062026"));
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), QStringLiteral("31/12/2026"));
    }

    void editingChangesNothingUntilTheDateChanges()
    {
        ScreenFixture f;
        Maintenance record = makeRecord(f, 1, 30, QStringLiteral("Vecchia"));
        record.nextServiceDate = f.inDays(777);
        Shown s(record);
        QCOMPARE(s.form->windowTitle(), QStringLiteral("Modifica Manutenzione"));
        QCOMPARE(s.field<DateField>("nextServiceDate").instant(), record.nextServiceDate);
        s.save();
        QCOMPARE(s.history(), QList({record}));
        s.open(record);
        s.f.types.setTypes({typeCalled(QStringLiteral("Erogatore"), 10)});
        s.typeDate("date", QStringLiteral("01062026"));
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), QStringLiteral("11/06/2026"));
    }

    void untouchedRecordComesBackBitForBit()
    {
        ScreenFixture f;
        Maintenance record = makeRecord(f, 1, 30, QStringLiteral("a\u00a0b\tc\nd\u2028e"));
        record.type = MaintenanceType::cleaning;
        record.cost = 0.1 + 0.2;
        record.notes = QStringLiteral("uno\r\ndue\u00a0tre");
        record.performedBy = QStringLiteral(" spazi ");
        record.isCompleted = false;
        record.receiptFileName = QStringLiteral("SPARITO.pdf");
        record.date += std::chrono::milliseconds(123);
        Shown s(record);
        s.save();
        QCOMPARE(s.history(), QList({record}));
        QCOMPARE(std::bit_cast<std::uint64_t>(s.history().first().cost), std::bit_cast<std::uint64_t>(record.cost));
    }

    void everyFieldIsSaved()
    {
        Shown s;
        QVERIFY(s.field<QLineEdit>("description").hasFocus());
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("Revisione"));
        QTest::keyClicks(&s.field<QComboBox>("type"), QStringLiteral("R"));
        QTest::keyClicks(&s.field<QLineEdit>("performedBy"), QStringLiteral("Blu Service"));
        QTest::keyClicks(&s.field<CostField>("cost"), QStringLiteral("1.234,50"));
        QTest::mouseClick(&s.field<ToggleSwitch>("isCompleted"), Qt::LeftButton);
        QTest::keyClicks(&s.field<QPlainTextEdit>("notes"), QStringLiteral("nota"));
        s.typeDate("date", QStringLiteral("01062026"));
        s.typeDate("nextServiceDate", QStringLiteral("01062027"));
        const int idsBefore = s.f.ids.count();
        s.save();
        QVERIFY(!s.form->isVisible());
        const Maintenance saved = s.history().value(0);
        QCOMPARE(saved.id, SequentialIds::at(idsBefore + 1));
        QCOMPARE(saved.description, QStringLiteral("Revisione"));
        QCOMPARE(saved.type, MaintenanceType::repair);
        QCOMPARE(saved.performedBy, QStringLiteral("Blu Service"));
        QCOMPARE(saved.cost, 1234.5);
        QCOMPARE(saved.isCompleted, std::optional(false));
        QCOMPARE(saved.notes, QStringLiteral("nota"));
        QCOMPARE(s.f.context.dates.dayAndTime(saved.date), QStringLiteral("01/06/2026 12:00"));
        QCOMPARE(s.f.context.dates.dayAndTime(saved.nextServiceDate), QStringLiteral("01/06/2027 12:00"));
        QCOMPARE(s.f.equipment.equipment().last().nextServiceDate, saved.nextServiceDate);
    }

    void whatAScreenReaderPutsInIsSaved()
    {
        Shown s;
        const auto putIn = [&s](const char* name, const QString& text) {
            QAccessible::queryAccessibleInterface(&s.field<QWidget>(name))->setText(QAccessible::Value, text);
        };
        putIn("description", QStringLiteral("Revisione"));
        putIn("performedBy", QStringLiteral("Blu Service"));
        putIn("cost", QStringLiteral("45,50"));
        putIn("notes", QStringLiteral("nota"));
        s.save();
        const Maintenance saved = s.history().value(0);
        QCOMPARE(saved.description, QStringLiteral("Revisione"));
        QCOMPARE(saved.performedBy, QStringLiteral("Blu Service"));
        QCOMPARE(saved.cost, 45.5);
        QCOMPARE(saved.notes, QStringLiteral("nota"));
    }

    void dateStillBeingTypedIsSaved()
    {
        Shown s;
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("x"));
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, QStringLiteral("01062026"));
        QTest::keyClick(&date, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(s.f.context.dates.dayAndTime(s.history().value(0).date), QStringLiteral("01/06/2026 12:00"));
    }

    void descriptionIsRequiredAsItStands()
    {
        Shown s;
        QTest::keyClick(s.form.get(), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(s.form->isVisible());
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("  "));
        QVERIFY(s.form->primaryButton()->isEnabled());
        s.save();
        QCOMPARE(s.history().value(0).description, QStringLiteral("  "));
    }

    void unfinishedCostIsNotSaved()
    {
        Shown s;
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("x"));
        QTest::keyClicks(&s.field<CostField>("cost"), QStringLiteral("1.234.5"));
        s.save();
        QVERIFY(s.form->isVisible());
        QVERIFY(s.field<CostField>("cost").hasFocus());
        QCOMPARE(s.history(), QList<Maintenance>());
    }

    void unfinishedDatesAreNotSaved()
    {
        Shown s;
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("Prova"));
        s.typeDate("nextServiceDate", QStringLiteral("12/2027"));
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClick(&date, Qt::Key_Delete);
        s.save();
        QVERIFY(s.history().isEmpty());
        QVERIFY(date.hasFocus());
        QVERIFY(textOf(*s.form, QStringLiteral("dateError")).startsWith(QStringLiteral("Manca la data")));
        s.typeDate("date", QStringLiteral("01/06/2026"));
        QVERIFY(!isShown(*s.form, QStringLiteral("dateError")));
        // The next date follows no more: what stands there unfinished is the person's own.
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), QStringLiteral("12/2027"));
        s.save();
        QVERIFY(s.history().isEmpty());
        QVERIFY(s.field<DateField>("nextServiceDate").hasFocus());
        s.typeDate("nextServiceDate", QStringLiteral("01/12/2027"));
        s.save();
        QCOMPARE(s.history().size(), 1);
    }

    void cancellingChangesNothing()
    {
        Shown s;
        const QList<Equipment> before = s.f.equipment.equipment();
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("x"));
        s.f.takeLog();
        QTest::keyClick(s.form.get(), Qt::Key_Escape);
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.f.equipment.equipment(), before);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void unknownItemIsIgnored()
    {
        Shown s;
        s.f.equipment.deleteEquipment(s.f.equipment.equipment().last());
        const QList<Equipment> before = s.f.equipment.equipment();
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("x"));
        s.save();
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.f.equipment.equipment(), before);
    }

    void tabOrderAndNames()
    {
        Shown s;
        s.form->activateWindow();
        s.form->cancelButton()->setFocus();
        QStringList order;
        QTest::keyClicks(&s.field<QLineEdit>("description"), QStringLiteral("x"));
        for (int i = 0; i < 12; ++i) {
            QWidget* const focused = QApplication::focusWidget();
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(focused);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(focused->objectName()));
            order.append(focused->objectName());
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(order,
                 QStringList({QStringLiteral("cancel"), QStringLiteral("primary"), QStringLiteral("date"),
                              QStringLiteral("type"), QStringLiteral("description"), QStringLiteral("performedBy"),
                              QStringLiteral("cost"), QStringLiteral("isCompleted"), QStringLiteral("attachScontrino"),
                              QStringLiteral("attachCertificato"), QStringLiteral("nextServiceDate"),
                              QStringLiteral("notes")}));
    }

    void nothingIsCutOffWithLargerText()
    {
        const ScaledText scaled(1.25);
        Shown s;
        QCOMPARE(clippedTexts(*s.form), QStringList());
    }
};

ABISSORA_TEST(tst_MaintenanceFormView);

#include "tst_MaintenanceFormView.moc"
