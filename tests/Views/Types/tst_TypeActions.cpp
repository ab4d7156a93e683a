// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "Literals.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypesParts.h"

using namespace abissora;
using namespace abissora::test;

class tst_TypeActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void anEmptyCatalogue()
    {
        RegisterFixture f;
        f.types.setTypes({});
        OpenManagement o(f);
        QVERIFY(visibleLabels(o.sheet).contains(u"Nessuna tipologia trovata"_s));
        QVERIFY(!isShown(o.sheet, "emptyStateButton")); // there is no search to clear
        QCOMPARE(textOf(o.sheet, "typeCount"), u"0 tipologie attive"_s);
        click(o.sheet, "resetTypes");
        settle();
        QCOMPARE(o.names(), defaultNames());
    }

    void addingAType()
    {
        RegisterFixture f;
        OpenManagement o(f);
        usable<QAbstractButton>(o.sheet, "addType").setFocus();
        click(o.sheet, "addType");
        EquipmentTypeFormView* form = o.form();
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), u"Nuova Tipologia"_s);
        QCOMPARE(form->windowModality(), Qt::WindowModal);
        QCOMPARE(form->parentWidget(), &o.sheet);
        type(*form, "name", u"Boa"_s);
        click(*form, "primary");
        settle();
        QCOMPARE(o.names().size(), 17);
        QCOMPARE(o.names().at(1), u"Boa"_s);
        QCOMPARE(f.types.types().last().name, u"Boa"_s);
        QCOMPARE(textOf(o.sheet, "typeCount"), u"17 tipologie attive"_s);
        QCOMPARE(o.sheet.focusWidget()->objectName(), u"addType"_s);
    }

    void editingKeepsTheFocusOnTheType()
    {
        RegisterFixture f;
        OpenManagement o(f);
        o.press(u"Bussola"_s, "editType");
        EquipmentTypeFormView* form = o.form();
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), u"Modifica Tipologia"_s);
        QCOMPARE(usable<QLineEdit>(*form, "name").text(), u"Bussola"_s);
        type(*form, "name", u"Zaino"_s);
        click(*form, "primary");
        settle();
        QCOMPARE(o.names().constLast(), u"Zaino"_s);
        QVERIFY(!o.names().contains(u"Bussola"_s));
        const TypeRow& row = o.row(u"Zaino"_s);
        QCOMPARE(o.sheet.focusWidget(), row.buttons().constFirst());
        QCOMPARE(row.visibleRegion().boundingRect(), row.rect()); // it was scrolled to
    }

    void deletingAsksFirst()
    {
        RegisterFixture f;
        OpenManagement o(f);
        const QList<EquipmentTypeModel> before = f.types.types();
        o.press(u"Pinne"_s, "deleteType");
        Alert* alert = findDialog<Alert>(o.sheet);
        QVERIFY(alert);
        QCOMPARE(alert->windowModality(), Qt::WindowModal);
        QCOMPARE(alert->windowTitle(), u"Conferma Eliminazione"_s);
        QCOMPARE(alert->message(), u"Sei sicuro di voler eliminare la tipologia 'Pinne'?"_s);
        QCOMPARE(alert->safeButton()->text(), u"Annulla"_s);
        QCOMPARE(alert->destructiveButton()->text(), u"Elimina"_s);
        QTest::keyClick(alert, Qt::Key_Escape);
        settle();
        QCOMPARE(f.types.types(), before);
        QCOMPARE(o.sheet.focusWidget(), o.row(u"Pinne"_s).buttons().last());

        o.press(u"Pinne"_s, "deleteType");
        QTest::mouseClick(findDialog<Alert>(o.sheet)->destructiveButton(), Qt::LeftButton);
        settle();
        QVERIFY(!f.types.getTypeByName(u"Pinne"_s));
        QCOMPARE(f.types.types().size(), 15);
        QCOMPARE(textOf(o.sheet, "typeCount"), u"15 tipologie attive"_s);
        QCOMPARE(o.sheet.focusWidget(), o.row(u"Profondimetro"_s).buttons().last()); // the next one
    }

    void theFocusSurvivesTheLastRow()
    {
        RegisterFixture f;
        f.types.setTypes({own(1, u"A"_s), own(2, u"B"_s)});
        OpenManagement o(f);
        o.press(u"B"_s, "deleteType");
        QTest::mouseClick(findDialog<Alert>(o.sheet)->destructiveButton(), Qt::LeftButton);
        settle();
        QCOMPARE(o.sheet.focusWidget(), o.row(u"A"_s).buttons().last());
        o.press(u"A"_s, "deleteType");
        QTest::mouseClick(findDialog<Alert>(o.sheet)->destructiveButton(), Qt::LeftButton);
        settle();
        QCOMPARE(o.sheet.focusWidget()->objectName(), u"typeSearch"_s);
    }

    void deletingOneOfTwins()
    {
        RegisterFixture f;
        f.types.setTypes({own(1, u"Boa"_s), own(2, u"Boa"_s)});
        OpenManagement o(f);
        QTest::mouseClick(o.rows().constLast()->buttons().constLast(), Qt::LeftButton);
        QTest::mouseClick(findDialog<Alert>(o.sheet)->destructiveButton(), Qt::LeftButton);
        QCOMPARE(f.types.types(), QList<EquipmentTypeModel>({own(1, u"Boa"_s)}));
    }

    void resettingAsksNothing()
    {
        RegisterFixture f;
        f.types.setTypes({own(1, u"Boa"_s)});
        f.types.saveTypes();
        QVERIFY(f.preferences.setInteger(EquipmentTypeViewModel::iconVersionKey, 3));
        OpenManagement o(f);
        QCOMPARE(o.names(), QStringList(u"Boa"_s));
        click(o.sheet, "resetTypes");
        QVERIFY(!findDialog<Alert>(o.sheet));
        settle();
        QCOMPARE(o.names(), defaultNames());
        QCOMPARE(f.preferences.integer(EquipmentTypeViewModel::iconVersionKey), std::optional<std::int64_t>(4));
        QVERIFY(!f.preferences.data(EquipmentTypeViewModel::typesKey).value()->contains("Boa"));
        QCOMPARE(o.sheet.focusWidget()->objectName(), u"resetTypes"_s);
    }

    void hostileNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << u"L'\"erogatore\""_s;
        QTest::newRow("markup") << u"<b>Boa</b>&nbsp;<img src=x>"_s;
        QTest::newRow("access key") << u"&Boa && Mare"_s;
        QTest::newRow("place markers") << u"%1 %2 %L1"_s;
        QTest::newRow("right to left") << QStringLiteral(u"\u202e\u05d0\u05d1 GAV");
        QTest::newRow("long") << QString(5'000, u'n');
        QTest::newRow("empty") << QString();
    }
    void hostileNames()
    {
        QFETCH(QString, name);
        RegisterFixture f;
        f.types.setTypes({own(1, name)});
        OpenManagement o(f);
        const auto* label = o.rows().constFirst()->findChild<QLabel*>(u"typeName"_s);
        QCOMPARE(label->text(), name);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        for (const QAbstractButton* button : o.rows().constFirst()->buttons())
            QCOMPARE(button->size(), button->sizeHint());
        QTest::mouseClick(o.rows().constFirst()->buttons().constLast(), Qt::LeftButton);
        Alert* alert = findDialog<Alert>(o.sheet);
        QCOMPARE(alert->message(), "Sei sicuro di voler eliminare la tipologia '"_L1 + name + "'?"_L1);
        QVERIFY(o.window.geometry().contains(alert->geometry()));
        const QWidget* safe = alert->safeButton();
        QVERIFY(alert->rect().contains(QRect(safe->mapTo(alert, QPoint()), safe->size())));
        QTest::mouseClick(alert->destructiveButton(), Qt::LeftButton);
        QCOMPARE(f.types.types(), QList<EquipmentTypeModel>());
    }
};

ABISSORA_TEST(tst_TypeActions);

#include "tst_TypeActions.moc"
