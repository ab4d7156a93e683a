// SPDX-License-Identifier: MIT
#include "GridFocus.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace abissora;

namespace {

/// Buttons "00", "01", ... in rows of the given lengths between two fields.
struct Grid
{
    Grid(const QList<int>& lengths, GridFocus::TabStop stop = GridFocus::TabStop::Cell)
        : focus(stop)
    {
        auto* layout = new QGridLayout(&window);
        before = new QLineEdit;
        layout->addWidget(before, 0, 0);
        for (int row = 0; row < lengths.size(); ++row) {
            GridFocus::Row cells;
            for (int column = 0; column < lengths.at(row); ++column) {
                auto* button = new QPushButton(u"%1%2"_s.arg(row).arg(column));
                layout->addWidget(button, row + 1, column);
                cells.append(button);
            }
            rows.append(cells);
        }
        after = new QLineEdit;
        layout->addWidget(after, static_cast<int>(lengths.size()) + 1, 0);
        focus.setRows(rows);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not become active");
    }

    void enter(int row, int column) { rows.at(row).at(column)->setFocus(Qt::TabFocusReason); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.focusWidget(), key, modifiers);
    }
    QString focused() const
    {
        auto* button = qobject_cast<QPushButton*>(window.focusWidget());
        return button != nullptr ? button->text() : window.focusWidget() == after ? u"after"_s : u"before"_s;
    }

    QWidget window;
    QList<GridFocus::Row> rows;
    QLineEdit* before;
    QLineEdit* after;
    GridFocus focus;
};

} // namespace

class tst_GridFocus : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void arrows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("to");
        QTest::newRow("right") << 0 << 0 << Qt::Key_Right << u"01"_s;
        QTest::newRow("left") << 0 << 1 << Qt::Key_Left << u"00"_s;
        QTest::newRow("right, next row") << 0 << 2 << Qt::Key_Right << u"10"_s;
        QTest::newRow("left, row before") << 1 << 0 << Qt::Key_Left << u"02"_s;
        QTest::newRow("left at the first") << 0 << 0 << Qt::Key_Left << u"00"_s;
        QTest::newRow("right at the last") << 2 << 2 << Qt::Key_Right << u"22"_s;
        QTest::newRow("down") << 0 << 1 << Qt::Key_Down << u"11"_s;
        QTest::newRow("up") << 2 << 1 << Qt::Key_Up << u"11"_s;
        QTest::newRow("down into a shorter row") << 0 << 2 << Qt::Key_Down << u"11"_s;
        QTest::newRow("up at the first row") << 0 << 1 << Qt::Key_Up << u"01"_s;
        QTest::newRow("down at the last row") << 2 << 1 << Qt::Key_Down << u"21"_s;
        QTest::newRow("home") << 2 << 1 << Qt::Key_Home << u"00"_s;
        QTest::newRow("end") << 0 << 1 << Qt::Key_End << u"22"_s;
    }
    void arrows()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(Qt::Key, key);
        Grid g({3, 2, 3});
        g.enter(row, column);
        g.press(key);
        QTEST(g.focused(), "to");
    }

    void upAndDownKeepTheirColumn()
    {
        Grid g({3, 1, 3});
        g.enter(0, 2);
        g.press(Qt::Key_Down);
        g.press(Qt::Key_Down);
        QCOMPARE(g.focused(), u"22"_s);
        g.press(Qt::Key_Left);
        g.press(Qt::Key_Up);
        g.press(Qt::Key_Up);
        QCOMPARE(g.focused(), u"01"_s);
    }

    void rightToLeft()
    {
        Grid g({3});
        g.window.setLayoutDirection(Qt::RightToLeft);
        g.enter(0, 0);
        g.press(Qt::Key_Left);
        QCOMPARE(g.focused(), u"01"_s);
        g.press(Qt::Key_Right);
        QCOMPARE(g.focused(), u"00"_s);
    }

    void otherKeysAreNotTaken()
    {
        Grid g({3, 3});
        g.enter(0, 0);
        const QSignalSpy clicked(g.rows.at(0).at(0), &QAbstractButton::clicked);
        g.press(Qt::Key_End, Qt::ControlModifier);
        g.press(Qt::Key_Return, Qt::ControlModifier);
        g.press(Qt::Key_A);
        QCOMPARE(g.focused(), u"00"_s);
        QCOMPARE(clicked.size(), 0);
    }

    void returnAndSpacePressOnce()
    {
        Grid g({2});
        g.enter(0, 1);
        const QSignalSpy clicked(g.rows.at(0).at(1), &QAbstractButton::clicked);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
            g.press(key);
        QCOMPARE(clicked.size(), 3);
    }

    void tabStopsOnceAtTheCellOfTheLastVisit()
    {
        Grid g({3, 3});
        g.before->setFocus();
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"00"_s);
        g.press(Qt::Key_Down);
        g.press(Qt::Key_Right);
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"after"_s);
        g.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(g.focused(), u"11"_s);
        g.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(g.focused(), u"before"_s);
    }

    void tabStopsAtEveryButtonOfOneRow()
    {
        Grid g({2, 2, 2}, GridFocus::TabStop::Row);
        g.enter(1, 0);
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"11"_s);
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"after"_s);
        g.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(g.focused(), u"11"_s);
        g.press(Qt::Key_Up);
        QCOMPARE(g.focused(), u"01"_s);
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"after"_s);
    }

    void theCurrentCellIsSetFromOutside()
    {
        Grid g({3, 3});
        g.focus.setCurrent(g.rows.at(1).at(2));
        g.before->setFocus();
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"12"_s);
    }

    void rowsChange()
    {
        Grid g({3, 3});
        g.enter(1, 2);
        g.focus.setRows({g.rows.at(1)}); // the current cell stays
        QCOMPARE(g.focus.current(), g.rows.at(1).at(2));
        g.press(Qt::Key_Up);
        QCOMPARE(g.focused(), u"12"_s);
        g.focus.setRows({g.rows.at(0)}); // or the first takes its place
        QCOMPARE(g.focus.current(), g.rows.at(0).at(0));
        g.press(Qt::Key_Left); // no longer one of them
        QCOMPARE(g.focus.current(), g.rows.at(0).at(0));
        g.focus.setRows({});
        QCOMPARE(g.focus.current(), nullptr);
        g.before->setFocus();
        g.press(Qt::Key_Tab);
        QCOMPARE(g.focused(), u"after"_s);
    }

    void buttonsMayGoFirst()
    {
        Grid g({2, 2});
        g.enter(0, 1);
        for (QAbstractButton* button : g.rows.at(0))
            delete button;
        g.focus.setRows({g.rows.at(1)});
        QCOMPARE(g.focus.current(), g.rows.at(1).at(0));
    }

    void onlyTheKeyboardEnters()
    {
        Grid g({2});
        const QSignalSpy entered(&g.focus, &GridFocus::entered);
        QTest::mouseClick(g.rows.at(0).at(1), Qt::LeftButton);
        QCOMPARE(g.focused(), u"01"_s);
        QCOMPARE(entered.size(), 0);
        g.press(Qt::Key_Left);
        QCOMPARE(entered.size(), 1);
        QCOMPARE(entered.first().first().value<QAbstractButton*>(), g.rows.at(0).at(0));
    }
};

ABISSORA_TEST(tst_GridFocus);

#include "tst_GridFocus.moc"
