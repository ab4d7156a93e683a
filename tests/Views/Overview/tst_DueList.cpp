// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "OverviewParts.h"
#include "TestRunner.h"

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr int many = 3000;

QScrollArea& page(QWidget& window)
{
    for (QWidget* above = part(window, u"dueList"_s).parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(above))
            return *area;
    }
    qFatal("the list lies in no scroll area");
}

DueRow* rowOf(DueList& list, const QString& name)
{
    for (DueRow* row : list.rows()) {
        if (row->equipment().name == name)
            return row;
    }
    return nullptr;
}

DueRow* rowWithFocus()
{
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr ? qobject_cast<DueRow*>(focused->parentWidget()) : nullptr;
}

/// "name/button" of what has the focus.
QString focusText()
{
    const DueRow* row = rowWithFocus();
    return row == nullptr ? u"elsewhere"_s : row->equipment().name + u'/' + QApplication::focusWidget()->objectName();
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

bool isInSight(const QWidget& widget, const QScrollArea& area)
{
    const QRect place(widget.mapTo(area.viewport(), QPoint()), widget.size());
    return area.viewport()->rect().contains(place);
}

} // namespace

class tst_DueList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fewRowsExistHoweverManyItems()
    {
        RegisterFixture f(dueItems(many));
        ShownOverview s(f);
        DueList& list = s.dueList();
        QCOMPARE(list.itemCount(), many);
        QVERIFY(list.rows().size() < 30);
        const qsizetype widgets = list.findChildren<DueRow*>().size();
        QScrollBar& bar = *page(s.window).verticalScrollBar();
        for (int value = 0; value < bar.maximum(); value += bar.maximum() / 50)
            bar.setValue(value);
        QVERIFY(list.rows().size() < 30);
        QVERIFY(list.findChildren<DueRow*>().size() < widgets + 15);
    }

    void whatIsInSightIsThere_data()
    {
        QTest::addColumn<double>("share");
        QTest::newRow("top") << 0.0;
        QTest::newRow("somewhere") << 0.37;
        QTest::newRow("bottom") << 1.0;
    }

    void whatIsInSightIsThere()
    {
        QFETCH(double, share);
        RegisterFixture f(dueItems(many));
        ShownOverview s(f);
        QScrollArea& area = page(s.window);
        area.verticalScrollBar()->setValue(static_cast<int>(area.verticalScrollBar()->maximum() * share));
        DueList& list = s.dueList();
        const QRect sight = QRect(list.mapFrom(area.viewport(), QPoint()), area.viewport()->size()) & list.rect();
        QRegion covered;
        for (const DueRow* row : list.rows()) {
            const int index = QStringView(row->equipment().name).mid(9).toInt();
            QCOMPARE(row->accessibleName(), u"Articolo %1, Scaduto da %1 giorni"_s.arg(index));
            QCOMPARE(row->y(), index * (dueRowHeight() + 1) + 1);
            QCOMPARE(row->width(), list.width());
            covered += row->geometry().adjusted(0, -1, 0, 1);
        }
        QVERIFY(sight.height() > 300);
        QVERIFY(QRegion(sight).subtracted(covered).isEmpty());
    }

    void aLargerWindowShowsMoreRows()
    {
        RegisterFixture f(dueItems(many));
        ShownOverview s(f, {770, 660});
        const qsizetype before = s.dueList().rows().size();
        s.window.resize(970, 960);
        settle();
        QVERIFY(s.dueList().rows().size() >= before + 4);
        QCOMPARE(s.dueList().rows().first()->width(), s.dueList().width());
    }

    void tabWalksThroughEveryRow()
    {
        RegisterFixture f(dueItems(60));
        ShownOverview s(f);
        rowOf(s.dueList(), u"Articolo 0"_s)->button(DueRow::AddMaintenance)->setFocus(Qt::TabFocusReason);
        for (int i = 0; i < 60; ++i) {
            QCOMPARE(focusText(), u"Articolo %1/addMaintenance"_s.arg(i));
            press(Qt::Key_Tab);
            QCOMPARE(focusText(), u"Articolo %1/showDetails"_s.arg(i));
            QVERIFY(isInSight(*rowWithFocus(), page(s.window)));
            press(Qt::Key_Tab);
        }
        QCOMPARE(focusText(), u"elsewhere"_s);
        press(Qt::Key_Backtab);
        for (int i = 59; i >= 0; --i) {
            QCOMPARE(focusText(), u"Articolo %1/showDetails"_s.arg(i));
            press(Qt::Key_Backtab);
            QCOMPARE(focusText(), u"Articolo %1/addMaintenance"_s.arg(i));
            press(Qt::Key_Backtab);
        }
        QCOMPARE(focusText(), u"elsewhere"_s);
    }

    void tabStartsAtTheFirstRowHoweverFarScrolled()
    {
        RegisterFixture f(dueItems(many));
        ShownOverview s(f);
        QScrollArea& area = page(s.window);
        area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum() / 2);
        area.setFocus(Qt::TabFocusReason);
        press(Qt::Key_Tab);
        QCOMPARE(focusText(), u"Articolo 0/addMaintenance"_s);
        QVERIFY(isInSight(*rowWithFocus(), area));
    }

    void keysWalkThroughTheRows()
    {
        RegisterFixture f(dueItems(many));
        ShownOverview s(f);
        rowOf(s.dueList(), u"Articolo 0"_s)->button(DueRow::Details)->setFocus(Qt::TabFocusReason);
        const auto expect = [&](Qt::Key key, int index) {
            press(key);
            QCOMPARE(focusText(), u"Articolo %1/showDetails"_s.arg(index));
            QVERIFY(isInSight(*rowWithFocus(), page(s.window)));
        };
        expect(Qt::Key_Up, 0);
        expect(Qt::Key_Down, 1);
        expect(Qt::Key_Down, 2);
        expect(Qt::Key_Up, 1);
        expect(Qt::Key_End, many - 1);
        expect(Qt::Key_Down, many - 1);
        expect(Qt::Key_Up, many - 2);
        expect(Qt::Key_Home, 0);
        press(Qt::Key_PageDown);
        const int page = QStringView(rowWithFocus()->equipment().name).mid(9).toInt();
        QVERIFY(page > 3);
        expect(Qt::Key_PageDown, 2 * page);
        expect(Qt::Key_PageUp, page);
    }

    /// A list that scrolls under the wheel does not take the focus away from where it is.
    void scrollingKeepsTheFocus()
    {
        RegisterFixture f(dueItems(many));
        ShownOverview s(f);
        rowOf(s.dueList(), u"Articolo 3"_s)->button(DueRow::Details)->setFocus(Qt::TabFocusReason);
        QScrollBar& bar = *page(s.window).verticalScrollBar();
        bar.setValue(bar.maximum());
        bar.setValue(bar.maximum() / 2);
        QCOMPARE(focusText(), u"Articolo 3/showDetails"_s);
        press(Qt::Key_Down);
        QCOMPARE(focusText(), u"Articolo 4/showDetails"_s);
        QVERIFY(isInSight(*rowWithFocus(), page(s.window)));
    }

    void theFocusStaysOnItsItem()
    {
        RegisterFixture f(dueItems(40));
        ShownOverview s(f);
        rowOf(s.dueList(), u"Articolo 5"_s)->button(DueRow::Details)->setFocus(Qt::TabFocusReason);
        f.equipment.deleteEquipment(f.equipment.equipment().at(2));
        settle();
        QCOMPARE(focusText(), u"Articolo 5/showDetails"_s);
        QCOMPARE(rowWithFocus()->y(), 4 * (dueRowHeight() + 1) + 1);
        QCOMPARE(rowTexts(s.dueList()).mid(2, 3),
                 QStringList({u"Articolo 3, Scaduto da 3 giorni"_s, u"Articolo 4, Scaduto da 4 giorni"_s,
                              u"Articolo 5, Scaduto da 5 giorni"_s}));
        press(Qt::Key_Down);
        QCOMPARE(focusText(), u"Articolo 6/showDetails"_s);
    }

    void theFocusStaysInThePlaceOfAnItemThatGoes_data()
    {
        QTest::addColumn<int>("focused");
        QTest::addColumn<QString>("expected");
        QTest::newRow("in the middle") << 2 << u"Articolo 3/addMaintenance"_s;
        QTest::newRow("the last") << 4 << u"Articolo 3/addMaintenance"_s;
    }

    void theFocusStaysInThePlaceOfAnItemThatGoes()
    {
        QFETCH(int, focused);
        QFETCH(QString, expected);
        RegisterFixture f(dueItems(5));
        ShownOverview s(f);
        const Equipment item = f.equipment.equipment().at(focused);
        rowOf(s.dueList(), item.name)->button(DueRow::AddMaintenance)->setFocus(Qt::TabFocusReason);
        f.equipment.deleteEquipment(item);
        settle();
        QCOMPARE(focusText(), expected);
        QCOMPARE(s.dueList().rows().size(), 4);
    }

    void theLastRowGoesWhileItHasTheFocus()
    {
        RegisterFixture f(dueItems(1));
        ShownOverview s(f);
        s.dueList().rows().first()->button(DueRow::Details)->setFocus(Qt::TabFocusReason);
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        settle();
        QVERIFY(!isShown(s.window, u"dueList"_s));
        QVERIFY(QApplication::focusWidget() != nullptr);
        QVERIFY(QApplication::focusWidget()->isVisible());
    }

    void screenReadersFindAListOfRows()
    {
        RegisterFixture f(dueItems(4));
        ShownOverview s(f);
        // Rows were made in another order than they stand in.
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        f.equipment.addEquipment(makeItem(9, u"Nuovo"_s, EquipmentType::fins, f.inDays(12)));
        settle();
        QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&s.dueList());
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->text(QAccessible::Name), u"Manutenzioni Scadute"_s);
        QStringList read;
        for (int i = 0; i < list->childCount(); ++i) {
            QAccessibleInterface* const row = list->child(i);
            QCOMPARE(row->role(), QAccessible::ListItem);
            QCOMPARE(list->indexOfChild(row), i);
            QCOMPARE(row->parent(), list);
            read.append(row->text(QAccessible::Name));
        }
        QCOMPARE(read, QStringList({u"Articolo 1, Scaduto da 1 giorni"_s, u"Articolo 2, Scaduto da 2 giorni"_s,
                                    u"Articolo 3, Scaduto da 3 giorni"_s, u"Nuovo, Scaduto da 12 giorni"_s}));
        QAccessibleInterface* const button =
            QAccessible::queryAccessibleInterface(s.dueList().rows().first()->button(DueRow::AddMaintenance));
        QCOMPARE(button->text(QAccessible::Name), u"Aggiungi Manutenzione"_s);
        QCOMPARE(button->text(QAccessible::Description), u"Articolo 1"_s);
    }

    void aLongNameGivesWay()
    {
        QList<Equipment> items = dueItems(1);
        items[0].name = u"<b>Erogatore</b>\n"_s + QString(400, u'x');
        RegisterFixture f(items);
        ShownOverview s(f, {770, 660});
        DueRow* const row = s.dueList().rows().first();
        QCOMPARE(row->accessibleName(), items.at(0).name + u", Scaduto da 0 giorni"_s);
        QCOMPARE(row->height(), dueRowHeight());
        QCOMPARE(row->sizeHint().height(), dueRowHeight());
        QVERIFY(isInSight(*row->button(DueRow::Details), page(s.window)));
        QCOMPARE(page(s.window).horizontalScrollBar()->maximum(), 0);
    }
};

ABISSORA_TEST(tst_DueList);

#include "tst_DueList.moc"
