// SPDX-License-Identifier: MIT
#include "EquipmentTableView.h"

#include "Gui.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

/// A table of so many items, due one day after the other.
struct ShownTable
{
    explicit ShownTable(int count, QSize size = {900, 600})
    {
        for (int i = 0; i < count; ++i)
            items.append(makeItem(i, u"Pinne n. %1"_s.arg(i), EquipmentType::fins, f.inDays(i)));
        show();
        table.resize(size);
        activate(table);
    }

    void show(const std::optional<QUuid>& selected = std::nullopt)
    {
        table.showEquipment(items, EquipmentRowMaker(f.types, f.almanac), selected);
    }

    [[nodiscard]] QScrollBar& bar() { return *table.verticalScrollBar(); }
    [[nodiscard]] bool isSelected(int row) const { return table.selectionModel()->isRowSelected(row); }
    void makeCurrent(int row)
    {
        table.selectionModel()->setCurrentIndex(table.model()->index(row, 0), QItemSelectionModel::NoUpdate);
    }
    [[nodiscard]] int widthOfColumns() const
    {
        int width = 0;
        for (int column = 0; column < EquipmentTableModel::ColumnCount; ++column)
            width += table.columnWidth(column);
        return width;
    }

    RegisterFixture f;
    QList<Equipment> items;
    EquipmentTableView table;
};

} // namespace

class tst_EquipmentTableView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theScrollPositionSurvivesARedraw_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::newRow("with a current row out of sight") << false;
        QTest::newRow("with a selected row out of sight") << true;
    }

    void theScrollPositionSurvivesARedraw()
    {
        QFETCH(const bool, selected);
        ShownTable s(300);
        if (selected)
            s.table.selectRow(3);
        else
            s.makeCurrent(3);
        s.bar().setValue(s.bar().maximum() / 2);
        const int before = s.bar().value();
        QVERIFY(before > 0);
        s.show(selected ? std::optional(s.items.at(3).id) : std::nullopt);
        QCOMPARE(s.bar().value(), before);
        settle();
        QCOMPARE(s.bar().value(), before);
        QCOMPARE(s.table.currentIndex().row(), 3);
        QCOMPARE(s.isSelected(3), selected);
    }

    void aRedrawTellsNobody()
    {
        ShownTable s(3);
        s.table.selectRow(1);
        QSignalSpy selected(&s.table, &EquipmentTableView::rowSelected);
        s.items.removeFirst();
        s.show(s.items.at(0).id);
        QVERIFY(s.isSelected(0));
        s.show();
        QVERIFY(!s.table.selectionModel()->hasSelection());
        s.table.showSelected(s.items.at(1).id);
        QVERIFY(s.isSelected(1));
        s.table.showSelected(std::nullopt);
        QVERIFY(!s.table.selectionModel()->hasSelection());
        QVERIFY(selected.isEmpty());
    }

    void theCurrentRowFollowsItsItem()
    {
        ShownTable s(3);
        s.makeCurrent(1);
        s.items.removeFirst();
        s.show();
        QCOMPARE(s.table.currentIndex().row(), 0);
        s.items.prepend(makeItem(9, u"Boa"_s, EquipmentType::other, s.f.inDays(1)));
        s.show();
        QCOMPARE(s.table.currentIndex().row(), 1);
        QVERIFY(!s.table.selectionModel()->hasSelection());
    }

    void theCurrentRowStaysWhereItsItemWas()
    {
        ShownTable s(4);
        s.makeCurrent(1);
        s.items.removeAt(1);
        s.show();
        QCOMPARE(s.table.currentIndex().row(), 1);
        s.makeCurrent(2);
        s.items.removeAt(2);
        s.show();
        QCOMPARE(s.table.currentIndex().row(), 1);
        s.items.clear();
        s.show();
        QVERIFY(!s.table.currentIndex().isValid());
    }

    /// From the selection nothing moves before the first key.
    void arrowsSelectWhereTheKeyboardStands()
    {
        ShownTable s(3);
        QCOMPARE(s.table.currentIndex().row(), 0);
        QVERIFY(!s.table.selectionModel()->hasSelection());
        QSignalSpy selected(&s.table, &EquipmentTableView::rowSelected);
        QTest::keyClick(&s.table, Qt::Key_Down);
        QCOMPARE(selected.takeFirst().constFirst().toInt(), 0);
        QTest::keyClick(&s.table, Qt::Key_Down);
        QCOMPARE(selected.takeFirst().constFirst().toInt(), 1);
        QTest::keyClick(&s.table, Qt::Key_Up);
        QCOMPARE(selected.takeFirst().constFirst().toInt(), 0);
    }

    void returnSelectsAndOpensTheActionsOnTheLastCell()
    {
        ShownTable s(3);
        QSignalSpy selected(&s.table, &EquipmentTableView::rowSelected);
        QSignalSpy actions(&s.table, &EquipmentTableView::actionsRequested);
        s.makeCurrent(2);
        QTest::keyClick(&s.table, Qt::Key_Return);
        QCOMPARE(selected.takeFirst().constFirst().toInt(), 2);
        QVERIFY(actions.isEmpty());
        s.table.setCurrentIndex(s.table.model()->index(2, EquipmentTableModel::ActionsColumn));
        QTest::keyClick(&s.table, Qt::Key_Space);
        QCOMPARE(actions.takeFirst().constFirst().toInt(), 2);
        QTest::keyClick(&s.table, Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(actions.takeFirst().constFirst().toInt(), 2);
    }

    void columnsFillTheViewport_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("as narrow as beside the detail pane") << 440;
        QTest::newRow("with every column at its usual width") << 640;
        QTest::newRow("wide") << 1500;
    }

    void columnsFillTheViewport()
    {
        QFETCH(const int, width);
        ShownTable s(3, {width, 400});
        QCOMPARE(s.widthOfColumns(), s.table.viewport()->width());
        QCOMPARE(s.table.horizontalScrollBar()->maximum(), 0);
    }

    void belowTheLeastWidthsTheTableScrolls()
    {
        ShownTable s(3, {300, 400});
        QVERIFY(s.widthOfColumns() > s.table.viewport()->width());
        QVERIFY(s.table.horizontalScrollBar()->maximum() > 0);
    }

    void makesAndModelsGiveWayFirst()
    {
        ShownTable s(3, {640, 400});
        const int name = s.table.columnWidth(EquipmentTableModel::NameColumn);
        const int brand = s.table.columnWidth(EquipmentTableModel::BrandColumn);
        s.table.resize(590, 400);
        settle();
        QVERIFY(s.table.columnWidth(EquipmentTableModel::BrandColumn) < brand);
        s.table.resize(640, 400);
        settle();
        QCOMPARE(s.table.columnWidth(EquipmentTableModel::BrandColumn), brand);
        QCOMPARE(s.table.columnWidth(EquipmentTableModel::NameColumn), name);
    }
};

ABISSORA_TEST(tst_EquipmentTableView);

#include "tst_EquipmentTableView.moc"
