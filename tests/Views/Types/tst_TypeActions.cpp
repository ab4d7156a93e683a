// SPDX-License-Identifier: MIT
#include "Buttons.h"
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
        ScreenFixture f;
        f.types.setTypes({});
        OpenManagement o(f);
        QVERIFY(visibleLabels(o.sheet).contains(QStringLiteral("Nessuna tipologia trovata")));
        QVERIFY(!o.driver.shows("emptyStateButton")); // there is no search to clear
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("0 tipologie attive"));
        o.driver.click("resetTypes");
        OpenManagement::settle();
        QCOMPARE(o.names(), defaultNames());
    }

    void addingAType()
    {
        ScreenFixture f;
        OpenManagement o(f);
        o.driver.part<QAbstractButton>("addType").setFocus();
        o.driver.click("addType");
        EquipmentTypeFormView* form = o.form();
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), QStringLiteral("Nuova Tipologia"));
        QCOMPARE(form->windowModality(), Qt::WindowModal);
        QCOMPARE(form->parentWidget(), &o.sheet);
        const FormDriver driver(*form);
        driver.type("name", QStringLiteral("Boa"));
        driver.save();
        OpenManagement::settle();
        QCOMPARE(o.names().size(), 17);
        QCOMPARE(o.names().at(1), QStringLiteral("Boa"));
        QCOMPARE(f.types.types().last().name, QStringLiteral("Boa"));
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("17 tipologie attive"));
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("addType"));
    }

    void editingKeepsTheFocusOnTheType()
    {
        ScreenFixture f;
        OpenManagement o(f);
        o.press(QStringLiteral("Bussola"), "editType");
        EquipmentTypeFormView* form = o.form();
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), QStringLiteral("Modifica Tipologia"));
        const FormDriver driver(*form);
        QCOMPARE(driver.part<QLineEdit>("name").text(), QStringLiteral("Bussola"));
        driver.type("name", QStringLiteral("Zaino"));
        driver.save();
        OpenManagement::settle();
        QCOMPARE(o.names().last(), QStringLiteral("Zaino"));
        QVERIFY(!o.names().contains(QStringLiteral("Bussola")));
        const TypeRow& row = o.row(QStringLiteral("Zaino"));
        QCOMPARE(o.sheet.focusWidget(), row.buttons().first());
        QCOMPARE(row.visibleRegion().boundingRect(), row.rect()); // it was scrolled to
    }

    void deletingAsksFirst()
    {
        ScreenFixture f;
        OpenManagement o(f);
        const QList<EquipmentTypeModel> before = f.types.types();
        o.press(QStringLiteral("Pinne"), "deleteType");
        Alert* alert = o.driver.alert();
        QVERIFY(alert);
        QCOMPARE(alert->windowModality(), Qt::WindowModal);
        QCOMPARE(alert->windowTitle(), QStringLiteral("Conferma Eliminazione"));
        QCOMPARE(alert->message(), QStringLiteral("Sei sicuro di voler eliminare la tipologia 'Pinne'?"));
        QCOMPARE(alert->safeButton()->text(), QStringLiteral("Annulla"));
        QCOMPARE(alert->destructiveButton()->text(), QStringLiteral("Elimina"));
        QTest::keyClick(alert, Qt::Key_Escape);
        OpenManagement::settle();
        QCOMPARE(f.types.types(), before);
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("Pinne")).buttons().last());

        o.press(QStringLiteral("Pinne"), "deleteType");
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        OpenManagement::settle();
        QVERIFY(!f.types.getTypeByName(QStringLiteral("Pinne")));
        QCOMPARE(f.types.types().size(), 15);
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("15 tipologie attive"));
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("Profondimetro")).buttons().last()); // the next one
    }

    void theQuestionWithoutAType()
    {
        QCOMPARE(EquipmentTypeManagementView::deletionQuestion(std::nullopt),
                 QStringLiteral("Sei sicuro di voler eliminare questa tipologia?"));
    }

    void theFocusSurvivesTheLastRow()
    {
        ScreenFixture f;
        f.types.setTypes({own(1, QStringLiteral("A")), own(2, QStringLiteral("B"))});
        OpenManagement o(f);
        o.press(QStringLiteral("B"), "deleteType");
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        OpenManagement::settle();
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("A")).buttons().last());
        o.press(QStringLiteral("A"), "deleteType");
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        OpenManagement::settle();
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("typeSearch"));
    }

    void deletingOneOfTwins()
    {
        ScreenFixture f;
        f.types.setTypes({own(1, QStringLiteral("Boa")), own(2, QStringLiteral("Boa"))});
        OpenManagement o(f);
        QTest::mouseClick(o.rows().last()->buttons().last(), Qt::LeftButton);
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        QCOMPARE(f.types.types(), QList<EquipmentTypeModel>({own(1, QStringLiteral("Boa"))}));
    }

    void resettingAsksNothing()
    {
        ScreenFixture f;
        f.types.setTypes({own(1, QStringLiteral("Boa"))});
        f.types.saveTypes();
        QVERIFY(f.preferences.setInteger(EquipmentTypeViewModel::iconVersionKey, 3));
        OpenManagement o(f);
        QCOMPARE(o.names(), QStringList(QStringLiteral("Boa")));
        o.driver.click("resetTypes");
        QVERIFY(!o.driver.alert());
        OpenManagement::settle();
        QCOMPARE(o.names(), defaultNames());
        QCOMPARE(f.preferences.integer(EquipmentTypeViewModel::iconVersionKey), std::optional<std::int64_t>(4));
        QVERIFY(!f.preferences.data(EquipmentTypeViewModel::typesKey).value()->contains("Boa"));
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("resetTypes"));
    }

    void hostileNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("L'\"erogatore\"");
        QTest::newRow("markup") << QStringLiteral("<b>Boa</b>&nbsp;<img src=x>");
        QTest::newRow("access key") << QStringLiteral("&Boa && Mare");
        QTest::newRow("place markers") << QStringLiteral("%1 %2 %L1");
        QTest::newRow("right to left") << QStringLiteral(u"\u202e\u05d0\u05d1 GAV");
        QTest::newRow("long") << QString(5'000, QLatin1Char('n'));
        QTest::newRow("empty") << QString();
    }
    void hostileNames()
    {
        QFETCH(QString, name);
        ScreenFixture f;
        f.types.setTypes({own(1, name)});
        OpenManagement o(f);
        const auto* label = o.rows().first()->findChild<QLabel*>(QStringLiteral("typeName"));
        QCOMPARE(label->text(), name);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        for (const QAbstractButton* button : o.rows().first()->buttons())
            QCOMPARE(button->size(), button->sizeHint());
        QTest::mouseClick(o.rows().first()->buttons().last(), Qt::LeftButton);
        Alert* alert = o.driver.alert();
        QCOMPARE(alert->message(),
                 QLatin1String("Sei sicuro di voler eliminare la tipologia '") + name + QLatin1String("'?"));
        QVERIFY(o.window.geometry().contains(alert->geometry()));
        const QWidget* safe = alert->safeButton();
        QVERIFY(alert->rect().contains(QRect(safe->mapTo(alert, QPoint()), safe->size())));
        QTest::mouseClick(alert->destructiveButton(), Qt::LeftButton);
        QCOMPARE(f.types.types(), QList<EquipmentTypeModel>());
    }
};

ABISSORA_TEST(tst_TypeActions);

#include "tst_TypeActions.moc"
