// SPDX-License-Identifier: MIT
#include "DateFormat.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

Calendar rome()
{
    return Calendar(QTimeZone("Europe/Rome"));
}

Instant on(int year, int month, int day, QTime time = QTime(12, 0))
{
    return *rome().instant(QDate(year, month, day), time);
}

} // namespace

class tst_DateFormat : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formatsAsTheLocaleDoes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("longDate");
        QTest::addColumn<QString>("abbreviatedDate");
        const auto row = [](const char* locale, const char16_t* longDate, const char16_t* abbreviated) {
            QTest::newRow(locale) << QString::fromLatin1(locale) << QString::fromUtf16(longDate)
                                  << QString::fromUtf16(abbreviated);
        };
        row("it_IT", u"5 dicembre 2026", u"5 dic 2026");
        row("it_CH", u"5 dicembre 2026", u"5 dic 2026");
        row("en_US", u"December 5, 2026", u"Dec 5, 2026");
        row("en_GB", u"5 December 2026", u"5 Dec 2026");
        row("de_DE", u"5. Dezember 2026", u"5. Dez. 2026");
        row("fr_FR", u"5 décembre 2026", u"5 déc. 2026");
        row("ja_JP", u"2026年12月5日", u"2026年12月5日");
        row("es_ES", u"5 de diciembre de 2026", u"5 de dic de 2026");
        row("pt_BR", u"5 de dezembro de 2026", u"5 de dez. de 2026");
        row("sv_SE", u"5 december 2026", u"5 dec. 2026");
        row("da_DK", u"5. december 2026", u"5. dec. 2026");
        row("zh_CN", u"2026年12月5日", u"2026年12月5日");
        row("ko_KR", u"2026년 12월 5일", u"2026년 12월 5일");
        row("ru_RU", u"5 декабря 2026 г.", u"5 дек. 2026 г.");
        row("hu_HU", u"2026. december 5.", u"2026. dec. 5.");
        row("lt_LT", u"2026 m. gruodžio 5 d.", u"2026 m. gruod. 5 d.");
        row("lv_LV", u"2026. gada 5. decembris", u"2026. gada 5. dec.");
        row("tr_TR", u"5 Aralık 2026", u"5 Ara 2026");
        row("sc_IT", u"5 de nadale de su 2026", u"5 de nad de su 2026");
    }

    void formatsAsTheLocaleDoes()
    {
        QFETCH(QString, locale);
        QFETCH(QString, longDate);
        QFETCH(QString, abbreviatedDate);
        const DateFormat format{QLocale(locale), rome()};
        QCOMPARE(format.longDate(on(2026, 12, 5)), longDate);
        QCOMPARE(format.abbreviatedDate(on(2026, 12, 5)), abbreviatedDate);
    }

    void noLocaleKeepsAWeekday()
    {
        const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
        for (const QLocale& locale : locales) {
            const DateFormat format(locale, rome());
            const QByteArray shown = locale.name().toLatin1() + ": " + format.longPattern().toUtf8();
            QVERIFY2(!format.longPattern().contains("ddd"_L1), shown.constData());
            QVERIFY2(format.longPattern().contains(u'd'), shown.constData());
            QVERIFY2(format.longPattern().contains("yy"_L1), shown.constData());
            QVERIFY2(format.longPattern().contains(u'M'), shown.constData());
            QVERIFY2(!format.abbreviatedPattern().contains("MMMM"_L1), shown.constData());
            QCOMPARE(format.longPattern().trimmed(), format.longPattern());
            QCOMPARE(format.longPattern().count(u'\'') % 2, 0);
            QVERIFY2(!format.longPattern().endsWith(u','), shown.constData());
        }
    }

    void theDayIsTheZones()
    {
        const Instant lateEvening = on(2026, 12, 31, QTime(23, 59));
        const DateFormat inRome(QLocale(u"it_IT"_s), rome());
        const DateFormat inTokyo(QLocale(u"it_IT"_s), Calendar(QTimeZone("Asia/Tokyo")));
        QCOMPARE(inRome.longDate(lateEvening), u"31 dicembre 2026"_s);
        QCOMPARE(inTokyo.longDate(lateEvening), u"1 gennaio 2027"_s);
        QCOMPARE(inRome.year(lateEvening), u"2026"_s);
        QCOMPARE(inTokyo.year(lateEvening), u"2027"_s);
        QCOMPARE(inTokyo.dayAndTime(lateEvening), u"01/01/2027 07:59"_s);
    }

    void theCalendarsEndsAreDaysOfItsYears_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("firstTime");
        QTest::addColumn<QString>("lastTime");
        const auto row = [](const char* zone, const char* firstTime, const char* lastTime) {
            QTest::newRow(zone) << QByteArray(zone) << QString::fromLatin1(firstTime) << QString::fromLatin1(lastTime);
        };
        row("Europe/Rome", "00:49", "23:59");
        row("America/New_York", "00:00", "18:59");
        row("Asia/Tokyo", "09:18", "23:59");
        row("Pacific/Kiritimati", "00:00", "23:59");
        row("Pacific/Pago_Pago", "12:37", "12:59");
        row("UTC", "00:00", "23:59");
    }

    void theCalendarsEndsAreDaysOfItsYears()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QString, firstTime);
        QFETCH(QString, lastTime);
        const DateFormat format(QLocale(u"it_IT"_s), Calendar(QTimeZone(zone)));
        QCOMPARE(format.longDate(firstInstant), u"1 gennaio 0001"_s);
        QCOMPARE(format.abbreviatedDate(firstInstant), u"1 gen 0001"_s);
        QCOMPARE(format.year(firstInstant), u"0001"_s);
        QCOMPARE(format.dayAndTime(firstInstant), u"01/01/0001 "_s + firstTime);
        QCOMPARE(format.longDate(lastInstant), u"31 dicembre 9999"_s);
        QCOMPARE(format.abbreviatedDate(lastInstant), u"31 dic 9999"_s);
        QCOMPARE(format.year(lastInstant), u"9999"_s);
        QCOMPARE(format.dayAndTime(lastInstant), u"31/12/9999 "_s + lastTime);
    }

    void fixedPatternsIgnoreTheLocale()
    {
        for (const char* locale : {"it_IT", "en_US", "ar_EG", "fa_IR", "ja_JP"}) {
            const DateFormat format{QLocale(QLatin1String(locale)), rome()};
            QCOMPARE(format.dayAndTime(on(2025, 3, 5, QTime(9, 7))), u"05/03/2025 09:07"_s);
            QCOMPARE(format.dayAndTime(on(2026, 12, 5, QTime(18, 45, 59))), u"05/12/2026 18:45"_s);
            QCOMPARE(format.year(on(2026, 12, 31)), u"2026"_s);
        }
    }

    void abbreviatedMonths()
    {
        const DateFormat format(QLocale(u"it_IT"_s), rome());
        QCOMPARE(format.abbreviatedDate(on(2026, 10, 21)), u"21 ott 2026"_s);
        QCOMPARE(format.abbreviatedDate(on(2026, 5, 1)), u"1 mag 2026"_s);
    }

    void userLocaleIsTheSystemsOrItalian()
    {
        const QLocale italian(QLocale::Italian, QLocale::Italy);
        const QLocale french(QLocale::French, QLocale::Canada);
        QCOMPARE(DateFormat::userLocale(french), french);
        QCOMPARE(DateFormat::userLocale(QLocale::c()), italian);
        QCOMPARE(DateFormat::userLocale(QLocale(u"xx_YY"_s)), italian);
        QCOMPARE(DateFormat::userLocale(), italian); // the tests run in the "C" locale
    }
};

ABISSORA_TEST(tst_DateFormat);
#include "tst_DateFormat.moc"
