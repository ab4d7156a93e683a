// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "EquipmentMenu.h"
#include "MaintenanceFormView.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QLineEdit>
#include <QMenuBar>

using namespace abissora;
using namespace abissora::test;

namespace {

struct WindowWithMenu : ShownWindow
{
    using ShownWindow::ShownWindow;

    [[nodiscard]] QMenu& menu() { return existing<QMenu>(window, "equipmentMenu"); }
    [[nodiscard]] QAction& command(const QString& text)
    {
        for (QAction* action : menu().actions())
            if (action->text().remove(u'&') == text)
                return *action;
        qFatal("no command %s", qUtf8Printable(text));
    }
    void select(int row)
    {
        table().selectRow(row);
        settle();
    }
};

} // namespace

class tst_EquipmentMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsEveryVerbWithItsKey()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        QStringList entries;
        for (const QAction* action : s.menu().actions())
            entries.append(action->isSeparator() ? u"-"_s
                                                 : action->text().remove(u'&') + u'|' + action->shortcut().toString());
        QCOMPARE(entries, QStringList({u"Visualizza dettagli|Return"_s, u"Modifica attrezzatura|F2"_s,
                                       u"Aggiungi Manutenzione|Ctrl+M"_s, u"Disattiva|"_s, u"Duplica…|Ctrl+D"_s, u"-"_s,
                                       u"Elimina attrezzatura|Del"_s}));
        for (const QAction* action : s.menu().actions())
            QVERIFY(action->isSeparator() || !action->icon().isNull());
    }

    void isDisabledWithoutAnItem()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.sidebar().setFocus();
        QVERIFY(!s.command(u"Modifica attrezzatura"_s).isEnabled());
        s.table().setFocus();
        QVERIFY2(s.command(u"Modifica attrezzatura"_s).isEnabled(), "the keyboard stands at an item");
        s.sidebar().setFocus();
        s.select(1);
        QVERIFY(s.command(u"Modifica attrezzatura"_s).isEnabled());
        s.window.content().setSelectedTab(ContentView::StatisticsTab);
        QVERIFY(!s.command(u"Modifica attrezzatura"_s).isEnabled());
        s.window.content().setSelectedTab(ContentView::ListTab);
        QVERIFY(s.command(u"Modifica attrezzatura"_s).isEnabled());
        s.window.content().showSettings();
        QVERIFY(!s.command(u"Modifica attrezzatura"_s).isEnabled());
    }

    void detailsOpenAtTheKeyboard()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.table().setFocus();
        s.command(u"Visualizza dettagli"_s).trigger();
        QCOMPARE(textOf(s.window, "detailName"), u"Computer Suunto EON Core"_s);
    }

    void theFormOpensByKey()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.select(1);
        QTest::keyClick(&s.window, Qt::Key_F2);
        QCOMPARE(part<QLineEdit>(openDialog<EditEquipmentView>(s.window), "name").text(), u"GAV Scubapro Hydros"_s);
    }

    void aRecordIsAddedByKey()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.table().setFocus();
        QTest::keyClick(&s.table(), Qt::Key_M, Qt::ControlModifier);
        settle();
        QVERIFY(isShown(s.window, "detailPane"));
        openDialog<MaintenanceFormView>(s.window);
    }

    void activityIsTurnedRound()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.select(0);
        const QUuid id = s.window.content().selectedEquipment()->id;
        const auto isActive = [&] { return std::ranges::find(f.equipment.equipment(), id, &Equipment::id)->isActive; };
        s.command(u"Disattiva"_s).trigger();
        QVERIFY(!isActive());
        QCOMPARE(textOf(s.window, "detailState"), u"Inattivo"_s);
        s.command(u"Attiva"_s).trigger();
        QVERIFY(isActive());
    }

    void aDuplicateIsAnotherPieceOfTheSameKind()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.select(0);
        const Equipment original = s.window.content().item().value();
        QVERIFY(!original.serialNumber.isEmpty());
        QTest::keyClick(&s.window, Qt::Key_D, Qt::ControlModifier);
        auto& form = openDialog<EquipmentFormView>(s.window);
        QCOMPARE(part<QLineEdit>(form, "serialNumber").text(), QString());
        press(form, u"Salva"_s);
        settle();
        QCOMPARE(f.equipment.equipment().size(), 4);
        const Equipment copy = f.equipment.equipment().last();
        QVERIFY(copy.id != original.id);
        QVERIFY(copy.maintenanceHistory.isEmpty());
        QVERIFY(copy.isActive);
        QCOMPARE(copy.name, original.name);
        QCOMPARE(copy.type, original.type);
        QCOMPARE(copy.brand, original.brand);
        QCOMPARE(copy.model, original.model);
        QCOMPARE(copy.purchaseDate, original.purchaseDate);
        QCOMPARE(copy.lastServiceDate, original.lastServiceDate);
        QCOMPARE(copy.notes, original.notes);
        QCOMPARE(s.window.content().selectedEquipment()->id, copy.id);
    }

    void deletingAsks()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.select(0);
        s.command(u"Elimina attrezzatura"_s).trigger();
        press(openDialog<Alert>(s.window), u"Elimina"_s);
        settle();
        QCOMPARE(f.equipment.equipment().size(), 2);
        QVERIFY(!s.window.content().selectedEquipment());
    }

    void keysOfTheListMeanOtherThingsElsewhere()
    {
        ShellFixture f;
        WindowWithMenu s(f);
        s.select(0);
        auto& search = part<QLineEdit>(s.window, "search");
        search.setFocus();
        QTest::keyClicks(&search, u"a"_s);
        QTest::keyClick(&search, Qt::Key_Delete);
        s.sidebar().setFocus();
        QTest::keyClick(&s.sidebar(), Qt::Key_Delete);
        QVERIFY(!isDialogOpen(s.window));
        QMenuBar& bar = *s.window.menuBar();
        bar.setFocus(Qt::MenuBarFocusReason);
        QTest::keyClick(&bar, Qt::Key_Delete);
        QVERIFY(!isDialogOpen(s.window));
    }
};

ABISSORA_TEST(tst_EquipmentMenu);

#include "tst_EquipmentMenu.moc"
