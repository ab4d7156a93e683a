// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "ControlLook.h"
#include "DateField.h"
#include "Gui.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr auto zones = {"Europe/Rome",        "America/New_York",  "Asia/Tokyo",
                        "Pacific/Kiritimati", "Pacific/Pago_Pago", "UTC"};

/// A field in a window of its own, beside another that takes the focus.
struct LimitedField
{
    explicit LimitedField(const Calendar& calendar)
        : field(new DateField(calendar))
        , other(new QLineEdit)
        , edited(field, &DateField::edited)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(field);
        activate(window);
    }

    /// Comes by Tab, which selects everything, types and leaves again.
    void enter(const QString& text)
    {
        other->setFocus();
        QTest::keyClick(other, Qt::Key_Tab);
        QTest::keyClicks(field, text);
        other->setFocus();
    }

    QWidget window;
    DateField* field;
    QLineEdit* other;
    QSignalSpy edited;
};

bool isStorable(Instant instant)
{
    return instant >= firstInstant && instant <= lastInstant;
}

/// So far away from UTC that nothing of the last day of the year 9999 lies in that year there.
Calendar aDayBehind()
{
    return Calendar(QTimeZone("FAR24"));
}

} // namespace

class tst_DateFieldLimits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstAndTheLastDayCanBeTyped_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QTime>("timeOfDay");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("day");
        for (const char* zone : zones) {
            for (const QTime time : {QTime(0, 10), QTime(12, 0), QTime(23, 50, 0, 7)}) {
                const auto row = [&](const char* typed, const char* day) {
                    QTest::addRow("%s %s %s", zone, qPrintable(time.toString()), typed)
                        << QByteArray(zone) << time << QString::fromLatin1(typed) << QString::fromLatin1(day);
                };
                row("01/01/0001", "01/01/0001");
                row("1/1/0001", "01/01/0001");
                row("31/12/9999", "31/12/9999");
            }
        }
    }

    void theFirstAndTheLastDayCanBeTyped()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QTime, timeOfDay);
        QFETCH(QString, typed);
        QFETCH(QString, day);
        const Calendar calendar{QTimeZone(zone)};
        LimitedField s(calendar);
        const Instant original = calendar.instant(QDate(2026, 6, 15), timeOfDay).value();
        s.field->setInstant(original);
        s.enter(typed);
        QVERIFY(s.field->commit());
        QCOMPARE(s.field->error(), QString());
        QCOMPARE(s.field->text(), day);
        QCOMPARE(s.edited.size(), 1);
        const Instant taken = s.field->instant();
        QVERIFY(isStorable(taken));
        QCOMPARE(calendar.local(taken).date(), QDate::fromString(day, u"dd/MM/yyyy"_s));

        // The time of day of any other day is still that of the original.
        s.enter(u"16/06/2026"_s);
        QCOMPARE(calendar.local(s.field->instant()).time(), timeOfDay);
        s.enter(u"15/06/2026"_s);
        QCOMPARE(s.field->instant(), original);

        s.field->setInstant(taken);
        QCOMPARE(s.field->text(), day);
    }

    void untouchedIsNeverAnError_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<Instant>("given");
        for (const char* zone : zones) {
            const auto row = [zone](const char* name, Instant given) {
                QTest::addRow("%s %s", zone, name) << QByteArray(zone) << given;
            };
            row("first", firstInstant);
            row("first morning", firstInstant + std::chrono::hours(9));
            row("last evening", lastInstant - std::chrono::hours(9));
            row("last", lastInstant);
            // Nothing stored can be of this kind.
            row("before", firstInstant - std::chrono::days(400));
            row("after", lastInstant + std::chrono::days(400));
            row("long before", Instant::min());
            row("long after", Instant::max());
        }
    }

    void untouchedIsNeverAnError()
    {
        QFETCH(QByteArray, zone);
        QFETCH(Instant, given);
        LimitedField s{Calendar(QTimeZone(zone))};
        s.field->setInstant(given);
        if (isStorable(given))
            QCOMPARE(s.field->text(), given < at("2026-06-15T10:00:00Z") ? u"01/01/0001"_s : u"31/12/9999"_s);
        s.field->setFocus();
        QTest::keyClick(s.field, Qt::Key_Right);
        s.other->setFocus();
        QVERIFY(s.field->commit());
        QCOMPARE(s.field->error(), QString());
        QCOMPARE(s.field->instant(), given);
        QVERIFY(s.edited.isEmpty());
    }

    void aDayWithoutAnInstantIsAnError()
    {
        LimitedField s(aDayBehind());
        s.field->setInstant(at("2026-06-15T10:00:00Z"));
        s.enter(u"16/06/2026"_s);
        s.enter(u"31/12/9999"_s);
        QVERIFY(!s.field->commit());
        QCOMPARE(s.field->error(), u"Data non valida: scrivi giorno, mese e anno, per esempio 16/06/2026"_s);
        QVERIFY(hasInvalidLook(s.field));
        QCOMPARE(s.field->text(), u"31/12/9999"_s);
        QCOMPARE(s.field->instant(), at("2026-06-17T10:00:00Z"));
        QCOMPARE(s.edited.size(), 1);
        s.enter(u"30/12/9999"_s);
        QCOMPARE(s.field->error(), QString());
        QCOMPARE(s.field->instant(), at("9999-12-31T10:00:00Z"));
    }

    void nothingStepsToADayWithoutAnInstant()
    {
        LimitedField s(aDayBehind());
        s.field->setInstant(lastInstant);
        QTest::keyClick(s.field, Qt::Key_Up);
        QCOMPARE(s.field->text(), u"30/12/9999"_s);
        QCOMPARE(s.field->instant(), lastInstant);
        QVERIFY(s.edited.isEmpty());
    }

    void aPickedDayWithoutAnInstantIsAnError()
    {
        LimitedField s(aDayBehind());
        s.field->setInstant(lastInstant);
        QTest::keyClick(s.field, Qt::Key_F4);
        auto* days = s.field->findChild<QCalendarWidget*>()->findChild<QWidget*>(u"qt_calendar_calendarview"_s);
        QTest::keyClick(days, Qt::Key_Right);
        QTest::keyClick(days, Qt::Key_Return);
        QCOMPARE(s.field->text(), u"31/12/9999"_s);
        QCOMPARE(s.field->error(), u"Data non valida: scrivi giorno, mese e anno, per esempio 30/12/9999"_s);
        QVERIFY(s.edited.isEmpty());
    }

    void stepsEndWithTheCalendar()
    {
        LimitedField s{Calendar(QTimeZone("America/New_York"))};
        s.field->setInstant(at("9999-12-31T04:00:00Z"));
        QCOMPARE(s.field->text(), u"30/12/9999"_s);
        QTest::keyClick(s.field, Qt::Key_Up);
        QCOMPARE(s.field->text(), u"31/12/9999"_s);
        QCOMPARE(s.field->instant(), lastInstant);
        QTest::keyClick(s.field, Qt::Key_Up);
        QTest::keyClick(s.field, Qt::Key_PageUp);
        QCOMPARE(s.field->text(), u"31/12/9999"_s);
        s.field->setInstant(firstInstant);
        QTest::keyClick(s.field, Qt::Key_Down);
        QTest::keyClick(s.field, Qt::Key_PageDown);
        QCOMPARE(s.field->text(), u"01/01/0001"_s);
        QCOMPARE(s.field->instant(), firstInstant);
        QCOMPARE(s.edited.size(), 1);
    }

    void theUsualWaysOfWritingADay_data()
    {
        QTest::addColumn<QString>("keys");
        for (const char* keys :
             {"2024-02-01", "010224", "01022024", "1 feb 2024", "1 febbraio 2024", "1/2/24", "1-2-2024", "1.2.2024"})
            QTest::newRow(keys) << QString::fromLatin1(keys);
    }

    void theUsualWaysOfWritingADay()
    {
        QFETCH(QString, keys);
        DateField field{Calendar(QTimeZone::utc())};
        field.selectAll();
        const QSignalSpy changed(&field, &DateField::instantChanged);
        QTest::keyClicks(&field, keys);
        QVERIFY(!changed.isEmpty());
        QVERIFY(field.commit());
        QCOMPARE(field.text(), u"01/02/2024"_s);
    }
};

ABISSORA_TEST(tst_DateFieldLimits);

#include "tst_DateFieldLimits.moc"
