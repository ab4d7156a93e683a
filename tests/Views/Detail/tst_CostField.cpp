// SPDX-License-Identifier: MIT
#include "CostField.h"
#include "Literals.h"

#include "TestRunner.h"

#include <QApplication>
#include <QClipboard>
#include <bit>

using namespace abissora;
using namespace abissora::test;

class tst_CostField : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("cost");
        QTest::newRow("comma") << u"12,50"_s << u"12,50"_s << 12.5;
        QTest::newRow("full stop") << u"12.50"_s << u"12.50"_s << 12.5;
        QTest::newRow("both") << u"1.234,50"_s << u"1.234,50"_s << 1234.5;
        QTest::newRow("letters are refused") << u"a1b2c"_s << u"12"_s << 12.0;
        QTest::newRow("a sign is refused") << u"-5"_s << u"5"_s << 5.0;
        QTest::newRow("an exponent is refused") << u"1e3"_s << u"13"_s << 13.0;
        QTest::newRow("a second comma is refused") << u"1,5,2"_s << u"1,52"_s << 1.52;
    }

    void typing()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(double, cost);
        CostField field;
        QTest::keyClicks(&field, keys);
        QCOMPARE(field.text(), text);
        QCOMPARE(field.cost(), std::optional(cost));
    }

    void untouchedCostComesBackBitForBit_data()
    {
        QTest::addColumn<double>("cost");
        for (const double cost : {0.0, -0.0, 12.5, 0.1 + 0.2, -7.25, 1e300})
            QTest::addRow("%.17g", cost) << cost;
    }

    void untouchedCostComesBackBitForBit()
    {
        QFETCH(double, cost);
        CostField field;
        field.setCost(cost);
        QVERIFY(field.cost().has_value());
        QCOMPARE(std::bit_cast<std::uint64_t>(*field.cost()), std::bit_cast<std::uint64_t>(cost));
    }

    void clearedIsNothing()
    {
        CostField field;
        field.setCost(12.5);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QCOMPARE(field.cost(), std::optional(0.0));
    }

    void pasting_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("text");
        QTest::newRow("a number") << u"€ 1.234,50"_s << u"€ 1.234,50"_s;
        QTest::newRow("a word") << u"gratis"_s << u"7,00"_s;
        QTest::newRow("a number and a word") << u"12 euro"_s << u"7,00"_s;
        QTest::newRow("a negative number") << u"-12"_s << u"7,00"_s;
        QTest::newRow("an unfinished number") << u"1.234.5"_s << u"7,00"_s;
    }

    void pasting()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, text);
        CostField field;
        field.setCost(7);
        field.selectAll();
        QApplication::clipboard()->setText(pasted);
        field.paste();
        QCOMPARE(field.text(), text);
    }

    /// Correcting a digit in the middle leads through texts that are no numbers.
    void whatIsNoAmountIsMarkedOnceItIsLeft()
    {
        CostField field;
        field.show();
        field.activateWindow();
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        QTest::keyClicks(&field, u"1.234.5"_s);
        QVERIFY(field.error().isEmpty());
        field.clearFocus();
        QCOMPARE(field.text(), u"1.234.5"_s);
        QCOMPARE(field.error(), u"Importo non valido: scrivi un numero, per esempio 45,50"_s);
        QVERIFY(!field.commit());
        QTest::keyClicks(&field, u"00"_s);
        QVERIFY(field.error().isEmpty());
    }

    void digitsCanBeReplacedOneByOne()
    {
        CostField field;
        QTest::keyClicks(&field, u"1.234,50"_s);
        field.setCursorPosition(5);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QCOMPARE(field.text(), u"1.23,50"_s);
        QCOMPARE(field.cost(), std::nullopt);
        QTest::keyClick(&field, Qt::Key_9);
        QCOMPARE(field.cost(), std::optional(1239.5));
    }
};

ABISSORA_TEST(tst_CostField);

#include "tst_CostField.moc"
