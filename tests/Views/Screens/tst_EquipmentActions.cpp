// SPDX-License-Identifier: MIT
#include "ListParts.h"
#include "RowActionsMenu.h"
#include "ScreenFixture.h"
#include "TestRunner.h"

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
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.resize(900, 600);
        view.show();
        settle();
        auto& table = part<EquipmentTableView>(view, "equipmentTable");
        auto& menu = part<RowActionsMenu>(view, "rowActions");
        const QModelIndex actionCell = table.model()->index(2, EquipmentTableModel::ActionsColumn);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(actionCell).center());
        QVERIFY(menu.isVisible());
        QStringList entries;
        for (const QAction* entry : menu.actions())
            if (!entry->isSeparator())
                entries.append(entry->text());
        QCOMPARE(entries, QStringList({QStringLiteral("Visualizza dettagli"), QStringLiteral("Modifica attrezzatura"),
                                       QStringLiteral("Elimina attrezzatura")}));
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        QSignalSpy edited(&view, &EquipmentListView::editRequested);
        action(menu, QStringLiteral("Modifica attrezzatura"))->trigger();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(edited.first().first().value<Equipment>().name, QStringLiteral("Erogatore Apeks XTX50"));
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
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        settle();
        const Equipment item = f.equipment.equipment().at(1);
        view.confirmDeletion(item);
        QDialog* alert = openAlert(view);
        QVERIFY(alert);
        QCOMPARE(view.equipmentToDelete()->id, item.id);
        QStringList texts;
        for (const QLabel* label : alert->findChildren<QLabel*>())
            texts.append(label->text());
        QVERIFY(texts.contains(QStringLiteral("Conferma Eliminazione")));
        QVERIFY(texts.contains(QStringLiteral("Sei sicuro di voler eliminare l'attrezzatura 'GAV Scubapro Hydros'?")));
        QTest::keyClick(alert, Qt::Key_Escape);
        settle();
        QCOMPARE(f.equipment.equipment().size(), 3);
        QVERIFY(!view.equipmentToDelete());

        const QUuid before = view.refreshID();
        view.confirmDeletion(item);
        press(*openAlert(view), QStringLiteral("Elimina"));
        settle();
        QCOMPARE(names(view).size(), 2);
        QVERIFY(!view.equipmentToDelete());
        QVERIFY(view.refreshID() != before);
    }

    void deleteKeyAsksToo()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        settle();
        auto& table = part<EquipmentTableView>(view, "equipmentTable");
        table.selectRow(0);
        QTest::keyClick(&table, Qt::Key_Delete);
        QVERIFY(openAlert(view));
        press(*openAlert(view), QStringLiteral("Annulla"));
        QCOMPARE(f.equipment.equipment().size(), 3);
    }

    void deletingByKeyboardGoesOnFromTheSameRow()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        settle();
        auto& table = part<EquipmentTableView>(view, "equipmentTable");
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        for (const int row : {1, 1, 0}) {
            table.selectionModel()->setCurrentIndex(table.model()->index(row, 2), QItemSelectionModel::NoUpdate);
            QTest::keyClick(&table, Qt::Key_Delete);
            press(*openAlert(view), QStringLiteral("Elimina"));
            settle();
            QCOMPARE(table.currentIndex().row(), std::min(row, table.model()->rowCount() - 1));
        }
        QCOMPARE(table.model()->rowCount(), 0);
        QVERIFY(selected.isEmpty());
    }

    void theCurrentRowFollowsItsItem()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        settle();
        auto& table = part<EquipmentTableView>(view, "equipmentTable");
        table.selectionModel()->setCurrentIndex(table.model()->index(1, 0), QItemSelectionModel::NoUpdate);
        f.equipment.setSearchText(QStringLiteral("scubapro"));
        settle();
        QCOMPARE(table.currentIndex().row(), 0);
        f.equipment.setSearchText({});
        settle();
        QCOMPARE(table.currentIndex().row(), 1);
        QVERIFY(!table.selectionModel()->hasSelection());
    }

    void hostileNamesAreShownAsTheyAre()
    {
        ScreenFixture f(QList<Equipment>{});
        const QString name = QStringLiteral("<b>A</b>&amp;%1\t\"'");
        f.equipment.addEquipment(makeItem(1, name, EquipmentType::fins, f.inDays(3)));
        EquipmentListView view(f.context);
        view.show();
        QCOMPARE(cell(view, 0, 0).section(QLatin1Char('\n'), 0, 0), name);
        view.confirmDeletion(f.equipment.equipment().first());
        for (const QLabel* label : openAlert(view)->findChildren<QLabel*>())
            QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains(QLatin1String("<b>")));
    }
};

ABISSORA_TEST(tst_EquipmentActions);

#include "tst_EquipmentActions.moc"
