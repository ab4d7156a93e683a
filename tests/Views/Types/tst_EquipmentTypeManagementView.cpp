// SPDX-License-Identifier: MIT
#include "EquipmentTypeManagementView.h"

#include "Buttons.h"
#include "ClippedTexts.h"
#include "SearchField.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypeList.h"
#include "TypesParts.h"

#include <QAccessible>
#include <QAction>
#include <limits>

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentTypeManagementView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void texts()
    {
        ScreenFixture f;
        OpenManagement o(f);
        QCOMPARE(o.sheet.windowTitle(), QStringLiteral("Gestione Tipologie"));
        QCOMPARE(o.sheet.windowModality(), Qt::WindowModal);
        QCOMPARE(o.sheet.cancelButton()->text(), QStringLiteral("Chiudi"));
        QVERIFY(visibleLabels(o.sheet).contains(QStringLiteral("Tipologie Attrezzatura")));
        QCOMPARE(o.driver.part<SearchField>("typeSearch").placeholderText(), QStringLiteral("Cerca..."));
        QCOMPARE(o.driver.part<QAbstractButton>("addType").text(), QStringLiteral("Nuova Tipologia"));
        QCOMPARE(o.driver.part<QAbstractButton>("resetTypes").text(), QStringLiteral("Ripristina Default"));
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("16 tipologie attive"));
        QVERIFY(o.driver.part<QWidget>("typeSearch").hasFocus());
    }

    void rowsByName()
    {
        ScreenFixture f;
        OpenManagement o(f);
        QCOMPARE(o.names(), defaultNames());
        const TypeRow& computer = o.row(QStringLiteral("Computer Subacqueo"));
        QCOMPARE(visibleLabels(computer),
                 QStringList({QStringLiteral("Computer Subacqueo"), QStringLiteral("Intervallo: 730 giorni")}));
        QStringList actions;
        for (const QAbstractButton* button : computer.findChildren<QAbstractButton*>()) {
            actions.append(button->text());
            QVERIFY(!button->icon().isNull());
        }
        QCOMPARE(actions, QStringList({QStringLiteral("Modifica"), QStringLiteral("Elimina")}));
    }

    void whatAScreenReaderPutsInFilters()
    {
        ScreenFixture f;
        OpenManagement o(f);
        QAccessible::queryAccessibleInterface(&o.driver.part<SearchField>("typeSearch"))
            ->setText(QAccessible::Value, QStringLiteral("erog"));
        QCOMPARE(o.names(), QStringList(QStringLiteral("Erogatore")));
    }

    void screenReadersKnowWhatAnActionIsAbout()
    {
        ScreenFixture f;
        OpenManagement o(f);
        TypeRow& row = o.row(QStringLiteral("GAV"));
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&row);
        QCOMPARE(accessible->role(), QAccessible::ListItem);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("GAV"));
        QCOMPARE(QAccessible::queryAccessibleInterface(o.sheet.findChild<TypeList*>())->role(), QAccessible::List);
        for (QAbstractButton* button : row.buttons()) {
            QAccessibleInterface* action = QAccessible::queryAccessibleInterface(button);
            QCOMPARE(action->text(QAccessible::Name), button->text());
            QCOMPARE(action->text(QAccessible::Description), QStringLiteral("GAV"));
        }
    }

    void inactiveTypesAreNeverListed()
    {
        ScreenFixture f;
        EquipmentTypeModel inactive = own(901, QStringLiteral("Boa"));
        inactive.isActive = false;
        f.types.addType(inactive);
        OpenManagement o(f);
        QCOMPARE(o.names(), defaultNames());
        o.search(QStringLiteral("boa"));
        QCOMPARE(o.names(), QStringList());
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("16 tipologie attive"));
    }

    void searching_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("within") << QStringLiteral("uta")
                                << QStringList({QStringLiteral("Muta"), QStringLiteral("Muta Stagna")});
        QTest::newRow("letter case") << QStringLiteral("MUTA S") << QStringList(QStringLiteral("Muta Stagna"));
        QTest::newRow("not a pattern") << QStringLiteral(".") << QStringList();
        QTest::newRow("nothing") << QStringLiteral("xyz") << QStringList();
    }
    void searching()
    {
        QFETCH(QString, text);
        ScreenFixture f;
        OpenManagement o(f);
        o.search(text);
        QTEST(o.names(), "found");
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("16 tipologie attive"));
        QCOMPARE(f.types.searchText(), QString()); // the screen's search is its own
    }

    void theCatalogueSearchNarrowsToo()
    {
        ScreenFixture f;
        OpenManagement o(f);
        f.types.setSearchText(QStringLiteral("muta"));
        OpenManagement::settle();
        QCOMPARE(o.names(), QStringList({QStringLiteral("Muta"), QStringLiteral("Muta Stagna")}));
        o.search(QStringLiteral("stagna"));
        QCOMPARE(o.names(), QStringList(QStringLiteral("Muta Stagna")));
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("16 tipologie attive"));
    }

    void nothingFound()
    {
        ScreenFixture f;
        OpenManagement o(f);
        o.search(QStringLiteral("xyz"));
        QVERIFY(visibleLabels(o.sheet).contains(QStringLiteral("Nessuna tipologia trovata")));
        QCOMPARE(o.driver.part<QAbstractButton>("emptyStateButton").text(), QStringLiteral("Cancella ricerca"));
        o.driver.click("emptyStateButton");
        QCOMPARE(o.names(), defaultNames());
        QCOMPARE(o.driver.part<SearchField>("typeSearch").text(), QString());
        QVERIFY(o.driver.part<SearchField>("typeSearch").hasFocus());
    }

    void clearingTheSearch()
    {
        ScreenFixture f;
        OpenManagement o(f);
        o.search(QStringLiteral("xyz"));
        auto& search = o.driver.part<SearchField>("typeSearch");
        QTest::keyClick(&search, Qt::Key_Escape);
        QCOMPARE(o.names(), defaultNames());
        o.search(QStringLiteral("muta"));
        search.findChild<QAction*>(QStringLiteral("clear"))->trigger();
        QCOMPARE(o.names(), defaultNames());
        QTest::keyClick(&search, Qt::Key_Escape);
        QVERIFY(!o.sheet.isVisible());
    }

    void theListLives()
    {
        ScreenFixture f;
        OpenManagement o(f);
        f.types.addType(own(901, QStringLiteral("Boa")));
        OpenManagement::settle();
        QVERIFY(o.names().contains(QStringLiteral("Boa")));
        EquipmentTypeModel changed = own(901, QStringLiteral("Boa"));
        changed.serviceIntervalDays = 120;
        f.types.updateType(changed);
        OpenManagement::settle();
        QVERIFY(visibleLabels(o.row(QStringLiteral("Boa"))).contains(QStringLiteral("Intervallo: 120 giorni")));
        f.types.deleteType(changed);
        OpenManagement::settle();
        QCOMPARE(o.names(), defaultNames());
        f.types.setTypes({});
        OpenManagement::settle();
        QVERIFY(visibleLabels(o.sheet).contains(QStringLiteral("Nessuna tipologia trovata")));
    }

    void tabFollowsTheReadingOrder()
    {
        ScreenFixture f;
        OpenManagement o(f);
        const QString expected = QStringLiteral("typeSearch addType editType deleteType resetTypes cancel");
        QCOMPARE(tabOrder(o.sheet).join(QLatin1Char(' ')), expected);
        f.types.addType(own(901, QStringLiteral("Boa"))); // rows that come later stand in the order too
        OpenManagement::settle();
        o.row(QStringLiteral("Altro")).buttons().first()->setFocus();
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_End);
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("Torcia")).buttons().last());
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Tab);
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("resetTypes"));
    }

    void arrowKeysReachEveryRow()
    {
        ScreenFixture f;
        OpenManagement o(f);
        o.rows().first()->buttons().last()->setFocus(Qt::TabFocusReason);
        for (const TypeRow* row : o.rows()) {
            QCOMPARE(o.sheet.focusWidget(), row->buttons().last());
            QCOMPARE(row->visibleRegion().boundingRect(), row->rect());
            QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Down);
        }
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Left);
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Space);
        QVERIFY(o.form());
    }

    void unusualRecords()
    {
        ScreenFixture f;
        EquipmentTypeModel type = own(1, QStringLiteral("Boa"));
        type.icon.clear();
        type.color = QStringLiteral("Verde Acqua");
        type.serviceIntervalDays = std::numeric_limits<std::int64_t>::min();
        f.types.setTypes({type});
        OpenManagement o(f);
        QVERIFY(visibleLabels(*o.rows().first()).contains(QStringLiteral("Intervallo: -9223372036854775808 giorni")));
    }

    void hundredsOfTypes()
    {
        ScreenFixture f;
        QList<EquipmentTypeModel> types;
        for (int i = 0; i < 600; ++i)
            types.append(own(i + 1, QStringLiteral("Tipo %1").arg(i, 3, 10, QLatin1Char('0'))));
        f.types.setTypes(types);
        OpenManagement o(f);
        QVERIFY2(o.rows().size() < 40, "rows are made when they come into sight");
        o.rows().first()->buttons().first()->setFocus(Qt::TabFocusReason);
        const auto shows = [&o](const QString& name) {
            const TypeRow& row = o.row(name);
            return row.visibleRegion().boundingRect() == row.rect() && row.isAncestorOf(o.sheet.focusWidget());
        };
        for (int i = 1; i < 40; ++i) {
            QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Down);
            QVERIFY(shows(QStringLiteral("Tipo %1").arg(i, 3, 10, QLatin1Char('0'))));
        }
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_End);
        QVERIFY(shows(QStringLiteral("Tipo 599")));
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Up);
        QVERIFY(shows(QStringLiteral("Tipo 598")));
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Home);
        QVERIFY(shows(QStringLiteral("Tipo 000")));
        o.search(QStringLiteral("59"));
        QCOMPARE(o.names().first(), QStringLiteral("Tipo 059"));
        QCOMPARE(o.row(QStringLiteral("Tipo 159")).y(), o.rows().first()->height());
        o.search({});
        f.types.addType(own(999, QStringLiteral("Zaino")));
        EquipmentTypeModel moved = types.first();
        moved.name = QStringLiteral("Verricello");
        o.rows().first()->buttons().last()->setFocus();
        f.types.updateType(moved);
        OpenManagement::settle();
        QVERIFY(shows(QStringLiteral("Verricello")));
    }

    void rowsAreAsHighAsTheirNames()
    {
        ScreenFixture f;
        f.types.setTypes({own(1, QStringLiteral("A")), own(2, QStringLiteral("B").repeated(300)),
                          own(3, QStringLiteral("C\nC")), own(4, QStringLiteral("D"))});
        OpenManagement o(f);
        QCOMPARE(o.rows().size(), 4);
        QCOMPARE(clippedTexts(o.sheet), QStringList());
        QVERIFY(o.rows().at(1)->height() > 2 * o.rows().at(0)->height());
        QVERIFY(o.rows().at(2)->height() > o.rows().at(0)->height());
        QCOMPARE(o.rows().at(3)->height(), o.rows().at(0)->height());
        for (int i = 1; i < 4; ++i)
            QCOMPARE(o.rows().at(i)->geometry().top(), o.rows().at(i - 1)->geometry().bottom() + 1);
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<bool>("larger");
        QTest::newRow("usual text") << false;
        QTest::newRow("larger text") << true;
    }
    void nothingIsCutOff()
    {
        QFETCH(bool, larger);
        const auto check = [] {
            ScreenFixture f;
            f.types.addType(own(901, QStringLiteral("Dispositivo di segnalazione ").repeated(6)));
            OpenManagement o(f);
            QCOMPARE(clippedTexts(o.sheet).join(QLatin1Char('|')), QString());
            QVERIFY(o.sheet.width() < 1000 && o.sheet.height() < 700);
            o.search(QStringLiteral("xyz"));
            QCOMPARE(clippedTexts(o.sheet).join(QLatin1Char('|')), QString());
        };
        if (larger)
            withLargerText(check);
        else
            check();
    }
};

ABISSORA_TEST(tst_EquipmentTypeManagementView);

#include "tst_EquipmentTypeManagementView.moc"
