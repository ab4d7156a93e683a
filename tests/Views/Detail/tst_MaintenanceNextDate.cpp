// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "MaintenanceFormParts.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

class tst_MaintenanceNextDate : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void aNextDateThatWasSetByHandStays()
    {
        Maintenance record = makeRecord(1, 30, u"Vecchia"_s);
        record.nextServiceDate = record.date + std::chrono::days(412);
        ShownMaintenanceForm s(record);
        const QString before = s.field<DateField>("nextServiceDate").text();
        s.typeDate("date", u"01062026"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), before);
    }

    void aNextDateThatFollowedGoesOnFollowing()
    {
        Maintenance record = makeRecord(1, 30, u"Vecchia"_s);
        record.nextServiceDate = *ShownMaintenanceForm().f.calendar.addDays(record.date, 365);
        ShownMaintenanceForm s(record);
        s.typeDate("date", u"01062026"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"01/06/2027"_s);
    }

    void theNextDateFollowsWhileTheDateIsTyped()
    {
        ShownMaintenanceForm s;
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, u"1 feb 26"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"01/02/2027"_s);
        QCOMPARE(date.text(), u"1 feb 26"_s);
        s.field<QLineEdit>("description").setText(u"x"_s);
        QTest::keyClick(&date, Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.f.calendar.local(s.history().value(0).date).date(), QDate(2026, 2, 1));
        QCOMPARE(s.f.calendar.local(s.history().value(0).nextServiceDate).date(), QDate(2027, 2, 1));
    }

    /// The field that has the focus tells of what it holds when it goes.
    void theFormMayGoWithADateThatIsBeingTyped()
    {
        ShownMaintenanceForm s;
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, u"1/2/26"_s);
        s.form.reset();
    }
};

ABISSORA_TEST(tst_MaintenanceNextDate);

#include "tst_MaintenanceNextDate.moc"
