// SPDX-License-Identifier: MIT
#include "DayText.h"
#include "Literals.h"

#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

class tst_DayText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void days_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("day");
        const QDate february(2024, 2, 1);
        for (const char* text : {"01/02/2024", "01022024", "010224", "2024-02-01", "2024-2-1", "1/2/24", "1/2/2024",
                                 "1-2-2024", "1-2-24", "1.2.2024", "1 2 2024", "1. 2. 2024", "1 feb 2024", "1 FEB 2024",
                                 "1 febbraio 2024", "1 Febb. 2024", "01-feb-24", "1° febbraio 2024", " 1/2/24 "})
            QTest::newRow(text) << QString::fromUtf8(text) << february;
        QTest::newRow("leap day") << u"290224"_s << QDate(2024, 2, 29);
        QTest::newRow("69") << u"1/1/69"_s << QDate(2069, 1, 1);
        QTest::newRow("70") << u"1/1/70"_s << QDate(1970, 1, 1);
        QTest::newRow("98") << u"31 dic 98"_s << QDate(1998, 12, 31);
        int month = 0;
        for (const char* name : {"gen", "feb", "mar", "apr", "mag", "giu", "lug", "ago", "set", "ott", "nov", "dic"})
            QTest::newRow(name) << u"5 %1 2026"_s.arg(QLatin1String(name)) << QDate(2026, ++month, 5);
    }

    void days()
    {
        QFETCH(QString, text);
        QFETCH(QDate, day);
        QCOMPARE(dayText::parse(text), std::optional(day));
    }

    void noDays_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"",          " ",          "1",          "1/2",       "31/02/2024", "290223",     "00/01/2024",
              "1/13/2024", "2024-13-01", "2024/02/01", "24-02-01x", "1 fe 2024",  "1 foo 2024", "1 febx 2024",
              "feb 2024",  "0102",       "01022",      "0102202",   "010220244",  "1/2/202",    "1/2/20245",
              "1,2,2024",  "2024-02-30", "١/٢/٢٠٢٤",   "1 feb",     "1//2/2024",  "1/2/0000"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void noDays()
    {
        QFETCH(QString, text);
        QCOMPARE(dayText::parse(text), std::nullopt);
    }

    void completeOnes()
    {
        QCOMPARE(dayText::parseComplete(u"01/02/2024"_s), std::optional(QDate(2024, 2, 1)));
        QCOMPARE(dayText::parseComplete(u"01022024"_s), std::optional(QDate(2024, 2, 1)));
        for (const char* text : {"01/02/20", "010220", "1/2/2024", "1 feb 2024", "31/02/2024"})
            QCOMPARE(dayText::parseComplete(QLatin1String(text)), std::nullopt);
    }
};

ABISSORA_TEST(tst_DayText);

#include "tst_DayText.moc"
