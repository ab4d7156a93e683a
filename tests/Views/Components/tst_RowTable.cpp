// SPDX-License-Identifier: MIT
#include "RowTable.h"

#include "Gui.h"
#include "TestRunner.h"
#include "Theme.h"
#include "Tokens.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

/// A table of three columns with a field beside it, which has the focus first where the test wants it.
struct ShownTable
{
    explicit ShownTable(int rows, bool fieldFirst = false)
        : model(rows, 3)
    {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < 3; ++column)
                model.setItem(row, column, new QStandardItem(u"%1, %2"_s.arg(row).arg(column)));
        table.setModel(&model);
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&table);
        layout->addWidget(&field);
        window.resize(500, 400);
        (fieldFirst ? static_cast<QWidget&>(field) : table).setFocus();
        activate(window);
    }

    [[nodiscard]] QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex& index : table.selectionModel()->selectedRows())
            rows.append(index.row());
        return rows;
    }
    /// The ink of the ring at the upper edge of a row.
    [[nodiscard]] bool isRinged(int row)
    {
        const QImage picture = table.viewport()->grab().toImage();
        const int y = table.rowViewportPosition(row);
        for (int line = 0; line < 4; ++line) {
            if (picture.pixelColor(table.viewport()->width() / 2, y + line) == ringInk)
                return true;
        }
        return false;
    }

    QStandardItemModel model;
    QWidget window;
    RowTable table;
    QLineEdit field;
    QColor ringInk = Tokens::of(window.palette()).accentInk;
};

} // namespace

class tst_RowTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void homeAndEndGoToTheFirstAndLastRow()
    {
        ShownTable s(50);
        s.table.setCurrentIndex(s.model.index(20, 1));
        QTest::keyClick(&s.table, Qt::Key_End);
        QCOMPARE(s.selectedRows(), QList{49});
        QCOMPARE(s.table.currentIndex().column(), 1);
        QTest::keyClick(&s.table, Qt::Key_Home);
        QCOMPARE(s.selectedRows(), QList{0});
        s.model.clear();
        QTest::keyClick(&s.table, Qt::Key_End);
        QVERIFY(!s.table.currentIndex().isValid());
    }

    void theFirstArrowSelectsWhereTheKeyboardStands()
    {
        ShownTable s(3);
        QCOMPARE(s.selectedRows(), QList<int>());
        QTest::keyClick(&s.table, Qt::Key_Down);
        QCOMPARE(s.selectedRows(), QList{0});
        QTest::keyClick(&s.table, Qt::Key_Down);
        QCOMPARE(s.selectedRows(), QList{1});
    }

    void theFirstRowCanBeReachedFromOutside()
    {
        ShownTable s(3, true);
        s.table.goToFirstRow();
        QVERIFY(s.table.hasFocus());
        QCOMPARE(s.selectedRows(), QList{0});
    }

    void aRightClickMovesTheKeyboardOnly()
    {
        ShownTable s(4);
        s.table.selectRow(0);
        const QPoint place = s.table.visualRect(s.model.index(2, 1)).center();
        QTest::mouseClick(s.table.viewport(), Qt::RightButton, {}, place);
        QCOMPARE(s.selectedRows(), QList{0});
        QCOMPARE(s.table.currentIndex().row(), 2);
    }

    void escapeIsForOthers()
    {
        class Parent final : public QWidget
        {
        public:
            int heard = 0;

        protected:
            void keyPressEvent(QKeyEvent* event) override { heard += event->key() == Qt::Key_Escape ? 1 : 0; }
        } parent;
        QStandardItemModel model(2, 1);
        RowTable table(&parent);
        table.setModel(&model);
        activate(parent);
        table.setFocus();
        QTest::keyClick(&table, Qt::Key_Escape);
        QCOMPARE(parent.heard, 1);
    }

    void theRingShowsWhereTheKeyboardStandsFromTheFirstMoment()
    {
        ShownTable s(4);
        QVERIFY(s.isRinged(0));
        QVERIFY(!s.isRinged(1));
        QTest::mouseClick(s.table.viewport(), Qt::LeftButton, {}, s.table.visualRect(s.model.index(1, 0)).center());
        QVERIFY2(!s.isRinged(1), "who clicked knows where");
        QTest::keyClick(&s.table, Qt::Key_Down);
        QVERIFY(s.isRinged(2));
        s.field.setFocus();
        QVERIFY(!s.isRinged(2));
    }

    void aMenuLeavesTheKeyboardWhereItIs()
    {
        ShownTable s(2);
        QSignalSpy moved(&s.table, &RowTable::placeChanged);
        QFocusEvent toMenu(QEvent::FocusOut, Qt::MenuBarFocusReason);
        QCoreApplication::sendEvent(&s.table, &toMenu);
        QVERIFY(s.table.hasKeyboard());
        QCOMPARE(moved.size(), 0);
        s.table.setFocus();
        s.field.setFocus(Qt::TabFocusReason);
        QVERIFY(!s.table.hasKeyboard());
        QVERIFY(!moved.isEmpty());
    }
};

ABISSORA_TEST(tst_RowTable);

#include "tst_RowTable.moc"
