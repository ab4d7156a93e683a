// SPDX-License-Identifier: MIT
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
    return {QStringLiteral("Totale Articoli: %1").arg(total), QStringLiteral("Manutenzioni Scadute: %1").arg(due),
            QStringLiteral("In Scadenza (30gg): %1").arg(expiring), QStringLiteral("In Regola: %1").arg(inOrder)};
}

/// The tile as it is drawn for an item of the list.
QImage tileOf(DueList& list, int row)
{
    return list.rows().at(row)->findChild<QWidget*>(QStringLiteral("dueIcon"))->grab().toImage();
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
        ScreenFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(cardTexts(s.window), cards(3, 2, 2, 1));
        QCOMPARE(rowTexts(s.dueList()),
                 QStringList({QStringLiteral("GAV Scubapro Hydros, Scaduto da 30 giorni"),
                              QStringLiteral("Computer Suunto EON Core, Scaduto da 15 giorni")}));
        QVERIFY(!isShown(s.window, QStringLiteral("allInOrder")));
    }

    void emptyRegister()
    {
        ScreenFixture f(QList<Equipment>{});
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(cardTexts(s.window), cards(0, 0, 0, 0));
        QVERIFY(isShown(s.window, QStringLiteral("allInOrder")));
        QVERIFY(!isShown(s.window, QStringLiteral("dueList")));
        QWidget& empty = part(s.window, QStringLiteral("allInOrder"));
        QCOMPARE(empty.accessibleName(), QStringLiteral("Tutte le attrezzature sono in regola!"));
    }

    void anInactiveOverdueItemCountsInTheTotalOnly()
    {
        ScreenFixture f(QList<Equipment>{});
        Equipment item = makeItem(1, QStringLiteral("Vecchia muta"), EquipmentType::wetsuit, f.inDays(-10));
        item.isActive = false;
        f.equipment.addEquipment(item);
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(cardTexts(s.window), cards(1, 0, 0, 0));
        QVERIFY(isShown(s.window, QStringLiteral("allInOrder")));
    }

    void dueTexts_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("text");
        QTest::newRow("overdue") << -12 << QStringLiteral("Scaduto da 12 giorni");
        QTest::newRow("a day overdue") << -1 << QStringLiteral("Scaduto da 1 giorni");
        QTest::newRow("today") << 0 << QStringLiteral("Scaduto da 0 giorni");
        QTest::newRow("not yet") << 12 << QStringLiteral("Scaduto da 12 giorni");
        QTest::newRow("long ago") << -3000 << QStringLiteral("Scaduto da 3000 giorni");
    }

    void dueTexts()
    {
        QFETCH(int, days);
        QFETCH(QString, text);
        ScreenFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, QStringLiteral("Pinne"), EquipmentType::fins, f.inDays(days)));
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(textOf(s.window, QStringLiteral("dueName")), QStringLiteral("Pinne"));
        QCOMPARE(textOf(s.window, QStringLiteral("dueState")), text);
    }

    void catalogueOrder()
    {
        ScreenFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, QStringLiteral("b"), EquipmentType::fins, f.inDays(20)));
        f.equipment.addEquipment(makeItem(2, QStringLiteral("c"), EquipmentType::fins, f.inDays(31)));
        f.equipment.addEquipment(makeItem(3, QStringLiteral("a"), EquipmentType::fins, f.inDays(-20)));
        f.equipment.setSearchText(QStringLiteral("zzz")); // a filter of the list does not matter here
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(rowTexts(s.dueList()),
                 QStringList({QStringLiteral("b, Scaduto da 20 giorni"), QStringLiteral("a, Scaduto da 20 giorni")}));
    }

    void everyChangeShows()
    {
        ScreenFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        Equipment fins = makeItem(1, QStringLiteral("Pinne"), EquipmentType::fins, f.inDays(-3));
        f.equipment.addEquipment(fins);
        settleLayouts();
        QCOMPARE(cardTexts(s.window), cards(4, 3, 2, 1));
        fins.isActive = false;
        f.equipment.updateEquipment(fins);
        settleLayouts();
        QCOMPARE(cardTexts(s.window), cards(4, 2, 2, 1));
        f.equipment.addMaintenance(f.equipment.equipment().at(1).id, makeRecord(f, 1, 0, QStringLiteral("Revisione")));
        settleLayouts();
        QCOMPARE(cardTexts(s.window), cards(4, 1, 1, 2));
        QCOMPARE(rowTexts(s.dueList()), QStringList(QStringLiteral("Computer Suunto EON Core, Scaduto da 15 giorni")));
        f.equipment.deleteEquipment(f.equipment.equipment().at(2));
        settleLayouts();
        QVERIFY(isShown(s.window, QStringLiteral("allInOrder")));
        f.equipment.addEquipment(makeItem(2, QStringLiteral("Maschera"), EquipmentType::mask, f.inDays(1)));
        settleLayouts();
        QVERIFY(!isShown(s.window, QStringLiteral("allInOrder")));
        QCOMPARE(rowTexts(s.dueList()), QStringList(QStringLiteral("Maschera, Scaduto da 1 giorni")));
    }

    void typeSymbols()
    {
        ScreenFixture f(QList<Equipment>{});
        Equipment lamp = makeItem(1, QStringLiteral("Faro"), EquipmentType::other, f.inDays(1));
        lamp.customTypeName = QStringLiteral("Torcia");
        f.equipment.addEquipment(lamp);
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(QStringLiteral("dive.light"), NamedColor::yellow));

        // Renamed: the item keeps the old name, which no record carries any more.
        EquipmentTypeModel type = *f.types.getTypeByName(QStringLiteral("Torcia"));
        type.name = QStringLiteral("Lampada");
        f.types.updateType(type);
        settleLayouts();
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(QStringLiteral("questionmark.circle.fill"), NamedColor::secondary));

        type.name = QStringLiteral("Torcia");
        type.icon = QStringLiteral("dive.knife");
        type.color = QStringLiteral("pink");
        f.types.updateType(type);
        settleLayouts();
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(QStringLiteral("dive.knife"), NamedColor::pink));

        type.icon = QString();
        f.types.updateType(type);
        settleLayouts();
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(QStringLiteral("questionmark.circle.fill"), NamedColor::pink));
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
        ScreenFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, QStringLiteral("x"), static_cast<EquipmentType>(type), f.inDays(1)));
        f.types.setTypes({});
        ShownTab s(f, ContentView::MaintenanceTab);
        QCOMPARE(tileOf(s.dueList(), 0), tileFor(icon, static_cast<NamedColor>(color)));
    }

    void theLogSaysNothing()
    {
        ScreenFixture f;
        MaintenanceOverviewView view(f.context);
        view.show();
        settleLayouts();
        f.types.resetToDefaults();
        settleLayouts();
        QCOMPARE(f.takeLog(), QStringList());
    }

    void aHiddenScreenRestsAndIsRightWhenItIsShown()
    {
        ScreenFixture f;
        MaintenanceOverviewView view(f.context);
        const StatCard& total = *view.findChildren<StatCard*>().first();
        QCOMPARE(total.value(), QString());
        view.show();
        QCOMPARE(total.value(), QStringLiteral("3")); // before anything was painted
        view.hide();
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        settleLayouts();
        QCOMPARE(total.value(), QStringLiteral("3"));
        view.show();
        QCOMPARE(total.value(), QStringLiteral("2"));
    }

    void cardsAreReadAsTitleAndValue()
    {
        ScreenFixture f;
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
        ScreenFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        part(s.window, QStringLiteral("sidebar")).setFocus();
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            const QWidget* focused = QApplication::focusWidget();
            order.append(!focused->objectName().isEmpty() ? focused->objectName()
                                                          : focused->parentWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
                 QStringList({QStringLiteral("sidebar"), QStringLiteral("tabSwitch"), QStringLiteral("addMaintenance"),
                              QStringLiteral("showDetails"), QStringLiteral("addMaintenance"),
                              QStringLiteral("showDetails"), QStringLiteral("sidebar")}));
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
        ScreenFixture f;
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
        ScreenFixture f;
        ShownTab s(f, ContentView::MaintenanceTab);
        const ScaledText twice(2);
        settleLayouts();
        QCOMPARE(s.dueList().rows().at(1)->height(), DueRow::rowHeight());
        QCOMPARE(s.dueList().rows().at(1)->y(), DueRow::rowHeight() + 2);
        QVERIFY(s.dueList().rows().at(1)->geometry().bottom() < s.dueList().height());
    }
};

ABISSORA_TEST(tst_MaintenanceOverviewView);

#include "tst_MaintenanceOverviewView.moc"
