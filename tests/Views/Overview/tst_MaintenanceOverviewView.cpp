// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "MaintenanceOverviewView.h"
#include "ScaledText.h"

#include "ClippedTexts.h"
#include "IconTile.h"
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
        ShellFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(cardTexts(s.window), cards(3, 2, 2, 1));
        QCOMPARE(rowTexts(s.dueList()), QStringList({u"GAV Scubapro Hydros, Scaduto da 30 giorni"_s,
                                                     u"Computer Suunto EON Core, Scaduto da 15 giorni"_s}));
        QVERIFY(!isShown(s.window, u"allInOrder"_s));
    }

    void emptyRegister()
    {
        ShellFixture f(QList<Equipment>{});
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(cardTexts(s.window), cards(0, 0, 0, 0));
        QVERIFY(isShown(s.window, u"allInOrder"_s));
        QVERIFY(!isShown(s.window, u"dueList"_s));
        QWidget& empty = part(s.window, u"allInOrder"_s);
        QCOMPARE(empty.accessibleName(), u"Tutte le attrezzature sono in regola!"_s);
    }

    void anInactiveOverdueItemCountsInTheTotalOnly()
    {
        ShellFixture f(QList<Equipment>{});
        Equipment item = makeItem(1, u"Vecchia muta"_s, EquipmentType::wetsuit, f.inDays(-10));
        item.isActive = false;
        f.equipment.addEquipment(item);
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(cardTexts(s.window), cards(1, 0, 0, 0));
        QVERIFY(isShown(s.window, u"allInOrder"_s));
    }

    void dueTexts_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("text");
        QTest::newRow("overdue") << -12 << u"Scaduto da 12 giorni"_s;
        QTest::newRow("a day overdue") << -1 << u"Scaduto da 1 giorni"_s;
        QTest::newRow("today") << 0 << u"Scaduto da 0 giorni"_s;
        QTest::newRow("not yet") << 12 << u"Scaduto da 12 giorni"_s;
        QTest::newRow("long ago") << -3000 << u"Scaduto da 3000 giorni"_s;
    }

    void dueTexts()
    {
        QFETCH(int, days);
        QFETCH(QString, text);
        ShellFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(days)));
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(textOf(s.window, u"dueName"_s), u"Pinne"_s);
        QCOMPARE(textOf(s.window, u"dueState"_s), text);
    }

    void catalogueOrder()
    {
        ShellFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"b"_s, EquipmentType::fins, f.inDays(20)));
        f.equipment.addEquipment(makeItem(2, u"c"_s, EquipmentType::fins, f.inDays(31)));
        f.equipment.addEquipment(makeItem(3, u"a"_s, EquipmentType::fins, f.inDays(-20)));
        f.equipment.setSearchText(u"zzz"_s); // a filter of the list does not matter here
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(rowTexts(s.dueList()), QStringList({u"b, Scaduto da 20 giorni"_s, u"a, Scaduto da 20 giorni"_s}));
    }

    void everyChangeShows()
    {
        ShellFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        Equipment fins = makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(-3));
        f.equipment.addEquipment(fins);
        settle();
        QCOMPARE(cardTexts(s.window), cards(4, 3, 2, 1));
        fins.isActive = false;
        f.equipment.updateEquipment(fins);
        settle();
        QCOMPARE(cardTexts(s.window), cards(4, 2, 2, 1));
        f.equipment.addMaintenance(f.equipment.equipment().at(1).id, makeRecord(f, 1, 0, u"Revisione"_s));
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
        ShellFixture f(QList<Equipment>{});
        Equipment lamp = makeItem(1, u"Faro"_s, EquipmentType::other, f.inDays(1));
        lamp.customTypeName = u"Torcia"_s;
        f.equipment.addEquipment(lamp);
        ShownTab s(f, ContentView::MaintenanceTab);
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
        ShellFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"x"_s, static_cast<EquipmentType>(type), f.inDays(1)));
        f.types.setTypes({});
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(icon, static_cast<NamedColor>(color)));
    }

    void theLogSaysNothing()
    {
        ShellFixture f;
        MaintenanceOverviewView view(f.equipment, f.types, {});
        view.show();
        settle();
        f.types.resetToDefaults();
        settle();
        QCOMPARE(f.takeLog(), QStringList());
    }

    void aHiddenScreenRestsAndIsRightWhenItIsShown()
    {
        ShellFixture f;
        MaintenanceOverviewView view(f.equipment, f.types, {});
        const StatCard& total = *view.findChildren<StatCard*>().first();
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
        ShellFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        QStringList read;
        for (StatCard* card : s.window.findChildren<StatCard*>()) {
            QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(card);
            QCOMPARE(interface->role(), QAccessible::StaticText);
            read.append(interface->text(QAccessible::Name));
        }
        QCOMPARE(read, cards(3, 2, 2, 1));
    }

    void tabOrder()
    {
        ShellFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        part(s.window, u"sidebar"_s).setFocus();
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            const QWidget* focused = QApplication::focusWidget();
            order.append(!focused->objectName().isEmpty() ? focused->objectName()
                                                          : focused->parentWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"sidebar"_s, u"tabSwitch"_s, u"addMaintenance"_s, u"showDetails"_s,
                                     u"addMaintenance"_s, u"showDetails"_s, u"sidebar"_s}));
    }

    void nothingIsClipped_data()
    {
        QTest::addColumn<double>("scale");
        QTest::newRow("usual text") << 1.0;
        QTest::newRow("larger text") << 1.25;
    }

    void nothingIsClipped()
    {
        QFETCH(double, scale);
        const ScaledText scaled(scale);
        ShellFixture f;
        ShownTab s(f, ContentView::MaintenanceTab, {1000, 700});
        QCOMPARE(s.window.size(), QSize(1000, 700));
        auto& view = *s.window.findChild<MaintenanceOverviewView*>();
        QCOMPARE(clippedTexts(view), QStringList());
        for (const StatCard* card : view.findChildren<StatCard*>()) {
            QVERIFY2(card->width() >= card->minimumSizeHint().width(), qPrintable(card->title()));
            QVERIFY2(card->height() >= card->minimumSizeHint().height(), qPrintable(card->title()));
        }
    }

    /// Rows that exist follow a change of the text size while the screen is shown.
    void textSizeChangesWhileShown()
    {
        ShellFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        const ScaledText twice(2);
        settle();
        QCOMPARE(s.dueList().rows().at(1)->height(), DueRow::rowHeight());
        QCOMPARE(s.dueList().rows().at(1)->y(), DueRow::rowHeight() + 2);
        QVERIFY(s.dueList().rows().at(1)->geometry().bottom() < s.dueList().height());
    }
};

ABISSORA_TEST(tst_MaintenanceOverviewView);

#include "tst_MaintenanceOverviewView.moc"
