// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "CalendarText.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

struct Stage
{
    explicit Stage(const char* zone = "Europe/Rome")
        : calendar{QTimeZone(zone)}
    {}

    [[nodiscard]] QByteArray text(const QList<Equipment>& items) const
    {
        return calendarText(items, calendar, clock.now(), u"1.2"_s);
    }

    test::FixedClock clock;
    Calendar calendar;
};

/// The lines, unfolded.
QStringList lines(const QByteArray& text)
{
    return QString::fromUtf8(text).replace(u"\r\n "_s, QString()).split(u"\r\n"_s);
}

} // namespace

class tst_CalendarText : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneEventForEachActiveItem()
    {
        Equipment item = test::equipment(1, u"Muta"_s);
        item.nextServiceDate = test::at("2026-12-31T10:00:00Z");
        Equipment inactive = test::equipment(2);
        inactive.isActive = false;
        QCOMPARE(lines(Stage().text({item, inactive})).join(u'\n'),
                 u"BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Abissora//Abissora 1.2//IT\nCALSCALE:GREGORIAN\n"
                 "BEGIN:VEVENT\nUID:tagliando-00000000-0000-4000-8000-000000000001@abissora.example\n"
                 "DTSTAMP:20260615T100000Z\nDTSTART;VALUE=DATE:20261231\nDTEND;VALUE=DATE:20270101\n"
                 "SUMMARY:Tagliando: Muta\nDESCRIPTION:Marca Modello\\nNumero Seriale: SN-01\nCATEGORIES:GAV\n"
                 "TRANSP:TRANSPARENT\nEND:VEVENT\nEND:VCALENDAR\n"_s);
    }

    void theDayIsThatOfTheZone()
    {
        Equipment item = test::equipment(1);
        item.nextServiceDate = test::at("2026-06-15T10:30:00Z");
        QVERIFY(Stage("Pacific/Kiritimati").text({item}).contains("DTSTART;VALUE=DATE:20260616\r\n"));
        QVERIFY(Stage("Pacific/Honolulu").text({item}).contains("DTSTART;VALUE=DATE:20260615\r\n"));
    }

    void theLastDayHasNoNext()
    {
        Equipment item = test::equipment(1);
        item.nextServiceDate = lastInstant;
        const QByteArray text = Stage("Etc/UTC").text({item});
        QVERIFY(text.contains("DTSTART;VALUE=DATE:99991231\r\n"));
        QVERIFY(!text.contains("DTEND"));
    }

    void anItemOfNothing()
    {
        Equipment item = test::equipment(1);
        item.brand.clear();
        item.model.clear();
        item.serialNumber.clear();
        QVERIFY(!Stage().text({item}).contains("DESCRIPTION"));
    }

    void texts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("written");
        QTest::newRow("what is special") << u"a;b,c\\d:e\"f"_s << u"a\\;b\\,c\\\\d:e\"f"_s;
        QTest::newRow("line ends") << u"a\nb\rc\r\nd"_s << u"a\\nb\\nc\\nd"_s;
        QTest::newRow("those of other readers") << u"a\u2028b\u2029c\u0085d\ve\ff"_s << u"a\\nb\\nc\\nd\\ne\\nf"_s;
        QTest::newRow("controls") << u"a\x01\x1b\x7f\u0080b\tc"_s << u"ab\tc"_s;
        QTest::newRow("emoji") << u"🤿 é 👩🏽‍🚀"_s << u"🤿 é 👩🏽‍🚀"_s;
    }

    void texts()
    {
        QFETCH(QString, name);
        QFETCH(QString, written);
        QVERIFY(lines(Stage().text({test::equipment(1, name)})).contains(u"SUMMARY:Tagliando: "_s + written));
    }

    void longLinesAreFoldedBetweenCharacters_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& letters : {u"a"_s, u"è"_s, u"€"_s, u"😀"_s, u"aè€😀"_s}) {
            for (qsizetype shift = 0; shift < 4; ++shift)
                QTest::addRow("%s %d", qPrintable(letters), int(shift)) << QString(shift, u'x') + letters.repeated(120);
        }
    }

    void longLinesAreFoldedBetweenCharacters()
    {
        QFETCH(QString, name);
        const QByteArray text = Stage().text({test::equipment(1, name)});
        QVERIFY(lines(text).contains(u"SUMMARY:Tagliando: "_s + name));
        for (const QByteArray& line : text.split('\n')) {
            QVERIFY(line.isEmpty() || (line.endsWith('\r') && line.size() <= 76));
            QCOMPARE(QString::fromUtf8(line).toUtf8(), line);
        }
    }
};

ABISSORA_TEST(tst_CalendarText);
#include "tst_CalendarText.moc"
