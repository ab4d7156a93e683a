// SPDX-License-Identifier: MIT
#include "Badge.h"
#include "ComponentTest.h"
#include "Literals.h"

using namespace abissora;

class tst_Badge : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void itHidesWhenThereIsNothingToCount();
    void itIsReadAsItsCount();
    void itIsRoundForOneDigitAndWiderForMore();
};

void tst_Badge::itHidesWhenThereIsNothingToCount()
{
    QWidget window;
    Badge badge(&window);
    test::activate(window);
    QVERIFY(!badge.isVisible());
    badge.setCount(3);
    QVERIFY(badge.isVisible());
    badge.setCount(0);
    QVERIFY(!badge.isVisible());
}

void tst_Badge::itIsReadAsItsCount()
{
    QWidget window;
    Badge badge(&window);
    badge.setCount(12);
    QCOMPARE(roleOf(badge), QAccessible::StaticText);
    QCOMPARE(nameOf(badge), u"12"_s);
}

void tst_Badge::itIsRoundForOneDigitAndWiderForMore()
{
    QWidget window;
    Badge badge(&window);
    badge.setCount(3);
    QCOMPARE(badge.sizeHint().width(), badge.sizeHint().height());
    badge.setCount(1234);
    QVERIFY(badge.sizeHint().width() > badge.fontMetrics().horizontalAdvance(u"1234"_s));
}

ABISSORA_TEST(tst_Badge);
#include "tst_Badge.moc"
