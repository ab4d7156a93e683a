// SPDX-License-Identifier: MIT
#include "EquipmentTypeManagementView.h"

#include "Buttons.h"
#include "ClippedTexts.h"
#include "EquipmentTypeFormView.h"
#include "SearchField.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypeList.h"
#include "TypeRow.h"
#include "TypesParts.h"

#include <QAccessible>
#include <QAction>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

struct Open : OpenSheet<EquipmentTypeManagementView>
{
    explicit Open(ScreenFixture& f)
        : OpenSheet(f.context)
    {}

    QList<TypeRow*> rows() const
    {
        QList<TypeRow*> shown;
        for (TypeRow* row : sheet.findChildren<TypeRow*>()) {
            if (row->isVisible())
                shown.append(row);
        }
        return shown;
    }

    QStringList names() const
    {
        QStringList names;
        for (const TypeRow* row : rows())
            names.append(row->type().name);
        return names;
    }

    TypeRow& row(const QString& name) const
    {
        for (TypeRow* row : rows()) {
            if (row->type().name == name)
                return *row;
        }
        qFatal("no row called %s", qPrintable(name));
    }

    void press(const QString& name, const char* button) const
    {
        auto& pressed = *row(name).findChild<QAbstractButton*>(QLatin1String(button));
        pressed.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&pressed, Qt::Key_Return);
    }

    EquipmentTypeFormView* form() const
    {
        for (auto* form : sheet.findChildren<EquipmentTypeFormView*>()) {
            if (form->isVisible())
                return form;
        }
        return nullptr;
    }

    void search(const QString& text) const
    {
        driver.type("typeSearch", text);
        settle();
    }

    static void settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
};

QStringList defaultNames()
{
    return QStringLiteral("Altro,Bombola,Bussola,Cintura Zavorra,Computer Subacqueo,Erogatore,GAV,Kit Pronto Soccorso,"
                          "Manometro,Maschera,Muta,Muta Stagna,Ossigeno,Pinne,Profondimetro,Torcia")
        .split(QLatin1Char(','));
}

EquipmentTypeModel own(int id, const QString& name)
{
    return {SequentialIds::at(id), name, QStringLiteral("dive.reel"), QStringLiteral("teal"), 90, true};
}

} // namespace

