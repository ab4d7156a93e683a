// SPDX-License-Identifier: MIT
#include "ControlLook.h"
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
    void everyKeyStands_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<std::optional<double>>("cost");
        const auto row = [](const char* keys, std::optional<double> cost) {
            QTest::newRow(keys) << QString::fromUtf8(keys) << cost;
        };
        row("12,50", 12.5);
        row("12.50", 12.5);
        row("1.234,50", 1234.5);
        row("1,234.50", 1234.5);
        row("1 234,56", 1234.56);
        row("1'234,56", 1234.56);
        row("12,50 EUR", 12.5);
        row("45 euro", 45);
        row("a1b2c", std::nullopt);
        row("-5", std::nullopt);
        row("1e3", std::nullopt);
        row("1,2,3", std::nullopt);
        row("gratis", std::nullopt);
    }

    void everyKeyStands()
    {
        QFETCH(QString, keys);
        QFETCH(std::optional<double>, cost);
        CostField field;
        QTest::keyClicks(&field, keys);
        QCOMPARE(field.text(), keys);
        QCOMPARE(field.cost(), cost);
        QCOMPARE(field.error().isEmpty(), cost.has_value());
        QCOMPARE(hasInvalidLook(&field), !cost.has_value());
    }

    void theSettingsCurrencyIsPassedOver()
    {
        CostField field;
        field.setCurrencySymbol(u"Fr."_s);
        QTest::keyClicks(&field, u"Fr. 12,50"_s);
        QCOMPARE(field.cost(), std::optional(12.5));
    }

    void aNegativeCostStaysOne()
    {
        CostField field;
        field.setCost(-7.25);
        QCOMPARE(field.text(), u"-7,25"_s);
        QTest::keyClick(&field, Qt::Key_End);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QCOMPARE(field.cost(), std::optional(-7.2));
        field.setCost(7.25);
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClick(&field, Qt::Key_Minus);
        QCOMPARE(field.text(), u"-7,25"_s);
        QCOMPARE(field.cost(), std::nullopt);
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
        QTest::addColumn<std::optional<double>>("cost");
        const auto row = [](const char* pasted, std::optional<double> cost) {
            const QString text = QString::fromUtf8(pasted);
            QTest::newRow(pasted) << text << QString(text).replace(u'\n', u' ') << cost;
        };
        row("€ 1.234,50", 1234.5);
        row("12,50 EUR", 12.5);
        row("12 euro", 12);
        row("1\u00a0234,56", 1234.56);
        row("1\u202f234,56 €", 1234.56);
        row("gratis", std::nullopt);
        row("-12", std::nullopt);
        row("1.234.5", std::nullopt);
    }

    void pasting()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, text);
        QFETCH(std::optional<double>, cost);
        CostField field;
        field.setCost(7);
        field.selectAll();
        QApplication::clipboard()->setText(pasted);
        field.paste();
        QCOMPARE(field.text(), text);
        QCOMPARE(field.cost(), cost);
        field.commit();
        QCOMPARE(field.error().isEmpty(), cost.has_value());
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
