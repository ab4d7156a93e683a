// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Cards.h"
#include "ClippedTexts.h"
#include "DateField.h"
#include "FormParts.h"
#include "Literals.h"
#include "ScaledText.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

QStringList visibleTexts(const QWidget& form)
{
    QStringList texts;
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

} // namespace

class tst_EquipmentFormView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void textsInOrder()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        QCOMPARE(o.form.windowTitle(), u"Nuova Attrezzatura"_s);
        QStringList groups;
        for (const GroupBox* group : o.form.findChildren<GroupBox*>()) {
            if (group->isVisible())
                groups.append(group->title());
        }
        QCOMPARE(groups, QStringList({u"Informazioni Generali"_s, u"Dettagli Tecnici"_s, u"Date"_s, u"Note"_s}));
        QStringList texts = visibleTexts(o.form);
        texts.removeOne(u"Nuova Attrezzatura"_s);
        QCOMPARE(texts, QStringList({u"Informazioni Generali"_s, u"Nome*"_s, u"Tipo*"_s, u"Dettagli Tecnici"_s,
                                     u"Marca*"_s, u"Modello"_s, u"Numero Seriale"_s, u"Date"_s, u"Data Acquisto"_s,
                                     u"Ultimo Tagliando"_s, u"Prossimo Tagliando"_s, u"15 giu 2027"_s, u"Note"_s,
                                     u"* Campi obbligatori"_s, u"Compila tutti i campi obbligatori"_s}));
        QCOMPARE(usable<QLineEdit>(o.form, "name").placeholderText(), u"Inserisci il nome"_s);
        QCOMPARE(usable<QLineEdit>(o.form, "brand").placeholderText(), u"Inserisci la marca"_s);
        QCOMPARE(usable<QLineEdit>(o.form, "model").placeholderText(), u"Inserisci il modello"_s);
        QCOMPARE(usable<QLineEdit>(o.form, "serialNumber").placeholderText(), u"Inserisci il numero seriale"_s);
        QCOMPARE(usable<QAbstractButton>(o.form, "cancel").text(), u"Annulla"_s);
        QCOMPARE(usable<QAbstractButton>(o.form, "primary").text(), u"Salva"_s);
    }

    void startsEmptyOnToday()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        for (const char* field : {"name", "brand", "model", "serialNumber"})
            QCOMPARE(usable<QLineEdit>(o.form, field).text(), QString());
        for (const char* field : {"purchaseDate", "lastServiceDate"})
            QCOMPARE(usable<DateField>(o.form, field).instant(), f.clock.now());
        QCOMPARE(chosenType(o.form), u"Erogatore"_s);
        QCOMPARE(offeredTypes(o.form).size(), 16);
        QCOMPARE(QApplication::focusWidget(), &usable<QLineEdit>(o.form, "name"));
        QVERIFY(!isShown(o.form, "isActive"));
        QVERIFY(!isShown(o.form, "interval"));
        QVERIFY(isShown(o.form, "incomplete"));
    }

    void addsWhatWasEntered()
    {
        RegisterFixture f(QList<Equipment>{});
        OpenEquipmentForm o(f);
        type(o.form, "name", u"  Bombola 12 litri "_s);
        choose(o.form, u"Bombola"_s);
        type(o.form, "brand", u"Faber"_s);
        type(o.form, "model", u" Hot Dipped"_s);
        type(o.form, "serialNumber", u"A-1 "_s);
        type(o.form, "purchaseDate", u"29/02/2024"_s);
        type(o.form, "lastServiceDate", u"31/12/2025"_s);
        type(o.form, "notes", u" due righe"_s);
        QTest::keyClick(&usable<QPlainTextEdit>(o.form, "notes"), Qt::Key_Return);
        QTest::keyClicks(&usable<QPlainTextEdit>(o.form, "notes"), u"di note "_s);
        QVERIFY(!isShown(o.form, "incomplete"));
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"31 dic 2026"_s);
        const int idsBefore = f.ids.count();
        QSignalSpy changed(&f.equipment, &EquipmentViewModel::equipmentChanged);
        f.console.clear();
        click(o.form, "primary");

        Equipment expected;
        expected.id = SequentialIds::at(idsBefore + 1);
        expected.name = u"Bombola 12 litri"_s;
        expected.type = EquipmentType::cylinder;
        expected.brand = u"Faber"_s;
        expected.model = u"Hot Dipped"_s;
        expected.serialNumber = u"A-1"_s;
        const QTime time = f.calendar.local(f.clock.now()).time();
        expected.purchaseDate = *f.calendar.instant(QDate(2024, 2, 29), time);
        expected.lastServiceDate = *f.calendar.instant(QDate(2025, 12, 31), time);
        expected.nextServiceDate = *f.calendar.instant(QDate(2026, 12, 31), time);
        expected.notes = u"due righe\ndi note"_s;
        QCOMPARE(f.equipment.equipment(), QList<Equipment>{expected});
        QCOMPARE(changed.size(), 1);
        QCOMPARE(f.takeLog(), QStringList(u"➕ Aggiunto equipaggiamento: Bombola 12 litri"_s));
        QVERIFY(!o.form.isVisible());
        QCOMPARE(o.form.result(), int{QDialog::Accepted});
    }

    void aTypeOfTheUsersOwnIsStoredByName()
    {
        RegisterFixture f(QList<Equipment>{});
        OpenEquipmentForm o(f);
        type(o.form, "name", u"Luce"_s);
        type(o.form, "brand", u"X"_s);
        choose(o.form, u"Torcia"_s);
        click(o.form, "primary");
        QCOMPARE(f.equipment.equipment().first().type, EquipmentType::other);
        QCOMPARE(f.equipment.equipment().first().customTypeName, std::optional(u"Torcia"_s));
    }

    void anInvalidFormAlertsAndKeepsEverything_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("focused");
        QTest::newRow("nothing") << QString() << QString() << u"name"_s;
        QTest::newRow("no brand") << u"Nome"_s << QString() << u"brand"_s;
        QTest::newRow("spaces") << u"   "_s << u"Marca"_s << u"name"_s;
    }

    void anInvalidFormAlertsAndKeepsEverything()
    {
        QFETCH(QString, name);
        QFETCH(QString, brand);
        QFETCH(QString, focused);
        RegisterFixture f;
        OpenEquipmentForm o(f);
        type(o.form, "name", name);
        type(o.form, "brand", brand);
        type(o.form, "model", u"Modello"_s);
        QVERIFY(isShown(o.form, "incomplete"));
        click(o.form, "primary");
        Alert* alert = findDialog<Alert>(o.form);
        QVERIFY(alert);
        QCOMPARE(alert->windowTitle(), u"Errore"_s);
        QCOMPARE(alert->message(), u"Per favore, compila tutti i campi obbligatori."_s);
        QStringList buttons;
        for (const QAbstractButton* button : alert->findChildren<QAbstractButton*>()) {
            if (button->isVisible())
                buttons.append(button->text());
        }
        QCOMPARE(buttons, QStringList(u"OK"_s));
        click(*alert, "safe");
        QVERIFY(!findDialog<Alert>(o.form));
        QVERIFY(o.form.isVisible());
        QCOMPARE(f.equipment.equipment().size(), 3);
        QCOMPARE(usable<QLineEdit>(o.form, "name").text(), name);
        QCOMPARE(usable<QLineEdit>(o.form, "model").text(), u"Modello"_s);
        o.form.activateWindow();
        QCOMPARE(o.form.focusWidget()->objectName(), focused);
        QVERIFY(o.form.rect().contains(o.form.focusWidget()->mapTo(&o.form, QPoint(0, 0))));
    }

    void theFootnoteFollowsTheFields()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        const QSize before = o.form.size();
        type(o.form, "name", u"N"_s);
        QVERIFY(isShown(o.form, "incomplete"));
        type(o.form, "brand", u"B"_s);
        QVERIFY(!isShown(o.form, "incomplete"));
        QVERIFY(isShown(o.form, "required"));
        QCOMPARE(o.form.size(), before);
        type(o.form, "name", u" "_s);
        QVERIFY(isShown(o.form, "incomplete"));
    }

    void cancelAndEscapeSaveNothing()
    {
        RegisterFixture f;
        for (const bool byKey : {false, true}) {
            OpenEquipmentForm o(f);
            type(o.form, "name", u"N"_s);
            type(o.form, "brand", u"B"_s);
            f.console.clear();
            if (byKey)
                QTest::keyClick(&usable<QLineEdit>(o.form, "brand"), Qt::Key_Escape);
            else
                click(o.form, "cancel");
            QVERIFY(!o.form.isVisible());
            QCOMPARE(f.takeLog(), QStringList());
        }
        QCOMPARE(f.equipment.equipment().size(), 3);
        QVERIFY(!f.preferences.data(StorageManager::equipmentKey).value());
    }

    void controlReturnSavesWithTheDayBeingTyped()
    {
        RegisterFixture f(QList<Equipment>{});
        OpenEquipmentForm o(f);
        type(o.form, "name", u"N"_s);
        type(o.form, "brand", u"B"_s);
        type(o.form, "lastServiceDate", u"1/2/25"_s);
        QTest::keyClick(&usable<DateField>(o.form, "lastServiceDate"), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!o.form.isVisible());
        const Equipment item = f.equipment.equipment().first();
        QCOMPARE(f.calendar.local(item.lastServiceDate).date(), QDate(2025, 2, 1));
        QCOMPARE(f.calendar.local(item.nextServiceDate).date(), QDate(2026, 2, 1));
    }

    void anUnfinishedDateIsNotSaved()
    {
        RegisterFixture f(QList<Equipment>{});
        OpenEquipmentForm o(f);
        type(o.form, "name", u"Pinne"_s);
        type(o.form, "brand", u"Mares"_s);
        type(o.form, "purchaseDate", u"31/02/2026"_s);
        type(o.form, "lastServiceDate", u"1/2"_s);
        QTest::keyClick(&o.form, Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(o.form.isVisible());
        QVERIFY(!findDialog<Alert>(o.form));
        QVERIFY(f.equipment.equipment().isEmpty());
        auto& date = usable<DateField>(o.form, "purchaseDate");
        QVERIFY(date.hasFocus());
        QCOMPARE(date.selectedText(), u"31/02/2026"_s);
        QCOMPARE(visibleTexts(o.form).filter(u"Data non valida"_s).size(), 2);

        type(o.form, "purchaseDate", u"28/02/2026"_s);
        type(o.form, "lastServiceDate", u"1/2/26"_s);
        QTest::keyClick(&o.form, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(f.equipment.equipment().size(), 1);
        QCOMPARE(f.almanac.dates.abbreviatedDate(f.equipment.equipment().first().lastServiceDate), u"1 feb 2026"_s);
    }

    void returnInAFieldSavesNothing()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        type(o.form, "name", u"N"_s);
        type(o.form, "brand", u"B"_s);
        QTest::keyClick(&usable<QLineEdit>(o.form, "brand"), Qt::Key_Return);
        QVERIFY(o.form.isVisible());
        QCOMPARE(f.equipment.equipment().size(), 3);
    }

    void theNextServiceIsLive()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        choose(o.form, u"Computer Subacqueo"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"14 giu 2028"_s);
        type(o.form, "lastServiceDate", u"01/01/2025"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"1 gen 2027"_s);
        type(o.form, "purchaseDate", u"01/01/2020"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"1 gen 2027"_s);
        EquipmentTypeModel computer = *f.types.getTypeByName(u"Computer Subacqueo"_s);
        computer.serviceIntervalDays = 1;
        f.types.updateType(computer);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"2 gen 2025"_s);
    }

    void theTypeIsChosenAnewWhenItIsNoLongerOffered()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        choose(o.form, u"Pinne"_s);
        f.types.deleteType(*f.types.getTypeByName(u"Muta"_s));
        QCOMPARE(chosenType(o.form), u"Pinne"_s);
        QCOMPARE(offeredTypes(o.form).size(), 15);
        f.types.deleteType(*f.types.getTypeByName(u"Pinne"_s));
        QCOMPARE(chosenType(o.form), u"Erogatore"_s);
        f.types.deleteType(*f.types.getTypeByName(u"Erogatore"_s));
        QCOMPARE(chosenType(o.form), u"Altro"_s); // the first
        f.types.setSearchText(u"stagna"_s);
        QCOMPARE(offeredTypes(o.form), QStringList(u"Muta Stagna"_s));
        QCOMPARE(chosenType(o.form), u"Muta Stagna"_s);
        f.types.setTypes({});
        QCOMPARE(chosenType(o.form), QString());
        f.types.setSearchText({});
        f.types.setTypes(f.types.getDefaultTypes());
        QCOMPARE(chosenType(o.form), u"Erogatore"_s);
    }

    void tabFollowsTheReadingOrder()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        QStringList order;
        for (int i = 0; i < 11; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"name"_s, u"type"_s, u"brand"_s, u"model"_s, u"serialNumber"_s, u"purchaseDate"_s,
                                     u"lastServiceDate"_s, u"notes"_s, u"cancel"_s, u"primary"_s, u"name"_s}));
    }

    void fieldsAreNamedByTheirLabels()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        const QList<QPair<const char*, QString>> names{
            {"name", u"Nome*"_s},
            {"brand", u"Marca*"_s},
            {"model", u"Modello"_s},
            {"serialNumber", u"Numero Seriale"_s},
            {"purchaseDate", u"Data Acquisto"_s},
            {"lastServiceDate", u"Ultimo Tagliando"_s},
            {"notes", u"Note"_s},
            {"cancel", u"Annulla"_s},
            {"primary", u"Salva"_s},
        };
        for (const auto& [part, name] : names) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&usable(o.form, part));
            QCOMPARE(accessible->text(QAccessible::Name), name);
        }
        QAccessibleInterface* picker = QAccessible::queryAccessibleInterface(&usable(o.form, "type"));
        QCOMPARE(picker->text(QAccessible::Name), u"Tipo*: Erogatore"_s);
        QCOMPARE(picker->text(QAccessible::Value), u"Erogatore"_s);
        const auto labels = picker->relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first().first->text(QAccessible::Name), u"Tipo*"_s);
    }

    void nothingIsCutOffWithLargerText()
    {
        const ScaledText scaled(1.25);
        RegisterFixture f;
        OpenEquipmentForm o(f);
        QCOMPARE(clippedTexts(o.form).join(u'|'), QString());
        for (const char* field : {"purchaseDate", "lastServiceDate", "name", "type"})
            QVERIFY(usable(o.form, field).height() >= usable(o.form, field).sizeHint().height());
        QVERIFY(o.form.width() < 1000 && o.form.height() < 700);
    }
};

ABISSORA_TEST(tst_EquipmentFormView);

#include "tst_EquipmentFormView.moc"
