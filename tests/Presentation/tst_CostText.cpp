// SPDX-License-Identifier: MIT
#include "CostText.h"
#include "Literals.h"

#include "TestRunner.h"

#include <bit>
#include <cmath>
#include <limits>

using namespace abissora;
using namespace abissora::test;

class tst_CostText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");
        const auto row = [](const char* text, double expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << expected;
        };
        row("", 0);
        row("  ", 0);
        row("€", 0);
        row("0", 0);
        row("45", 45);
        row("007", 7);
        row("12,50", 12.5);
        row("12.50", 12.5);
        row("12,5", 12.5);
        row("12,", 12);
        row("12.", 12);
        row(",5", 0.5);
        row(".5", 0.5);
        row("0,1", 0.1);
        row("1.234,50", 1234.5);
        row("1,234.50", 1234.5);
        row("1.234", 1234);
        row("12.345", 12345);
        row("123.456", 123456);
        row("1,234", 1.234);
        row("1234.567", 1234.567);
        row("0.500", 0.5);
        row("1.234.567", 1234567);
        row("1,234,567", 1234567);
        row("1.234.567,89", 1234567.89);
        row("1234,5678", 1234.5678);
        row("€ 12,50", 12.5);
        row("€12,50", 12.5);
        row("12,50 €", 12.5);
        row("  12,50  ", 12.5);
        row("€\u00a01.234,50", 1234.5);
        row("9007199254740993", 9007199254740992.0);
        row("1 234", 1234);
        row("1 234,56", 1234.56);
        row("1 234.56", 1234.56);
        row("1 234.567", 1234.567);
        row("1\u00a0234,56", 1234.56);
        row("12\u202f345\u202f678,90", 12345678.9);
        row("1'234'567.89", 1234567.89);
        row("1\u2019234,5", 1234.5);
        row("12,50 EUR", 12.5);
        row("12,50EUR", 12.5);
        row("EUR 12,50", 12.5);
        row("12,50 euro", 12.5);
        row("12,50 Euro", 12.5);
        row("eur 1.234,56", 1234.56);
        row("$5", 5);
        row("5 $", 5);
        row("\u00a3 5", 5);
    }

    void numbers()
    {
        QFETCH(QString, text);
        QFETCH(double, expected);
        const std::optional<double> cost = costText::parse(text);
        QVERIFY(cost.has_value());
        QCOMPARE(std::bit_cast<std::uint64_t>(*cost), std::bit_cast<std::uint64_t>(expected));
    }

    void noNumbers_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"-5",        "+5",    "-0",        "abc",     "12a",     "1e3",      "inf",           "nan",
              "0x10",      ",",     ".",         "1,2,3",   "1.2.3",   "1.234.5",  "12,34.5",       "1.23,4",
              "1 23",      "12 34", "1234 567",  "1 234 5", "1 2'345", "1,5 000",  "1,234.567.890", "1 234.567,89",
              "EUR 5 EUR", "€€5",   "euroeuro5", "1..2",    "1,,2",    ".123.456", "0.123.456",     "1234.567.890",
              "١٢",        "12½",   "12 pezzi",  "-",       "- 5",     "5-",       "--5",           "12,50 EURO EUR"})
            QTest::newRow(text) << QString::fromUtf8(text);
        QTest::newRow("beyond the largest number") << QString(400, u'9');
        QTest::newRow("below the smallest number") << QString("0,"_L1 + QString(400, u'0') + u'1');
    }

    void noNumbers()
    {
        QFETCH(QString, text);
        QCOMPARE(costText::parse(text), std::nullopt);
    }

    void everyKeyOnTheWayToANumberIsTaken_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"12,50", "12.50", "1.234,50", "1,234.50", "1.234.567,89", "€ 12,50", ",5", "12,50 €",
                                 "1 234,56", "1'234.50", "12,50 EUR", "12 euro", "EUR 12,50", "euro 1 234"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void everyKeyOnTheWayToANumberIsTaken()
    {
        QFETCH(QString, text);
        for (qsizetype length = 1; length <= text.size(); ++length) {
            const QString typed = text.left(length);
            QVERIFY2(costText::parse(typed) || costText::isUnfinished(typed), qPrintable(typed));
        }
    }

    void whatCannotBecomeANumberIsNotUnfinished_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"-", "a", "1a", "1,2,3", "1234.567.", "1,,", "€€", "1e3", "1234 5", "12 eb"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void whatCannotBecomeANumberIsNotUnfinished()
    {
        QFETCH(QString, text);
        QVERIFY(!costText::isUnfinished(text));
    }

    void theCurrencyOfTheSettingsIsPassedOver()
    {
        const costText::Reading francs{u" Fr."_s};
        QCOMPARE(costText::parse(u"Fr. 12,50"_s, francs), std::optional(12.5));
        QCOMPARE(costText::parse(u"1'234.50 fr."_s, francs), std::optional(1234.5));
        QCOMPARE(costText::parse(u"12 EUR"_s, francs), std::optional(12.0));
        QCOMPARE(costText::parse(u"Fr. 12,50"_s), std::nullopt);
        QVERIFY(costText::isUnfinished(u"12 f"_s, francs));
        QVERIFY(!costText::isUnfinished(u"12 f"_s));
    }

    void aNegativeAmountIsTakenWhereThereMayBeOne()
    {
        const costText::Reading negative{{}, true};
        for (const char* text :
             {"-1.234,50", "- 1.234,50", "\u22121234,5", "€ -1.234,50", "-€ 1.234,50", "-1234,5 EUR"})
            QCOMPARE(costText::parse(QString::fromUtf8(text), negative), std::optional(-1234.5));
        QCOMPARE(costText::parse(u"5"_s, negative), std::optional(5.0));
        for (const char* text : {"--5", "-", "5-", "-€-5"})
            QCOMPARE(costText::parse(QString::fromUtf8(text), negative), std::nullopt);
        QVERIFY(costText::isUnfinished(u"-"_s, negative));
    }

    void shown_data()
    {
        QTest::addColumn<double>("cost");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing") << 0.0 << QString();
        QTest::newRow("whole") << 45.0 << u"45,00"_s;
        QTest::newRow("one decimal") << 12.5 << u"12,50"_s;
        QTest::newRow("two decimals") << 1234.56 << u"1234,56"_s;
        QTest::newRow("more") << 0.125 << u"0,125"_s;
        QTest::newRow("a third") << 1.0 / 3 << u"0,3333333333333333"_s;
        QTest::newRow("negative") << -5.0 << u"-5,00"_s;
    }

    void shown()
    {
        QFETCH(double, cost);
        QFETCH(QString, expected);
        QCOMPARE(costText::show(cost), expected);
    }

    void shownTextGivesTheVeryNumberBack_data()
    {
        QTest::addColumn<double>("cost");
        for (const double cost :
             {0.01, 0.1, 0.1 + 0.2, 1.005, 12.5, 45.0, 1.234, 999.999, 1234.567, 123456.789, 1e15, 1e17, 1e22, 5e-324,
              std::numeric_limits<double>::min(), std::numeric_limits<double>::max(), std::nextafter(1.0, 2.0), 1.0 / 3,
              3.14159265358979})
            QTest::addRow("%.17g", cost) << cost;
    }

    void shownTextGivesTheVeryNumberBack()
    {
        QFETCH(double, cost);
        const std::optional<double> back = costText::parse(costText::show(cost));
        QVERIFY(back.has_value());
        QCOMPARE(std::bit_cast<std::uint64_t>(*back), std::bit_cast<std::uint64_t>(cost));
    }

    void listed_data()
    {
        QTest::addColumn<double>("cost");
        QTest::addColumn<QString>("expected");
        QTest::newRow("45") << 45.0 << u"€45.00"_s;
        QTest::newRow("12.5") << 12.5 << u"€12.50"_s;
        QTest::newRow("thousands") << 1234567.891 << u"€1234567.89"_s;
        QTest::newRow("rounds to nothing") << 0.001 << u"€0.00"_s;
        QTest::newRow("half a cent, exactly") << 0.125 << u"€0.12"_s;
    }

    void listed()
    {
        QFETCH(double, cost);
        QFETCH(QString, expected);
        QCOMPARE(costText::listed(cost), std::optional(expected));
    }

    void noCostIsNotListed()
    {
        for (const double cost : {0.0, -0.0, -1.0})
            QCOMPARE(costText::listed(cost), std::nullopt);
    }
};

ABISSORA_TEST(tst_CostText);

#include "tst_CostText.moc"
