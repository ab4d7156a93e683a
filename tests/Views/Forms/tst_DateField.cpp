// SPDX-License-Identifier: MIT
#include "ControlLook.h"
#include "DateField.h"
#include "Gui.h"
#include "Literals.h"

#include "TestRunner.h"

#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

Calendar rome()
{
    return Calendar(QTimeZone("Europe/Rome"));
}

Instant instantOf(const QString& iso)
{
    return Instant(std::chrono::milliseconds(QDateTime::fromString(iso, Qt::ISODateWithMs).toMSecsSinceEpoch()));
}

QString iso(Instant instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC).toString(Qt::ISODateWithMs);
}

/// A field in a window of its own, beside another that takes the focus.
struct ShownField
{
    explicit ShownField(const Calendar& calendar = rome())
        : field(new DateField(calendar))
        , other(new QLineEdit)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(field);
        activate(window);
    }

    /// Comes by Tab, which selects everything, and types.
    void typeOver(const QString& text)
    {
        other->setFocus();
        QTest::keyClick(other, Qt::Key_Tab);
        QTest::keyClicks(field, text);
    }

    QWidget window;
    DateField* field;
    QLineEdit* other;
};

} // namespace

class tst_DateField : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheDay()
    {
        ShownField s;
        s.field->setInstant(instantOf(u"2026-03-04T23:30:00.123Z"_s));
        QCOMPARE(s.field->text(), u"05/03/2026"_s);
    }

    void untouchedGivesTheVeryInstant_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("given");
        for (const char* zone : {"Europe/Rome", "UTC", "Pacific/Apia", "America/Sao_Paulo", "Asia/Kathmandu"}) {
            for (const char* given :
                 {"2026-03-04T23:30:00.123Z", "2026-03-29T00:30:00.000Z", "2026-03-29T01:30:00.999Z",
                  "2026-10-25T00:30:00.001Z", "2026-10-25T01:30:00.001Z", "2018-11-04T02:30:00.500Z",
                  "2011-12-30T09:59:59.999Z", "0001-01-02T12:00:00.000Z", "0099-06-01T12:00:00.000Z",
                  "9999-12-30T12:00:00.000Z", "1893-10-31T23:10:00.000Z"})
                QTest::addRow("%s %s", zone, given) << QByteArray(zone) << QString::fromLatin1(given);
        }
    }

    void untouchedGivesTheVeryInstant()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QString, given);
        ShownField s{Calendar(QTimeZone(zone))};
        QSignalSpy edited(s.field, &DateField::edited);
        s.field->setInstant(instantOf(given));
        QCOMPARE(iso(s.field->instant()), given);
        s.field->setFocus();
        QTest::keyClick(s.field, Qt::Key_Right);
        s.other->setFocus();
        QCOMPARE(iso(s.field->instant()), given);
        QVERIFY(edited.isEmpty());
    }

    void anotherDayKeepsTheTimeOfDay_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << "2026-06-15T10:11:12.345Z"
                               << "16062026"
                               << "2026-06-16T10:11:12.345Z";
        QTest::newRow("into winter") << "2026-06-15T10:11:12.345Z"
                                     << "15122026"
                                     << "2026-12-15T11:11:12.345Z";
        QTest::newRow("late in the evening") << "2026-06-15T21:59:59.999Z"
                                             << "01062026"
                                             << "2026-06-01T21:59:59.999Z";
        QTest::newRow("skipped time") << "2026-03-28T01:30:00.000Z"
                                      << "29032026"
                                      << "2026-03-29T01:30:00.000Z";
        QTest::newRow("repeated time") << "2026-10-24T00:30:00.000Z"
                                       << "25102026"
                                       << "2026-10-25T00:30:00.000Z";
        QTest::newRow("leap day") << "2026-06-15T10:00:00.000Z"
                                  << "29022024"
                                  << "2024-02-29T11:00:00.000Z";
        QTest::newRow("first years") << "2026-06-15T10:00:00.000Z"
                                     << "15061000"
                                     << "1000-06-15T11:10:04.000Z";
        QTest::newRow("last year") << "2026-06-15T10:00:00.000Z"
                                   << "31129999"
                                   << "9999-12-31T11:00:00.000Z";
    }

    void anotherDayKeepsTheTimeOfDay()
    {
        QFETCH(QString, given);
        QFETCH(QString, typed);
        QFETCH(QString, expected);
        ShownField s;
        s.field->setInstant(instantOf(given));
        s.typeOver(typed);
        QCOMPARE(iso(s.field->instant()), expected);
        s.typeOver(QDateTime::fromString(given, Qt::ISODateWithMs).toTimeZone(rome().zone()).toString(u"ddMMyyyy"_s));
        QCOMPARE(iso(s.field->instant()), given);
    }

    void theSecondOfTwoEqualTimesIsKept()
    {
        ShownField s;
        const QString second = u"2026-10-25T01:30:00.000Z"_s;
        s.field->setInstant(instantOf(second));
        s.typeOver(u"26102026"_s);
        QCOMPARE(iso(s.field->instant()), u"2026-10-26T01:30:00.000Z"_s);
        s.typeOver(u"25102026"_s);
        QCOMPARE(iso(s.field->instant()), second);
    }

    void settingEmitsNothing()
    {
        ShownField s;
        QSignalSpy edited(s.field, &DateField::edited);
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        s.field->setInstant(instantOf(u"2027-06-15T10:00:00Z"_s));
        QVERIFY(edited.isEmpty());
    }

    void oneEditEmitsOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("day");
        QTest::newRow("as shown") << "28/11/2025"
                                  << "2025-11-28";
        QTest::newRow("digits only") << "28112025"
                                     << "2025-11-28";
        QTest::newRow("single digits") << "1/2/2025"
                                       << "2025-02-01";
        QTest::newRow("dots") << "01.02.2025"
                              << "2025-02-01";
        QTest::newRow("two digits of the year") << "01/02/25"
                                                << "2025-02-01";
        QTest::newRow("of the last century") << "1-2-98"
                                             << "1998-02-01";
    }

    void oneEditEmitsOnce()
    {
        QFETCH(QString, typed);
        QFETCH(QString, day);
        ShownField s;
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        QStringList days;
        connect(s.field, &DateField::edited, this, [&] { days.append(iso(s.field->instant()).left(10)); });
        s.typeOver(typed);
        QCOMPARE(iso(s.field->instant()).left(10), day); // before the field is left
        QTest::keyClick(s.field, Qt::Key_Return);
        s.other->setFocus();
        QCOMPARE(days, QStringList(day));
        QCOMPARE(s.field->text(), QDate::fromString(day, Qt::ISODate).toString(u"dd/MM/yyyy"_s));
    }

    void assistiveTechnologyMaySetTheText()
    {
        ShownField s;
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        QSignalSpy edited(s.field, &DateField::edited);
        QAccessible::queryAccessibleInterface(s.field)->setText(QAccessible::Value, u"16/06/2026"_s);
        QCOMPARE(edited.size(), 1);
        QCOMPARE(iso(s.field->instant()), u"2026-06-16T10:00:00.000Z"_s);
    }

    void correctingOneDigitEmitsOnce()
    {
        ShownField s;
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        QSignalSpy edited(s.field, &DateField::edited);
        s.field->setFocus();
        s.field->setCursorPosition(2);
        QTest::keyClick(s.field, Qt::Key_Backspace);
        QTest::keyClick(s.field, Qt::Key_7);
        QCOMPARE(edited.size(), 1);
        QCOMPARE(s.field->text(), u"17/06/2026"_s);
        QCOMPARE(s.field->cursorPosition(), 2);
    }

    void steps()
    {
        ShownField s;
        s.field->setInstant(instantOf(u"2026-01-30T10:00:00Z"_s));
        QSignalSpy edited(s.field, &DateField::edited);
        QTest::keyClick(s.field, Qt::Key_Up);
        QCOMPARE(s.field->text(), u"31/01/2026"_s);
        QTest::keyClick(s.field, Qt::Key_PageUp);
        QCOMPARE(s.field->text(), u"28/02/2026"_s);
        QTest::keyClick(s.field, Qt::Key_Down);
        QTest::keyClick(s.field, Qt::Key_PageDown);
        QCOMPARE(s.field->text(), u"27/01/2026"_s);
        QCOMPARE(edited.size(), 4);
        s.field->setInstant(instantOf(u"9999-12-31T10:00:00Z"_s));
        QTest::keyClick(s.field, Qt::Key_Up);
        QCOMPARE(s.field->text(), u"31/12/9999"_s);
        QCOMPARE(edited.size(), 4);
    }

    void nonsenseStaysAsItWasTyped_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed : {"abc!", "", " ", "31/02/2026", "00/01/2026", "1/13/2026", "01/01/0000", "15/06", "3",
                                  "15/06/12026", "٠١/٠١/٢٠٢٥"})
            QTest::newRow(typed) << QString::fromUtf8(typed);
    }

    void nonsenseStaysAsItWasTyped()
    {
        QFETCH(QString, typed);
        ShownField s;
        const QString given = u"2026-06-15T10:00:00.007Z"_s;
        s.field->setInstant(instantOf(given));
        QSignalSpy edited(s.field, &DateField::edited);
        s.field->setFocus();
        s.field->selectAll();
        s.field->insert(typed);
        QCOMPARE(iso(s.field->instant()), given);
        QVERIFY(s.field->error().isEmpty()); // it may become a day yet
        s.other->setFocus();
        QCOMPARE(s.field->text(), typed);
        QVERIFY(s.field->error().endsWith(u"scrivi giorno, mese e anno, per esempio 15/06/2026"_s));
        QCOMPARE(s.field->accessibleDescription(), s.field->error());
        QVERIFY(hasInvalidLook(s.field));
        QVERIFY(!s.field->commit());
        QCOMPARE(iso(s.field->instant()), given);
        QVERIFY(edited.isEmpty());
    }

    void anErrorGoesWithADay_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("the day before") << "15062026";
        QTest::newRow("another") << "16062026";
        QTest::newRow("once it is left") << "1-2-26";
    }

    void anErrorGoesWithADay()
    {
        QFETCH(QString, typed);
        ShownField s;
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        s.typeOver(u"31/02"_s);
        s.other->setFocus();
        QSignalSpy error(s.field, &CheckedField::errorChanged);
        s.typeOver(typed);
        s.other->setFocus();
        QCOMPARE(error.size(), 1);
        QVERIFY(s.field->error().isEmpty());
        QVERIFY(!hasInvalidLook(s.field));
    }

    void anErrorGoesWithTheNextInstant()
    {
        ShownField s;
        s.typeOver(u"x"_s);
        s.other->setFocus();
        QVERIFY(!s.field->error().isEmpty());
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        QVERIFY(s.field->error().isEmpty());
    }

    void steppingStartsFromTheLastDay()
    {
        ShownField s;
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00Z"_s));
        s.typeOver(u"x"_s);
        QTest::keyClick(s.field, Qt::Key_Up);
        QCOMPARE(s.field->text(), u"16/06/2026"_s);
    }

    void theWheelBelongsToWhatIsAround()
    {
        ShownField s;
        const QString given = u"2026-06-15T10:00:00.000Z"_s;
        s.field->setInstant(instantOf(given));
        const QPointF place = s.field->rect().center();
        QWheelEvent wheel(place, s.field->mapToGlobal(place), {}, QPoint(0, 120), Qt::NoButton, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(s.field, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(iso(s.field->instant()), given);
    }

    void picksFromACalendarThatStartsOnMonday_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("mouse") << 0 << Qt::KeyboardModifiers();
        QTest::newRow("F4") << int{Qt::Key_F4} << Qt::KeyboardModifiers();
        QTest::newRow("Alt+Down") << int{Qt::Key_Down} << Qt::KeyboardModifiers(Qt::AltModifier);
    }

    void picksFromACalendarThatStartsOnMonday()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        ShownField s;
        s.field->setInstant(instantOf(u"2026-06-15T10:00:00.007Z"_s));
        QSignalSpy edited(s.field, &DateField::edited);
        QVERIFY(!s.field->findChild<QCalendarWidget*>());
        if (key != 0)
            QTest::keyClick(s.field, static_cast<Qt::Key>(key), modifiers);
        else
            QTest::mouseClick(s.field->findChild<QToolButton*>(), Qt::LeftButton);
        auto* calendar = s.field->findChild<QCalendarWidget*>();
        QVERIFY(calendar && calendar->isVisible());
        QCOMPARE(calendar->firstDayOfWeek(), Qt::Monday);
        QCOMPARE(calendar->selectedDate(), QDate(2026, 6, 15));
        auto* days = calendar->findChild<QWidget*>(u"qt_calendar_calendarview"_s);
        QCOMPARE(QApplication::activePopupWidget()->focusWidget(), days); // where a popup's keys go
        QTest::keyClick(days, Qt::Key_Right);
        QVERIFY(edited.isEmpty());
        QTest::keyClick(days, Qt::Key_Return);
        QVERIFY(!calendar->isVisible());
        QCOMPARE(edited.size(), 1);
        QCOMPARE(iso(s.field->instant()), u"2026-06-16T10:00:00.007Z"_s);
    }

    void escapeLeavesTheCalendarOnly()
    {
        ShownField s;
        QSignalSpy edited(s.field, &DateField::edited);
        QTest::keyClick(s.field, Qt::Key_F4);
        auto* calendar = s.field->findChild<QCalendarWidget*>();
        auto* days = calendar->findChild<QWidget*>(u"qt_calendar_calendarview"_s);
        QTest::keyClick(days, Qt::Key_Right);
        QTest::keyClick(days, Qt::Key_Escape);
        QVERIFY(!calendar->isVisible());
        QVERIFY(s.window.isVisible());
        QVERIFY(edited.isEmpty());
    }

    void oneTabLeavesIt()
    {
        ShownField s;
        s.other->setFocus();
        QTest::keyClick(s.other, Qt::Key_Tab);
        QVERIFY(s.field->hasFocus());
        QTest::keyClick(s.field, Qt::Key_Tab);
        QVERIFY(s.other->hasFocus());
        QTest::keyClick(s.other, Qt::Key_Backtab);
        QVERIFY(s.field->hasFocus());
    }
};

ABISSORA_TEST(tst_DateField);

#include "tst_DateField.moc"
