// SPDX-License-Identifier: MIT
#include "CostField.h"

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
        QTest::newRow("comma") << QStringLiteral("12,50") << QStringLiteral("12,50") << 12.5;
        QTest::newRow("full stop") << QStringLiteral("12.50") << QStringLiteral("12.50") << 12.5;
        QTest::newRow("both") << QStringLiteral("1.234,50") << QStringLiteral("1.234,50") << 1234.5;
        QTest::newRow("letters are refused") << QStringLiteral("a1b2c") << QStringLiteral("12") << 12.0;
        QTest::newRow("a sign is refused") << QStringLiteral("-5") << QStringLiteral("5") << 5.0;
        QTest::newRow("an exponent is refused") << QStringLiteral("1e3") << QStringLiteral("13") << 13.0;
        QTest::newRow("a second comma is refused") << QStringLiteral("1,5,2") << QStringLiteral("1,52") << 1.52;
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
        QTest::newRow("a number") << QStringLiteral("€ 1.234,50") << QStringLiteral("€ 1.234,50");
        QTest::newRow("a word") << QStringLiteral("gratis") << QStringLiteral("7,00");
        QTest::newRow("a number and a word") << QStringLiteral("12 euro") << QStringLiteral("7,00");
        QTest::newRow("a negative number") << QStringLiteral("-12") << QStringLiteral("7,00");
        QTest::newRow("an unfinished number") << QStringLiteral("1.234.5") << QStringLiteral("7,00");
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
        QTest::keyClicks(&field, QStringLiteral("1.234.5"));
        QVERIFY(field.error().isEmpty());
        field.clearFocus();
        QCOMPARE(field.text(), QStringLiteral("1.234.5"));
        QCOMPARE(field.error(), QStringLiteral("Importo non valido: scrivi un numero, per esempio 45,50"));
        QVERIFY(!field.commit());
        QTest::keyClicks(&field, QStringLiteral("00"));
        QVERIFY(field.error().isEmpty());
    }

    void digitsCanBeReplacedOneByOne()
    {
        CostField field;
        QTest::keyClicks(&field, QStringLiteral("1.234,50"));
        field.setCursorPosition(5);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QCOMPARE(field.text(), QStringLiteral("1.23,50"));
        QCOMPARE(field.cost(), std::nullopt);
        QTest::keyClick(&field, Qt::Key_9);
        QCOMPARE(field.cost(), std::optional(1239.5));
    }
};

ABISSORA_TEST(tst_CostField);

#include "tst_CostField.moc"
