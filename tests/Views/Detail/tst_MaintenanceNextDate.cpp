// SPDX-License-Identifier: MIT
#include "DateField.h"
#include "Gui.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "RegisterFixture.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The form over a window.
struct Shown
{
    explicit Shown(const std::optional<Maintenance>& editing = std::nullopt)
    {
        Equipment item = makeItem(1, u"Articolo"_s, EquipmentType::regulator, f.inDays(100));
        if (editing)
            item.maintenanceHistory = {*editing};
        id = item.id;
        f.equipment.addEquipment(item);
        below.resize(1280, 1300);
        below.show();
        open(editing);
    }

    void open(const std::optional<Maintenance>& editing)
    {
        form = std::make_unique<MaintenanceFormView>(f.draft(id, editing), f.opener, &below);
        form->open();
        settle();
    }
    template <typename Field>
    Field& field(const char* name)
    {
        return part<Field>(*form, QLatin1String(name));
    }
    void typeDate(const char* name, const QString& text)
    {
        auto& date = field<DateField>(name);
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, text);
        QTest::keyClick(&date, Qt::Key_Tab);
    }
    [[nodiscard]] QList<Maintenance> history() const { return f.equipment.equipment().last().maintenanceHistory; }

    RegisterFixture f;
    QUuid id;
    QWidget below;
    std::unique_ptr<MaintenanceFormView> form;
};

} // namespace

class tst_MaintenanceNextDate : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void aNextDateThatWasSetByHandStays()
    {
        Maintenance record = makeRecord(1, 30, u"Vecchia"_s);
        record.nextServiceDate = record.date + std::chrono::days(412);
        Shown s(record);
        const QString before = s.field<DateField>("nextServiceDate").text();
        s.typeDate("date", u"01062026"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), before);
    }

    void aNextDateThatFollowedGoesOnFollowing()
    {
        Maintenance record = makeRecord(1, 30, u"Vecchia"_s);
        record.nextServiceDate = *Shown().f.calendar.addDays(record.date, 365);
        Shown s(record);
        s.typeDate("date", u"01062026"_s);
        QCOMPARE(s.field<DateField>("nextServiceDate").text(), u"01/06/2027"_s);
    }

    void theNextDateFollowsWhileTheDateIsTyped()
    {
        Shown s;
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
        Shown s;
        auto& date = s.field<DateField>("date");
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, u"1/2/26"_s);
        s.form.reset();
    }
};

ABISSORA_TEST(tst_MaintenanceNextDate);

#include "tst_MaintenanceNextDate.moc"
