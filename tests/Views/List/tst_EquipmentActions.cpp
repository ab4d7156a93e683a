// SPDX-License-Identifier: MIT
#include "ListParts.h"
#include "TestRunner.h"
#include <QMenu>

#include <QContextMenuEvent>
#include <QLabel>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

/// What can be done with one item of the register's table.
class tst_EquipmentActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rowActions()
    {
        RegisterFixture f;
        ShownList view(f);
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        auto& menu = existing<QMenu>(view, "rowActions");
        const QModelIndex actionCell = table.model()->index(2, EquipmentTableModel::ActionsColumn);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(actionCell).center());
        QVERIFY(menu.isVisible());
        QStringList entries;
        for (const QAction* entry : menu.actions())
            if (!entry->isSeparator())
                entries.append(entry->text());
        QCOMPARE(entries,
                 QStringList({u"Visualizza dettagli"_s, u"Modifica attrezzatura"_s, u"Elimina attrezzatura"_s}));
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        QSignalSpy edited(&view, &EquipmentListView::editRequested);
        action(menu, u"Modifica attrezzatura"_s)->trigger();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(edited.first().first().value<Equipment>().name, u"Erogatore Apeks XTX50"_s);
        menu.close();
        // By the keyboard: Return on the last cell, Shift+F10 and the Menu key anywhere in the row.
        table.setCurrentIndex(actionCell);
        QTest::keyClick(&table, Qt::Key_Return);
        QVERIFY(menu.isVisible());
        menu.close();
        QTest::keyClick(&table, Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(menu.isVisible());
        menu.close();
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(table.viewport(), &byKey);
        QVERIFY(menu.isVisible());
        menu.close();
    }

    void deletingAsksFirst()
    {
        RegisterFixture f;
        ShownList view(f);
        const Equipment item = f.equipment.equipment().at(1);
        view.confirmDeletion(item);
        QDialog* alert = findDialog(view);
        QVERIFY(alert);
        QCOMPARE(view.equipmentToDelete()->id, item.id);
        QStringList texts;
        for (const QLabel* label : alert->findChildren<QLabel*>())
            texts.append(label->text());
        QVERIFY(texts.contains(u"Conferma Eliminazione"_s));
        QVERIFY(texts.contains(u"Sei sicuro di voler eliminare l'attrezzatura 'GAV Scubapro Hydros'?"_s));
        QTest::keyClick(alert, Qt::Key_Escape);
        settle();
        QCOMPARE(f.equipment.equipment().size(), 3);
        QVERIFY(!view.equipmentToDelete());

        const QUuid before = view.refreshID();
        view.confirmDeletion(item);
        press(openDialog(view), u"Elimina"_s);
        settle();
        QCOMPARE(names(view).size(), 2);
        QVERIFY(!view.equipmentToDelete());
        QVERIFY(view.refreshID() != before);
    }

    void deleteKeyAsksToo()
    {
        RegisterFixture f;
        ShownList view(f);
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        table.selectRow(0);
        QTest::keyClick(&table, Qt::Key_Delete);
        QVERIFY(findDialog(view));
        press(openDialog(view), u"Annulla"_s);
        QCOMPARE(f.equipment.equipment().size(), 3);
    }

    void deletingByKeyboardGoesOnFromTheSameRow()
    {
        RegisterFixture f;
        ShownList view(f);
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        for (const int row : {1, 1, 0}) {
            table.selectionModel()->setCurrentIndex(table.model()->index(row, 2), QItemSelectionModel::NoUpdate);
            QTest::keyClick(&table, Qt::Key_Delete);
            press(openDialog(view), u"Elimina"_s);
            settle();
            QCOMPARE(table.currentIndex().row(), std::min(row, table.model()->rowCount() - 1));
        }
        QCOMPARE(table.model()->rowCount(), 0);
        QVERIFY(selected.isEmpty());
    }

    void hostileNamesAreShownAsTheyAre()
    {
        RegisterFixture f(QList<Equipment>{});
        const QString name = u"<b>A</b>&amp;%1\t\"'"_s;
        f.equipment.addEquipment(makeItem(1, name, EquipmentType::fins, f.inDays(3)));
        ShownList view(f);
        QCOMPARE(cell(view, 0, 0).section(u'\n', 0, 0), name);
        view.confirmDeletion(f.equipment.equipment().first());
        for (const QLabel* label : findDialog(view)->findChildren<QLabel*>())
            QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains("<b>"_L1));
    }
};

ABISSORA_TEST(tst_EquipmentActions);

#include "tst_EquipmentActions.moc"
