// SPDX-License-Identifier: MIT
#include "Assembly.h"
#include "ComponentTest.h"
#include "ScrollPane.h"

#include <QScrollBar>

using namespace abissora;

class tst_ScrollPane : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void itScrollsFromTopToBottomOnly();
    void theGroundShowsThrough();
    void theKeyboardPassesIt();
};

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

ABISSORA_TEST(tst_ScrollPane);
#include "tst_ScrollPane.moc"
