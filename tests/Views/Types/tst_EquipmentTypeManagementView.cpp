// SPDX-License-Identifier: MIT
#include "EquipmentTypeManagementView.h"
#include "Literals.h"

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
        RegisterFixture f;
        OpenManagement o(f);
        QCOMPARE(o.sheet.windowTitle(), u"Gestione Tipologie"_s);
        QCOMPARE(o.sheet.windowModality(), Qt::WindowModal);
        QCOMPARE(o.sheet.cancelButton()->text(), u"Chiudi"_s);
        QVERIFY(visibleLabels(o.sheet).contains(u"Tipologie Attrezzatura"_s));
        QCOMPARE(usable<SearchField>(o.sheet, "typeSearch").placeholderText(), u"Cerca..."_s);
        QCOMPARE(usable<QAbstractButton>(o.sheet, "addType").text(), u"Nuova Tipologia"_s);
        QCOMPARE(usable<QAbstractButton>(o.sheet, "resetTypes").text(), u"Ripristina Default"_s);
        QCOMPARE(textOf(o.sheet, "typeCount"), u"16 tipologie attive"_s);
        QVERIFY(usable(o.sheet, "typeSearch").hasFocus());
    }

    void rowsByName()
    {
        RegisterFixture f;
        OpenManagement o(f);
        QCOMPARE(o.names(), defaultNames());
        const TypeRow& computer = o.row(u"Computer Subacqueo"_s);
        QCOMPARE(visibleLabels(computer), QStringList({u"Computer Subacqueo"_s, u"Intervallo: 730 giorni"_s}));
        QStringList actions;
        for (const QAbstractButton* button : computer.findChildren<QAbstractButton*>()) {
            actions.append(button->text());
            QVERIFY(!button->icon().isNull());
        }
        QCOMPARE(actions, QStringList({u"Modifica"_s, u"Elimina"_s}));
    }

    void whatAScreenReaderPutsInFilters()
    {
        RegisterFixture f;
        OpenManagement o(f);
        QAccessible::queryAccessibleInterface(&usable<SearchField>(o.sheet, "typeSearch"))
            ->setText(QAccessible::Value, u"erog"_s);
        QCOMPARE(o.names(), QStringList(u"Erogatore"_s));
    }

    void screenReadersKnowWhatAnActionIsAbout()
    {
        RegisterFixture f;
        OpenManagement o(f);
        TypeRow& row = o.row(u"GAV"_s);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&row);
        QCOMPARE(accessible->role(), QAccessible::ListItem);
        QCOMPARE(accessible->text(QAccessible::Name), u"GAV"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(o.sheet.findChild<TypeList*>())->role(), QAccessible::List);
        for (QAbstractButton* button : row.buttons()) {
            QAccessibleInterface* action = QAccessible::queryAccessibleInterface(button);
            QCOMPARE(action->text(QAccessible::Name), button->text());
            QCOMPARE(action->text(QAccessible::Description), u"GAV"_s);
        }
    }

    void inactiveTypesAreNeverListed()
    {
        RegisterFixture f;
        EquipmentTypeModel inactive = own(901, u"Boa"_s);
        inactive.isActive = false;
        f.types.addType(inactive);
        OpenManagement o(f);
        QCOMPARE(o.names(), defaultNames());
        o.search(u"boa"_s);
        QCOMPARE(o.names(), QStringList());
        QCOMPARE(textOf(o.sheet, "typeCount"), u"16 tipologie attive"_s);
    }

    void searching_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("within") << u"uta"_s << QStringList({u"Muta"_s, u"Muta Stagna"_s});
        QTest::newRow("letter case") << u"MUTA S"_s << QStringList(u"Muta Stagna"_s);
        QTest::newRow("not a pattern") << u"."_s << QStringList();
        QTest::newRow("nothing") << u"xyz"_s << QStringList();
    }
    void searching()
    {
        QFETCH(QString, text);
        RegisterFixture f;
        OpenManagement o(f);
        o.search(text);
        QTEST(o.names(), "found");
        QCOMPARE(textOf(o.sheet, "typeCount"), u"16 tipologie attive"_s);
        QCOMPARE(f.types.searchText(), QString()); // the screen's search is its own
    }

    void theCatalogueSearchNarrowsToo()
    {
        RegisterFixture f;
        OpenManagement o(f);
        f.types.setSearchText(u"muta"_s);
        settle();
        QCOMPARE(o.names(), QStringList({u"Muta"_s, u"Muta Stagna"_s}));
        o.search(u"stagna"_s);
        QCOMPARE(o.names(), QStringList(u"Muta Stagna"_s));
        QCOMPARE(textOf(o.sheet, "typeCount"), u"16 tipologie attive"_s);
    }

    void nothingFound()
    {
        RegisterFixture f;
        OpenManagement o(f);
        o.search(u"xyz"_s);
        QVERIFY(visibleLabels(o.sheet).contains(u"Nessuna tipologia trovata"_s));
        QCOMPARE(usable<QAbstractButton>(o.sheet, "emptyStateButton").text(), u"Cancella ricerca"_s);
        click(o.sheet, "emptyStateButton");
        QCOMPARE(o.names(), defaultNames());
        QCOMPARE(usable<SearchField>(o.sheet, "typeSearch").text(), QString());
        QVERIFY(usable<SearchField>(o.sheet, "typeSearch").hasFocus());
    }

    void clearingTheSearch()
    {
        RegisterFixture f;
        OpenManagement o(f);
        o.search(u"xyz"_s);
        auto& search = usable<SearchField>(o.sheet, "typeSearch");
        QTest::keyClick(&search, Qt::Key_Escape);
        QCOMPARE(o.names(), defaultNames());
        o.search(u"muta"_s);
        search.findChild<QAction*>(u"clear"_s)->trigger();
        QCOMPARE(o.names(), defaultNames());
        QTest::keyClick(&search, Qt::Key_Escape);
        QVERIFY(!o.sheet.isVisible());
    }

    void theListLives()
    {
        RegisterFixture f;
        OpenManagement o(f);
        f.types.addType(own(901, u"Boa"_s));
        settle();
        QVERIFY(o.names().contains(u"Boa"_s));
        EquipmentTypeModel changed = own(901, u"Boa"_s);
        changed.serviceIntervalDays = 120;
        f.types.updateType(changed);
        settle();
        QVERIFY(visibleLabels(o.row(u"Boa"_s)).contains(u"Intervallo: 120 giorni"_s));
        f.types.deleteType(changed);
        settle();
        QCOMPARE(o.names(), defaultNames());
        f.types.setTypes({});
        settle();
        QVERIFY(visibleLabels(o.sheet).contains(u"Nessuna tipologia trovata"_s));
    }

    void tabFollowsTheReadingOrder()
    {
        RegisterFixture f;
        OpenManagement o(f);
        const QString expected = u"typeSearch addType editType deleteType resetTypes cancel"_s;
        QCOMPARE(tabOrder(o.sheet).join(u' '), expected);
        f.types.addType(own(901, u"Boa"_s)); // rows that come later stand in the order too
        settle();
        o.row(u"Altro"_s).buttons().first()->setFocus();
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_End);
        QCOMPARE(o.sheet.focusWidget(), o.row(u"Torcia"_s).buttons().last());
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Tab);
        QCOMPARE(o.sheet.focusWidget()->objectName(), u"resetTypes"_s);
    }

    void arrowKeysReachEveryRow()
    {
        RegisterFixture f;
        OpenManagement o(f);
        o.rows().constFirst()->buttons().constLast()->setFocus(Qt::TabFocusReason);
        for (const TypeRow* row : o.rows()) {
            QCOMPARE(o.sheet.focusWidget(), row->buttons().constLast());
            QCOMPARE(row->visibleRegion().boundingRect(), row->rect());
            QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Down);
        }
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Left);
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Space);
        QVERIFY(o.form());
    }

    void unusualRecords()
    {
        RegisterFixture f;
        EquipmentTypeModel type = own(1, u"Boa"_s);
        type.icon.clear();
        type.color = u"Verde Acqua"_s;
        type.serviceIntervalDays = std::numeric_limits<std::int64_t>::min();
        f.types.setTypes({type});
        OpenManagement o(f);
        QVERIFY(visibleLabels(*o.rows().constFirst()).contains(u"Intervallo: -9223372036854775808 giorni"_s));
    }

    void hundredsOfTypes()
    {
        RegisterFixture f;
        QList<EquipmentTypeModel> types;
        for (int i = 0; i < 600; ++i)
            types.append(own(i + 1, u"Tipo %1"_s.arg(i, 3, 10, '0'_L1)));
        f.types.setTypes(types);
        OpenManagement o(f);
        QVERIFY2(o.rows().size() < 40, "rows are made when they come into sight");
        o.rows().constFirst()->buttons().constFirst()->setFocus(Qt::TabFocusReason);
        const auto shows = [&o](const QString& name) {
            const TypeRow& row = o.row(name);
            return row.visibleRegion().boundingRect() == row.rect() && row.isAncestorOf(o.sheet.focusWidget());
        };
        for (int i = 1; i < 40; ++i) {
            QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Down);
            QVERIFY(shows(u"Tipo %1"_s.arg(i, 3, 10, '0'_L1)));
        }
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_End);
        QVERIFY(shows(u"Tipo 599"_s));
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Up);
        QVERIFY(shows(u"Tipo 598"_s));
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Home);
        QVERIFY(shows(u"Tipo 000"_s));
        o.search(u"59"_s);
        QCOMPARE(o.names().constFirst(), u"Tipo 059"_s);
        QCOMPARE(o.row(u"Tipo 159"_s).y(), o.rows().constFirst()->height());
        o.search({});
        f.types.addType(own(999, u"Zaino"_s));
        EquipmentTypeModel moved = types.first();
        moved.name = u"Verricello"_s;
        o.rows().constFirst()->buttons().constLast()->setFocus();
        f.types.updateType(moved);
        settle();
        QVERIFY(shows(u"Verricello"_s));
    }

    void rowsAreAsHighAsTheirNames()
    {
        RegisterFixture f;
        f.types.setTypes({own(1, u"A"_s), own(2, u"B"_s.repeated(300)), own(3, u"C\nC"_s), own(4, u"D"_s)});
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
            RegisterFixture f;
            f.types.addType(own(901, u"Dispositivo di segnalazione "_s.repeated(6)));
            OpenManagement o(f);
            QCOMPARE(clippedTexts(o.sheet).join(u'|'), QString());
            QVERIFY(o.sheet.width() < 1000 && o.sheet.height() < 700);
            o.search(u"xyz"_s);
            QCOMPARE(clippedTexts(o.sheet).join(u'|'), QString());
        };
        if (larger)
            withLargerText(check);
        else
            check();
    }
};

ABISSORA_TEST(tst_EquipmentTypeManagementView);

#include "tst_EquipmentTypeManagementView.moc"
