// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "DateField.h"
#include "FocusInSight.h"
#include "FormParts.h"
#include "Literals.h"
#include "ScrollPane.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentFormKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void whatHasTheFocusIsInSight_data() { addWindowSizes(); }

    void whatHasTheFocusIsInSight()
    {
        QFETCH(QSize, size);
        RegisterFixture f;
        OpenEquipmentForm o(f, size);
        QCOMPARE(stopsOutOfSight(o.form), QStringList());
        QCOMPARE(stopsOutOfSight(o.form, true), QStringList());
        QVERIFY(o.form.height() < size.height());
    }

    void theUsualWindowHasRoomForTheWholeForm()
    {
        RegisterFixture f;
        const OpenEquipmentForm o(f, QSize(1280, 800));
        QCOMPARE(o.form.scrollArea()->verticalScrollBar()->maximum(), 0);
    }

    void whatIsMissingIsInSight_data() { whatHasTheFocusIsInSight_data(); }

    void whatIsMissingIsInSight()
    {
        QFETCH(QSize, size);
        RegisterFixture f;
        const OpenEquipmentForm o(f, size);
        for (const char* text : {"required", "incomplete"})
            QCOMPARE(part(o.form, text).visibleRegion().boundingRect(), part(o.form, text).rect());
        QVERIFY(part(o.form, "incomplete").y() > part(o.form, "required").y());
    }

    void altAndALetterLeadToEachControl()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        for (const auto& [key, name] :
             {std::pair(Qt::Key_T, "type"), std::pair(Qt::Key_M, "brand"), std::pair(Qt::Key_D, "model"),
              std::pair(Qt::Key_U, "serialNumber"), std::pair(Qt::Key_Q, "purchaseDate"),
              std::pair(Qt::Key_L, "lastServiceDate"), std::pair(Qt::Key_E, "notes"), std::pair(Qt::Key_N, "name")}) {
            QTest::keyClick(o.form.focusWidget(), key, Qt::AltModifier);
            QCOMPARE(o.form.focusWidget()->objectName(), QString::fromLatin1(name));
            QVERIFY(isFocusInSight(o.form));
        }
        QTest::keyClick(o.form.focusWidget(), Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(findDialog<Alert>(o.form));
        click(*findDialog<Alert>(o.form), "safe");
        o.form.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &o.form);
        QTest::keyClick(o.form.focusWidget(), Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(!o.form.isVisible());
    }

    void theNextServiceFollowsWhileTheDayIsTyped()
    {
        RegisterFixture f(QList<Equipment>{});
        OpenEquipmentForm o(f);
        type(o.form, "name", u"N"_s);
        type(o.form, "brand", u"B"_s);
        const QString before = textOf(o.form, "nextServiceDate");
        type(o.form, "lastServiceDate", u"1/2/2"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), before);
        QTest::keyClicks(o.form.focusWidget(), u"5"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"1 feb 2026"_s);
        QCOMPARE(usable<DateField>(o.form, "lastServiceDate").text(), u"1/2/25"_s);
        type(o.form, "lastServiceDate", u"2025-03-01"_s);
        QCOMPARE(textOf(o.form, "nextServiceDate"), u"1 mar 2026"_s);
        QTest::keyClick(o.form.focusWidget(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(f.almanac.dates.abbreviatedDate(f.equipment.equipment().first().nextServiceDate), u"1 mar 2026"_s);
    }

    void pastedNamesStayOneLine()
    {
        RegisterFixture f;
        OpenEquipmentForm o(f);
        QApplication::clipboard()->setText(u"due\nrighe"_s);
        for (const char* field : {"name", "brand", "model", "serialNumber"}) {
            usable<QLineEdit>(o.form, field).paste();
            QCOMPARE(usable<QLineEdit>(o.form, field).text(), u"due righe"_s);
        }
    }
};

ABISSORA_TEST(tst_EquipmentFormKeys);

#include "tst_EquipmentFormKeys.moc"
