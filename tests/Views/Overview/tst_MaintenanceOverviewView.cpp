// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "MaintenanceOverviewView.h"
#include "ScaledText.h"

#include "IconViews.h"
#include "OverviewParts.h"
#include "SymbolIcon.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>

using namespace abissora;
using namespace abissora::test;

namespace {

QStringList cards(qsizetype total, qsizetype due, qsizetype expiring, qsizetype inOrder)
{
    return {u"Totale Articoli: %1"_s.arg(total), u"Manutenzioni Scadute: %1"_s.arg(due),
            u"In Scadenza (30gg): %1"_s.arg(expiring), u"In Regola: %1"_s.arg(inOrder)};
}

/// The tile as it is drawn for an item of the list.
QImage tileOf(DueList& list, int row)
{
    return list.rows().at(row)->findChild<QWidget*>(u"dueIcon"_s)->grab().toImage();
}

QImage tileFor(const QString& icon, NamedColor color)
{
    QWidget row; // a tile of its own would be a window
    IconTile tile;
    tile.setParent(&row);
    tile.setIcon(typeIcon(icon, color), color);
    tile.resize(tile.sizeHint());
    return tile.grab().toImage();
}

} // namespace

class tst_MaintenanceOverviewView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void freshSamples()
    {
        RegisterFixture f;
        ShownOverview s(f);
        QCOMPARE(cardTexts(s.window), cards(3, 2, 2, 1));
        QCOMPARE(rowTexts(s.dueList()), QStringList({u"GAV Scubapro Hydros, Scaduto da 30 giorni"_s,
                                                     u"Computer Suunto EON Core, Scaduto da 15 giorni"_s}));
        QVERIFY(!isShown(s.window, u"allInOrder"_s));
    }

    void emptyRegister()
    {
        RegisterFixture f(QList<Equipment>{});
        ShownOverview s(f);
        QCOMPARE(cardTexts(s.window), cards(0, 0, 0, 0));
        QVERIFY(isShown(s.window, u"allInOrder"_s));
        QVERIFY(!isShown(s.window, u"dueList"_s));
        QWidget& empty = part(s.window, u"allInOrder"_s);
        QCOMPARE(empty.accessibleName(), u"Tutte le attrezzature sono in regola!"_s);
    }

    void anInactiveOverdueItemCountsInTheTotalOnly()
    {
        RegisterFixture f(QList<Equipment>{});
        Equipment item = makeItem(1, u"Vecchia muta"_s, EquipmentType::wetsuit, f.inDays(-10));
        item.isActive = false;
        f.equipment.addEquipment(item);
        ShownOverview s(f);
        QCOMPARE(cardTexts(s.window), cards(1, 0, 0, 0));
        QVERIFY(isShown(s.window, u"allInOrder"_s));
    }

    void catalogueOrder()
    {
        RegisterFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"b"_s, EquipmentType::fins, f.inDays(20)));
        f.equipment.addEquipment(makeItem(2, u"c"_s, EquipmentType::fins, f.inDays(31)));
        f.equipment.addEquipment(makeItem(3, u"a"_s, EquipmentType::fins, f.inDays(-20)));
        f.equipment.setSearchText(u"zzz"_s); // a filter of the list does not matter here
        ShownOverview s(f);
        QCOMPARE(rowTexts(s.dueList()), QStringList({u"b, Scaduto da 20 giorni"_s, u"a, Scaduto da 20 giorni"_s}));
    }

    void everyChangeShows()
    {
        RegisterFixture f;
        ShownOverview s(f);
        Equipment fins = makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(-3));
        f.equipment.addEquipment(fins);
        settle();
        QCOMPARE(cardTexts(s.window), cards(4, 3, 2, 1));
        fins.isActive = false;
        f.equipment.updateEquipment(fins);
        settle();
        QCOMPARE(cardTexts(s.window), cards(4, 2, 2, 1));
        f.equipment.addMaintenance(f.equipment.equipment().at(1).id, makeRecord(1, 0, u"Revisione"_s));
        settle();
        QCOMPARE(cardTexts(s.window), cards(4, 1, 1, 2));
        QCOMPARE(rowTexts(s.dueList()), QStringList(u"Computer Suunto EON Core, Scaduto da 15 giorni"_s));
        f.equipment.deleteEquipment(f.equipment.equipment().at(2));
        settle();
        QVERIFY(isShown(s.window, u"allInOrder"_s));
        f.equipment.addEquipment(makeItem(2, u"Maschera"_s, EquipmentType::mask, f.inDays(1)));
        settle();
        QVERIFY(!isShown(s.window, u"allInOrder"_s));
        QCOMPARE(rowTexts(s.dueList()), QStringList(u"Maschera, Scaduto da 1 giorni"_s));
    }

    void typeSymbols()
    {
        RegisterFixture f(QList<Equipment>{});
        Equipment lamp = makeItem(1, u"Faro"_s, EquipmentType::other, f.inDays(1));
        lamp.customTypeName = u"Torcia"_s;
        f.equipment.addEquipment(lamp);
        ShownOverview s(f);
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(u"dive.light"_s, NamedColor::yellow));

        // Renamed: the item keeps the old name, which no record carries any more.
        EquipmentTypeModel type = *f.types.getTypeByName(u"Torcia"_s);
        type.name = u"Lampada"_s;
        f.types.updateType(type);
        settle();
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(u"questionmark.circle.fill"_s, NamedColor::secondary));

        type.name = u"Torcia"_s;
        type.icon = u"dive.knife"_s;
        type.color = u"pink"_s;
        f.types.updateType(type);
        settle();
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(u"dive.knife"_s, NamedColor::pink));

        type.icon = QString();
        f.types.updateType(type);
        settle();
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(u"questionmark.circle.fill"_s, NamedColor::pink));
    }

    void builtInSymbols_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<int>("color");
        const auto row = [](EquipmentType type, const char* icon, NamedColor color) {
            QTest::newRow(icon) << static_cast<int>(type) << QString::fromLatin1(icon) << static_cast<int>(color);
        };
        row(EquipmentType::regulator, "dive.regulator", NamedColor::blue);
        row(EquipmentType::bcd, "dive.bcd", NamedColor::orange);
        row(EquipmentType::cylinder, "dive.tank", NamedColor::gray);
        row(EquipmentType::mask, "dive.mask", NamedColor::purple);
        row(EquipmentType::fins, "dive.fins", NamedColor::green);
        row(EquipmentType::wetsuit, "dive.wetsuit", NamedColor::red);
        row(EquipmentType::drysuit, "dive.drysuit", NamedColor::indigo);
        row(EquipmentType::computer, "dive.computer", NamedColor::cyan);
        row(EquipmentType::other, "questionmark.circle.fill", NamedColor::secondary);
    }

    void builtInSymbols()
    {
        QFETCH(int, type);
        QFETCH(QString, icon);
        QFETCH(int, color);
        RegisterFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"x"_s, static_cast<EquipmentType>(type), f.inDays(1)));
        f.types.setTypes({});
        ShownOverview s(f);
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(icon, static_cast<NamedColor>(color)));
    }

    void theLogSaysNothing()
    {
        RegisterFixture f;
        MaintenanceOverviewView view(f.equipment, f.types, ShownOverview::makeSheet);
        view.show();
        settle();
        f.types.resetToDefaults();
        settle();
        QCOMPARE(f.takeLog(), QStringList());
    }

    void aHiddenScreenRestsAndIsRightWhenItIsShown()
    {
        RegisterFixture f;
        MaintenanceOverviewView view(f.equipment, f.types, ShownOverview::makeSheet);
        const StatCard& total = *view.findChildren<StatCard*>().constFirst();
        QCOMPARE(total.value(), QString());
        view.show();
        QCOMPARE(total.value(), u"3"_s); // before anything was painted
        view.hide();
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        settle();
        QCOMPARE(total.value(), u"3"_s);
        view.show();
        QCOMPARE(total.value(), u"2"_s);
    }

    void cardsAreReadAsTitleAndValue()
    {
        RegisterFixture f;
        ShownOverview s(f);
        QStringList read;
        for (StatCard* card : s.window.findChildren<StatCard*>()) {
            QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(card);
            QCOMPARE(interface->role(), QAccessible::StaticText);
            read.append(interface->text(QAccessible::Name));
        }
        QCOMPARE(read, cards(3, 2, 2, 1));
    }

    void bothButtonsOpenTheItem_data()
    {
        QTest::addColumn<int>("part");
        QTest::newRow("add") << int(DueRow::AddMaintenance);
        QTest::newRow("details") << int(DueRow::Details);
    }

    void bothButtonsOpenTheItem()
    {
        QFETCH(const int, part);
        RegisterFixture f;
        ShownOverview s(f);
        QVERIFY(!s.view.selectedEquipment());
        QAbstractButton& button = *s.dueList().rows().at(1)->button(static_cast<DueRow::Part>(part));
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(s.view.selectedEquipment()->name, u"Computer Suunto EON Core"_s);
        QCOMPARE(openDialog(s.window).windowTitle(), u"Computer Suunto EON Core"_s);
        QVERIFY(!f.equipment.selectedEquipment());
        QTest::keyClick(&openDialog(s.window), Qt::Key_Escape);
        QVERIFY(!isDialogOpen(s.window));
        QVERIFY(!s.view.selectedEquipment());
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&button));
        QTRY_VERIFY(s.view.findChildren<QDialog*>().isEmpty());
    }

    void theItemGoesWhileItIsOpen()
    {
        RegisterFixture f;
        ShownOverview s(f);
        const Equipment item = f.equipment.equipment().at(1);
        s.view.setSelectedEquipment(item);
        f.equipment.deleteEquipment(f.equipment.equipment().at(2)); // another one
        QVERIFY(isDialogOpen(s.window));
        f.equipment.deleteEquipment(item);
        QVERIFY(!isDialogOpen(s.window));
        QVERIFY(!s.view.selectedEquipment());
    }

    void selectingNothingClosesAndAnotherItemReplaces()
    {
        RegisterFixture f;
        ShownOverview s(f);
        const auto& items = f.equipment.equipment();
        s.view.setSelectedEquipment(items.at(0));
        s.view.setSelectedEquipment(items.at(1));
        settle();
        QCOMPARE(s.view.findChildren<QDialog*>().size(), 1);
        QCOMPARE(s.view.selectedEquipment()->id, items.at(1).id);
        QCOMPARE(openDialog(s.window).windowTitle(), items.at(1).name);
        s.view.setSelectedEquipment(std::nullopt);
        QVERIFY(!isDialogOpen(s.window));
        QVERIFY(!s.view.selectedEquipment());
    }

    /// Rows that exist follow a change of the text size while the screen is shown.
    void textSizeChangesWhileShown()
    {
        RegisterFixture f;
        ShownOverview s(f);
        const ScaledText twice(2);
        settle();
        QCOMPARE(s.dueList().rows().at(1)->height(), dueRowHeight());
        QCOMPARE(s.dueList().rows().at(1)->y(), dueRowHeight() + 2);
        QVERIFY(s.dueList().rows().at(1)->geometry().bottom() < s.dueList().height());
    }
};

ABISSORA_TEST(tst_MaintenanceOverviewView);

#include "tst_MaintenanceOverviewView.moc"
