// SPDX-License-Identifier: MIT
#include "Assembly.h"
#include "ComponentTest.h"
#include "FocusInSight.h"
#include "Literals.h"
#include "ScrollPane.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QWindow>

using namespace abissora;

class tst_ScrollPane : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void itScrollsFromTopToBottomOnly();
    void theGroundShowsThrough();
    void theKeyboardPassesIt();
    void whatHasTheFocusIsInSight();
    void theCursorsLineIsInSight();
    void aPlaceThatIsScrolledToStays();
    void aClickMovesNothing();
};

namespace {

/// Fields far below one another, and one with more lines than there is room for.
struct TallForm
{
    TallForm()
    {
        auto* column = inColumn(40, {});
        for (QWidget* field : std::initializer_list<QWidget*>{first, notes, below, tall, last}) {
            column->addWidget(field);
            field->setMinimumHeight(field == tall ? 500 : field == notes ? 110 : 30);
        }
        for (auto* editor : {notes, tall}) {
            editor->setTabChangesFocus(true);
            editor->setPlainText(u"riga\n"_s.repeated(60));
        }
        pane.widget()->setLayout(column);
        pane.resize(300, 200);
        test::activate(pane);
        first->setFocus();
    }

    ScrollPane pane;
    QLineEdit* first = new QLineEdit;
    QPlainTextEdit* notes = new QPlainTextEdit;
    QLineEdit* below = new QLineEdit;
    QPlainTextEdit* tall = new QPlainTextEdit;
    QLineEdit* last = new QLineEdit;
};

} // namespace

void tst_ScrollPane::itScrollsFromTopToBottomOnly()
{
    ScrollPane pane;
    auto* tall = new QWidget;
    tall->setMinimumSize(50, 900);
    pane.widget()->setLayout(inColumn(0, {tall}));
    pane.resize(300, 200);
    test::activate(pane);
    QCOMPARE(tall->width(), 300 - pane.verticalScrollBar()->width());
    QCOMPARE(pane.verticalScrollBar()->maximum(), 700);
    pane.resize(40, 200);
    test::settle();
    QVERIFY(!pane.horizontalScrollBar()->isVisible());
}

void tst_ScrollPane::theGroundShowsThrough()
{
    QWidget ground;
    ground.resize(120, 80);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(1, 2, 3));
    ground.setPalette(palette);
    auto* pane = new ScrollPane;
    ground.setLayout(inColumn(0, {pane}));
    test::activate(ground);
    const QImage image = ground.grab().toImage();
    for (const QPoint& point : {QPoint(0, 0), QPoint(60, 40), QPoint(119, 79)})
        QCOMPARE(image.pixelColor(point), QColor(1, 2, 3));
}

void tst_ScrollPane::theKeyboardPassesIt()
{
    const ScrollPane pane;
    QCOMPARE(pane.focusPolicy(), Qt::NoFocus);
}

void tst_ScrollPane::whatHasTheFocusIsInSight()
{
    TallForm f;
    QCOMPARE(test::stopsOutOfSight(f.pane), QStringList());
    QCOMPARE(test::stopsOutOfSight(f.pane, true), QStringList());
    f.last->setFocus(Qt::ShortcutFocusReason);
    QVERIFY(test::isFocusInSight(f.pane));
}

void tst_ScrollPane::theCursorsLineIsInSight()
{
    TallForm f;
    f.tall->setFocus();
    for (int line = 0; line < 24; ++line) {
        QTest::keyClick(f.tall, Qt::Key_Down);
        QVERIFY(test::isFocusInSight(f.pane));
    }
    f.pane.verticalScrollBar()->setValue(0);
    QVERIFY(!test::isFocusInSight(f.pane));
    QTest::keyClick(f.tall, Qt::Key_A);
    QVERIFY(test::isFocusInSight(f.pane));
    f.notes->setFocus();
    f.pane.verticalScrollBar()->setValue(0);
    QTest::keyClick(f.notes, Qt::Key_A);
    QCOMPARE(f.notes->visibleRegion().boundingRect(), f.notes->rect());
}

void tst_ScrollPane::aPlaceThatIsScrolledToStays()
{
    TallForm f;
    f.pane.verticalScrollBar()->setValue(f.pane.verticalScrollBar()->maximum());
    test::settle();
    QCOMPARE(f.pane.verticalScrollBar()->value(), f.pane.verticalScrollBar()->maximum());
}

void tst_ScrollPane::aClickMovesNothing()
{
    TallForm f;
    f.pane.verticalScrollBar()->setValue(f.below->y() - 185);
    const int before = f.pane.verticalScrollBar()->value();
    QVERIFY(before > 0);
    QTest::mouseClick(f.pane.windowHandle(), Qt::LeftButton, {}, QPoint(60, 192));
    QVERIFY(f.below->hasFocus());
    QCOMPARE(f.pane.verticalScrollBar()->value(), before);
}

ABISSORA_TEST(tst_ScrollPane);
#include "tst_ScrollPane.moc"
