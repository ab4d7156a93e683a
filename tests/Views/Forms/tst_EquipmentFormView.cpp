// SPDX-License-Identifier: MIT
#include "EquipmentFormView.h"
#include "ScaledText.h"

#include "ClippedTexts.h"
#include "FormDriver.h"
#include "GroupBox.h"
#include "ScreenFixture.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The form over a window of the smallest size.
struct Open
{
    explicit Open(ScreenFixture& f, QSize size = QSize(1000, 700))
        : form((window.resize(size), window.show(), f.context), &window)
        , driver(form)
    {
        form.open();
        form.activateWindow();
        QCoreApplication::processEvents();
    }

    QWidget window;
    EquipmentFormView form;
    FormDriver driver;
};

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
        ScreenFixture f;
        Open o(f);
        QCOMPARE(o.form.windowTitle(), QStringLiteral("Nuova Attrezzatura"));
        QStringList groups;
        for (const GroupBox* group : o.form.findChildren<GroupBox*>()) {
            if (group->isVisible())
                groups.append(group->title());
        }
        QCOMPARE(groups, QStringList({QStringLiteral("Informazioni Generali"), QStringLiteral("Dettagli Tecnici"),
                                      QStringLiteral("Date"), QStringLiteral("Note")}));
        QStringList texts = visibleTexts(o.form);
        texts.removeOne(QStringLiteral("Nuova Attrezzatura"));
        QCOMPARE(
            texts,
            QStringList({QStringLiteral("Informazioni Generali"), QStringLiteral("Nome*"), QStringLiteral("Tipo*"),
                         QStringLiteral("Dettagli Tecnici"), QStringLiteral("Marca*"), QStringLiteral("Modello"),
                         QStringLiteral("Numero Seriale"), QStringLiteral("Date"), QStringLiteral("Data Acquisto"),
                         QStringLiteral("Ultimo Tagliando"), QStringLiteral("Prossimo Tagliando"),
                         QStringLiteral("15 giu 2027"), QStringLiteral("Note"), QStringLiteral("* Campi obbligatori"),
                         QStringLiteral("Compila tutti i campi obbligatori")}));
        QCOMPARE(o.driver.part<QLineEdit>("name").placeholderText(), QStringLiteral("Inserisci il nome"));
        QCOMPARE(o.driver.part<QLineEdit>("brand").placeholderText(), QStringLiteral("Inserisci la marca"));
        QCOMPARE(o.driver.part<QLineEdit>("model").placeholderText(), QStringLiteral("Inserisci il modello"));
        QCOMPARE(o.driver.part<QLineEdit>("serialNumber").placeholderText(),
                 QStringLiteral("Inserisci il numero seriale"));
        QCOMPARE(o.driver.part<QAbstractButton>("cancel").text(), QStringLiteral("Annulla"));
        QCOMPARE(o.driver.part<QAbstractButton>("primary").text(), QStringLiteral("Salva"));
    }

    void startsEmptyOnToday()
    {
        ScreenFixture f;
        Open o(f);
        for (const char* field : {"name", "brand", "model", "serialNumber"})
            QCOMPARE(o.driver.part<QLineEdit>(field).text(), QString());
        for (const char* field : {"purchaseDate", "lastServiceDate"})
            QCOMPARE(o.driver.part<DateField>(field).instant(), f.clock.now());
        QCOMPARE(o.driver.chosenType(), QStringLiteral("Erogatore"));
        QCOMPARE(o.driver.offeredTypes().size(), 16);
        QCOMPARE(QApplication::focusWidget(), &o.driver.part<QLineEdit>("name"));
        QVERIFY(!o.driver.shows("isActive"));
        QVERIFY(!o.driver.shows("interval"));
        QVERIFY(o.driver.shows("incomplete"));
    }

    void addsWhatWasEntered()
    {
        ScreenFixture f(QList<Equipment>{});
        Open o(f);
        o.driver.type("name", QStringLiteral("  Bombola 12 litri "));
        o.driver.choose(QStringLiteral("Bombola"));
        o.driver.type("brand", QStringLiteral("Faber"));
        o.driver.type("model", QStringLiteral(" Hot Dipped"));
        o.driver.type("serialNumber", QStringLiteral("A-1 "));
        o.driver.type("purchaseDate", QStringLiteral("29/02/2024"));
        o.driver.type("lastServiceDate", QStringLiteral("31/12/2025"));
        o.driver.type("notes", QStringLiteral(" due righe"));
        QTest::keyClick(&o.driver.part<QPlainTextEdit>("notes"), Qt::Key_Return);
        QTest::keyClicks(&o.driver.part<QPlainTextEdit>("notes"), QStringLiteral("di note "));
        QVERIFY(!o.driver.shows("incomplete"));
        QCOMPARE(o.driver.text("nextServiceDate"), QStringLiteral("31 dic 2026"));
        const int idsBefore = f.ids.count();
        QSignalSpy changed(&f.equipment, &EquipmentViewModel::equipmentChanged);
        f.console.clear();
        o.driver.save();

        Equipment expected;
        expected.id = SequentialIds::at(idsBefore + 1);
        expected.name = QStringLiteral("Bombola 12 litri");
        expected.type = EquipmentType::cylinder;
        expected.brand = QStringLiteral("Faber");
        expected.model = QStringLiteral("Hot Dipped");
        expected.serialNumber = QStringLiteral("A-1");
        const QTime time = f.calendar.local(f.clock.now()).time();
        expected.purchaseDate = *f.calendar.instant(QDate(2024, 2, 29), time);
        expected.lastServiceDate = *f.calendar.instant(QDate(2025, 12, 31), time);
        expected.nextServiceDate = *f.calendar.instant(QDate(2026, 12, 31), time);
        expected.notes = QStringLiteral("due righe\ndi note");
        QCOMPARE(f.equipment.equipment(), QList<Equipment>{expected});
        QCOMPARE(changed.size(), 1);
        QCOMPARE(f.takeLog(), QStringList(QStringLiteral("➕ Aggiunto equipaggiamento: Bombola 12 litri")));
        QVERIFY(!o.form.isVisible());
        QCOMPARE(o.form.result(), int{QDialog::Accepted});
    }

    void aTypeOfTheUsersOwnIsStoredByName()
    {
        ScreenFixture f(QList<Equipment>{});
        Open o(f);
        o.driver.type("name", QStringLiteral("Luce"));
        o.driver.type("brand", QStringLiteral("X"));
        o.driver.choose(QStringLiteral("Torcia"));
        o.driver.save();
        QCOMPARE(f.equipment.equipment().first().type, EquipmentType::other);
        QCOMPARE(f.equipment.equipment().first().customTypeName, std::optional(QStringLiteral("Torcia")));
    }

    void anInvalidFormAlertsAndKeepsEverything_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("focused");
        QTest::newRow("nothing") << QString() << QString() << QStringLiteral("name");
        QTest::newRow("no brand") << QStringLiteral("Nome") << QString() << QStringLiteral("brand");
        QTest::newRow("spaces") << QStringLiteral("   ") << QStringLiteral("Marca") << QStringLiteral("name");
    }

    void anInvalidFormAlertsAndKeepsEverything()
    {
        QFETCH(QString, name);
        QFETCH(QString, brand);
        QFETCH(QString, focused);
        ScreenFixture f;
        Open o(f);
        o.driver.type("name", name);
        o.driver.type("brand", brand);
        o.driver.type("model", QStringLiteral("Modello"));
        QVERIFY(o.driver.shows("incomplete"));
        o.driver.save();
        Alert* alert = o.driver.alert();
        QVERIFY(alert);
        QCOMPARE(alert->windowTitle(), QStringLiteral("Errore"));
        QCOMPARE(alert->message(), QStringLiteral("Per favore, compila tutti i campi obbligatori."));
        QStringList buttons;
        for (const QAbstractButton* button : alert->findChildren<QAbstractButton*>()) {
            if (button->isVisible())
                buttons.append(button->text());
        }
        QCOMPARE(buttons, QStringList(QStringLiteral("OK")));
        FormDriver(*alert).click("safe");
        QVERIFY(!o.driver.alert());
        QVERIFY(o.form.isVisible());
        QCOMPARE(f.equipment.equipment().size(), 3);
        QCOMPARE(o.driver.part<QLineEdit>("name").text(), name);
        QCOMPARE(o.driver.part<QLineEdit>("model").text(), QStringLiteral("Modello"));
        o.form.activateWindow();
        QCOMPARE(o.form.focusWidget()->objectName(), focused);
        QVERIFY(o.form.rect().contains(o.form.focusWidget()->mapTo(&o.form, QPoint(0, 0))));
    }

    void theFootnoteFollowsTheFields()
    {
        ScreenFixture f;
        Open o(f);
        const QSize before = o.form.size();
        o.driver.type("name", QStringLiteral("N"));
        QVERIFY(o.driver.shows("incomplete"));
        o.driver.type("brand", QStringLiteral("B"));
        QVERIFY(!o.driver.shows("incomplete"));
        QVERIFY(o.driver.shows("required"));
        QCOMPARE(o.form.size(), before);
        o.driver.type("name", QStringLiteral(" "));
        QVERIFY(o.driver.shows("incomplete"));
    }

    void cancelAndEscapeSaveNothing()
    {
        ScreenFixture f;
        for (const bool byKey : {false, true}) {
            Open o(f);
            o.driver.type("name", QStringLiteral("N"));
            o.driver.type("brand", QStringLiteral("B"));
            f.console.clear();
            if (byKey)
                QTest::keyClick(&o.driver.part<QLineEdit>("brand"), Qt::Key_Escape);
            else
                o.driver.cancel();
            QVERIFY(!o.form.isVisible());
            QCOMPARE(f.takeLog(), QStringList());
        }
        QCOMPARE(f.equipment.equipment().size(), 3);
        QVERIFY(!f.preferences.data(StorageManager::equipmentKey).value());
    }

    void controlReturnSavesWithTheDayBeingTyped()
    {
        ScreenFixture f(QList<Equipment>{});
        Open o(f);
        o.driver.type("name", QStringLiteral("N"));
        o.driver.type("brand", QStringLiteral("B"));
        o.driver.type("lastServiceDate", QStringLiteral("1/2/25"));
        QTest::keyClick(&o.driver.part<DateField>("lastServiceDate"), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!o.form.isVisible());
        const Equipment item = f.equipment.equipment().first();
        QCOMPARE(f.calendar.local(item.lastServiceDate).date(), QDate(2025, 2, 1));
        QCOMPARE(f.calendar.local(item.nextServiceDate).date(), QDate(2026, 2, 1));
    }

    void anUnfinishedDateIsNotSaved()
    {
        ScreenFixture f(QList<Equipment>{});
        Open o(f);
        o.driver.type("name", QStringLiteral("Pinne"));
        o.driver.type("brand", QStringLiteral("Mares"));
        o.driver.type("purchaseDate", QStringLiteral("31/02/2026"));
        o.driver.type("lastServiceDate", QStringLiteral("1/2"));
        QTest::keyClick(&o.form, Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(o.form.isVisible());
        QVERIFY(!o.driver.alert());
        QVERIFY(f.equipment.equipment().isEmpty());
        auto& date = o.driver.part<DateField>("purchaseDate");
        QVERIFY(date.hasFocus());
        QCOMPARE(date.selectedText(), QStringLiteral("31/02/2026"));
        QCOMPARE(visibleTexts(o.form).filter(QStringLiteral("Data non valida")).size(), 2);

        o.driver.type("purchaseDate", QStringLiteral("28/02/2026"));
        o.driver.type("lastServiceDate", QStringLiteral("1/2/26"));
        QTest::keyClick(&o.form, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(f.equipment.equipment().size(), 1);
        QCOMPARE(f.context.dates.abbreviatedDate(f.equipment.equipment().first().lastServiceDate),
                 QStringLiteral("1 feb 2026"));
    }

    void returnInAFieldSavesNothing()
    {
        ScreenFixture f;
        Open o(f);
        o.driver.type("name", QStringLiteral("N"));
        o.driver.type("brand", QStringLiteral("B"));
        QTest::keyClick(&o.driver.part<QLineEdit>("brand"), Qt::Key_Return);
        QVERIFY(o.form.isVisible());
        QCOMPARE(f.equipment.equipment().size(), 3);
    }

    void theNextServiceIsLive()
    {
        ScreenFixture f;
        Open o(f);
        o.driver.choose(QStringLiteral("Computer Subacqueo"));
        QCOMPARE(o.driver.text("nextServiceDate"), QStringLiteral("14 giu 2028"));
        o.driver.type("lastServiceDate", QStringLiteral("01/01/2025"));
        QCOMPARE(o.driver.text("nextServiceDate"), QStringLiteral("1 gen 2027"));
        o.driver.type("purchaseDate", QStringLiteral("01/01/2020"));
        QCOMPARE(o.driver.text("nextServiceDate"), QStringLiteral("1 gen 2027"));
        EquipmentTypeModel computer = *f.types.getTypeByName(QStringLiteral("Computer Subacqueo"));
        computer.serviceIntervalDays = 1;
        f.types.updateType(computer);
        QCOMPARE(o.driver.text("nextServiceDate"), QStringLiteral("2 gen 2025"));
    }

    void theTypeIsChosenAnewWhenItIsNoLongerOffered()
    {
        ScreenFixture f;
        Open o(f);
        o.driver.choose(QStringLiteral("Pinne"));
        f.types.deleteType(*f.types.getTypeByName(QStringLiteral("Muta")));
        QCOMPARE(o.driver.chosenType(), QStringLiteral("Pinne"));
        QCOMPARE(o.driver.offeredTypes().size(), 15);
        f.types.deleteType(*f.types.getTypeByName(QStringLiteral("Pinne")));
        QCOMPARE(o.driver.chosenType(), QStringLiteral("Erogatore"));
        f.types.deleteType(*f.types.getTypeByName(QStringLiteral("Erogatore")));
        QCOMPARE(o.driver.chosenType(), QStringLiteral("Altro")); // the first
        f.types.setSearchText(QStringLiteral("stagna"));
        QCOMPARE(o.driver.offeredTypes(), QStringList(QStringLiteral("Muta Stagna")));
        QCOMPARE(o.driver.chosenType(), QStringLiteral("Muta Stagna"));
        f.types.setTypes({});
        QCOMPARE(o.driver.chosenType(), QString());
        f.types.setSearchText({});
        f.types.setTypes(f.types.getDefaultTypes());
        QCOMPARE(o.driver.chosenType(), QStringLiteral("Erogatore"));
    }

    void tabFollowsTheReadingOrder()
    {
        ScreenFixture f;
        Open o(f);
        QStringList order;
        for (int i = 0; i < 11; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
                 QStringList({QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("brand"),
                              QStringLiteral("model"), QStringLiteral("serialNumber"), QStringLiteral("purchaseDate"),
                              QStringLiteral("lastServiceDate"), QStringLiteral("notes"), QStringLiteral("cancel"),
                              QStringLiteral("primary"), QStringLiteral("name")}));
    }

    void tabBringsFieldsIntoView()
    {
        ScreenFixture f;
        Open o(f);
        auto& notes = o.driver.part<QPlainTextEdit>("notes");
        while (!notes.hasFocus())
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(notes.visibleRegion().boundingRect().height() > notes.height() / 2);
        QVERIFY(o.form.height() < 700);
    }

    void fieldsAreNamedByTheirLabels()
    {
        ScreenFixture f;
        Open o(f);
        const QList<QPair<const char*, QString>> names{
            {"name", QStringLiteral("Nome*")},
            {"brand", QStringLiteral("Marca*")},
            {"model", QStringLiteral("Modello")},
            {"serialNumber", QStringLiteral("Numero Seriale")},
            {"purchaseDate", QStringLiteral("Data Acquisto")},
            {"lastServiceDate", QStringLiteral("Ultimo Tagliando")},
            {"notes", QStringLiteral("Note")},
            {"cancel", QStringLiteral("Annulla")},
            {"primary", QStringLiteral("Salva")},
        };
        for (const auto& [part, name] : names) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&o.driver.part<QWidget>(part));
            QCOMPARE(accessible->text(QAccessible::Name), name);
        }
        // On this platform a picker reads out its choice, and its label through the relation.
        QAccessibleInterface* picker = QAccessible::queryAccessibleInterface(&o.driver.part<QWidget>("type"));
        const auto labels = picker->relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first().first->text(QAccessible::Name), QStringLiteral("Tipo*"));
    }

    void nothingIsCutOffWithLargerText()
    {
        const ScaledText scaled(1.25);
        ScreenFixture f;
        Open o(f);
        QCOMPARE(clippedTexts(o.form).join(QLatin1Char('|')), QString());
        for (const char* field : {"purchaseDate", "lastServiceDate", "name", "type"})
            QVERIFY(o.driver.part<QWidget>(field).height() >= o.driver.part<QWidget>(field).sizeHint().height());
        QVERIFY(o.form.width() < 1000 && o.form.height() < 700);
    }
};

ABISSORA_TEST(tst_EquipmentFormView);

#include "tst_EquipmentFormView.moc"
