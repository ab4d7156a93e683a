// SPDX-License-Identifier: MIT
#include "Assembly.h"
#include "ComponentTest.h"
#include "Literals.h"

#include <QPushButton>

using namespace abissora;

class tst_Assembly : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void namedGivesTheWidgetBack();
    void aRowStandsSideBySide();
    void aColumnStandsBelowOneAnother();
    void partsOfAnotherHeightAreAligned();

private:
    static QWidget* square()
    {
        auto* square = new QWidget;
        square->setMinimumSize(10, 10);
        return square;
    }
};

void tst_Assembly::namedGivesTheWidgetBack()
{
    auto button = std::make_unique<QPushButton>();
    QPushButton* const same = named(button.get(), u"save"_s);
    QCOMPARE(same, button.get());
    QCOMPARE(button->objectName(), u"save"_s);
}

void tst_Assembly::aRowStandsSideBySide()
{
    QWidget* const first = square();
    QWidget* const wide = square();
    QWidget* const last = square();
    QWidget window;
    window.setLayout(inRow(4, {first, {wide, 1}, Gap{6}, last}, {1, 2, 3, 4}));
    window.resize(100, 40);
    test::activate(window);
    QCOMPARE(first->geometry(), QRect(1, 2, 10, 34));
    QCOMPARE(wide->geometry(), QRect(15, 2, 62, 34));
    QCOMPARE(last->geometry(), QRect(87, 2, 10, 34));
}

void tst_Assembly::aColumnStandsBelowOneAnother()
{
    QWidget* const above = square();
    QWidget* const left = square();
    QWidget* const right = square();
    QWidget window;
    window.setLayout(inColumn(5, {Stretch(), {above, 0, Qt::AlignBottom}, {inRow(0, {left, right}), 0}}));
    window.resize(20, 80);
    test::activate(window);
    QCOMPARE(above->geometry().bottom() + 1 + 5, left->y());
    QCOMPARE(right->geometry().bottomRight(), QPoint(19, 79));
    QCOMPARE(left->y(), right->y());
}

void tst_Assembly::partsOfAnotherHeightAreAligned()
{
    QWidget* const low = square();
    low->setMaximumHeight(10);
    QWidget window;
    window.setLayout(inRow(0, {square(), {low, 0, Qt::AlignTop}}));
    window.resize(40, 30);
    test::activate(window);
    QCOMPARE(low->y(), 0);
}

ABISSORA_TEST(tst_Assembly);
#include "tst_Assembly.moc"