class tst_EquipmentTypeManagementView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void texts()
    {
        ScreenFixture f;
        Open o(f);
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
        Open o(f);
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

    void screenReadersKnowWhatAnActionIsAbout()
    {
        ScreenFixture f;
        Open o(f);
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
        Open o(f);
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
        Open o(f);
        o.search(text);
        QTEST(o.names(), "found");
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("16 tipologie attive"));
        QCOMPARE(f.types.searchText(), QString()); // the screen's search is its own
    }

    void theCatalogueSearchNarrowsToo()
    {
        ScreenFixture f;
        Open o(f);
        f.types.setSearchText(QStringLiteral("muta"));
        Open::settle();
        QCOMPARE(o.names(), QStringList({QStringLiteral("Muta"), QStringLiteral("Muta Stagna")}));
        o.search(QStringLiteral("stagna"));
        QCOMPARE(o.names(), QStringList(QStringLiteral("Muta Stagna")));
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("16 tipologie attive"));
    }

    void nothingFound()
    {
        ScreenFixture f;
        Open o(f);
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
        Open o(f);
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

    void anEmptyCatalogue()
    {
        ScreenFixture f;
        f.types.setTypes({});
        Open o(f);
        QVERIFY(visibleLabels(o.sheet).contains(QStringLiteral("Nessuna tipologia trovata")));
        QVERIFY(!o.driver.shows("emptyStateButton")); // there is no search to clear
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("0 tipologie attive"));
        o.driver.click("resetTypes");
        Open::settle();
        QCOMPARE(o.names(), defaultNames());
    }

    void addingAType()
    {
        ScreenFixture f;
        Open o(f);
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
        Open::settle();
        QCOMPARE(o.names().size(), 17);
        QCOMPARE(o.names().at(1), QStringLiteral("Boa"));
        QCOMPARE(f.types.types().last().name, QStringLiteral("Boa"));
        QCOMPARE(o.driver.text("typeCount"), QStringLiteral("17 tipologie attive"));
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("addType"));
    }

    void editingKeepsTheFocusOnTheType()
    {
        ScreenFixture f;
        Open o(f);
        o.press(QStringLiteral("Bussola"), "editType");
        EquipmentTypeFormView* form = o.form();
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), QStringLiteral("Modifica Tipologia"));
        const FormDriver driver(*form);
        QCOMPARE(driver.part<QLineEdit>("name").text(), QStringLiteral("Bussola"));
        driver.type("name", QStringLiteral("Zaino"));
        driver.save();
        Open::settle();
        QCOMPARE(o.names().last(), QStringLiteral("Zaino"));
        QVERIFY(!o.names().contains(QStringLiteral("Bussola")));
        const TypeRow& row = o.row(QStringLiteral("Zaino"));
        QCOMPARE(o.sheet.focusWidget(), row.buttons().first());
        QCOMPARE(row.visibleRegion().boundingRect(), row.rect()); // it was scrolled to
    }

    void deletingAsksFirst()
    {
        ScreenFixture f;
        Open o(f);
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
        Open::settle();
        QCOMPARE(f.types.types(), before);
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("Pinne")).buttons().last());

        o.press(QStringLiteral("Pinne"), "deleteType");
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        Open::settle();
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
        Open o(f);
        o.press(QStringLiteral("B"), "deleteType");
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        Open::settle();
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("A")).buttons().last());
        o.press(QStringLiteral("A"), "deleteType");
        QTest::mouseClick(o.driver.alert()->destructiveButton(), Qt::LeftButton);
        Open::settle();
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("typeSearch"));
    }

    void deletingOneOfTwins()
    {
        ScreenFixture f;
        f.types.setTypes({own(1, QStringLiteral("Boa")), own(2, QStringLiteral("Boa"))});
        Open o(f);
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
        Open o(f);
        QCOMPARE(o.names(), QStringList(QStringLiteral("Boa")));
        o.driver.click("resetTypes");
        QVERIFY(!o.driver.alert());
        Open::settle();
        QCOMPARE(o.names(), defaultNames());
        QCOMPARE(f.preferences.integer(EquipmentTypeViewModel::iconVersionKey), std::optional<std::int64_t>(4));
        QVERIFY(!f.preferences.data(EquipmentTypeViewModel::typesKey).value()->contains("Boa"));
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("resetTypes"));
    }

    void theListLives()
    {
        ScreenFixture f;
        Open o(f);
        f.types.addType(own(901, QStringLiteral("Boa")));
        Open::settle();
        QVERIFY(o.names().contains(QStringLiteral("Boa")));
        EquipmentTypeModel changed = own(901, QStringLiteral("Boa"));
        changed.serviceIntervalDays = 120;
        f.types.updateType(changed);
        Open::settle();
        QVERIFY(visibleLabels(o.row(QStringLiteral("Boa"))).contains(QStringLiteral("Intervallo: 120 giorni")));
        f.types.deleteType(changed);
        Open::settle();
        QCOMPARE(o.names(), defaultNames());
        f.types.setTypes({});
        Open::settle();
        QVERIFY(visibleLabels(o.sheet).contains(QStringLiteral("Nessuna tipologia trovata")));
    }

    void tabFollowsTheReadingOrder()
    {
        ScreenFixture f;
        Open o(f);
        const QString expected = QStringLiteral("typeSearch addType editType deleteType resetTypes cancel");
        QCOMPARE(tabOrder(o.sheet).join(QLatin1Char(' ')), expected);
        f.types.addType(own(901, QStringLiteral("Boa"))); // rows that come later stand in the order too
        Open::settle();
        o.row(QStringLiteral("Altro")).buttons().first()->setFocus();
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_End);
        QCOMPARE(o.sheet.focusWidget(), o.row(QStringLiteral("Torcia")).buttons().last());
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Tab);
        QCOMPARE(o.sheet.focusWidget()->objectName(), QStringLiteral("resetTypes"));
    }

    void arrowKeysReachEveryRow()
    {
        ScreenFixture f;
        Open o(f);
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
        Open o(f);
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

    void unusualRecords()
    {
        ScreenFixture f;
        EquipmentTypeModel type = own(1, QStringLiteral("Boa"));
        type.icon.clear();
        type.color = QStringLiteral("Verde Acqua");
        type.serviceIntervalDays = std::numeric_limits<std::int64_t>::min();
        f.types.setTypes({type});
        Open o(f);
        QVERIFY(visibleLabels(*o.rows().first()).contains(QStringLiteral("Intervallo: -9223372036854775808 giorni")));
    }

    void hundredsOfTypes()
    {
        ScreenFixture f;
        QList<EquipmentTypeModel> types;
        for (int i = 0; i < 600; ++i)
            types.append(own(i + 1, QStringLiteral("Tipo %1").arg(i, 3, 10, QLatin1Char('0'))));
        f.types.setTypes(types);
        Open o(f);
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
        Open::settle();
        QVERIFY(shows(QStringLiteral("Verricello")));
    }

    void rowsAreAsHighAsTheirNames()
    {
        ScreenFixture f;
        f.types.setTypes({own(1, QStringLiteral("A")), own(2, QStringLiteral("B").repeated(300)),
                          own(3, QStringLiteral("C\nC")), own(4, QStringLiteral("D"))});
        Open o(f);
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
            Open o(f);
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
