// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "ToggleSwitch.h"

#include <QSignalSpy>

using namespace abissora;

class tst_ToggleSwitch : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClickAnywhereSwitchesOnce();
    void spaceSwitches();
    void theProgramsStateIsNoClick();
    void disabledItStays();
    void itLooksOnAndOff();
    void itIsReadAsACheckBox();
    void theTextFits();
};

void tst_ToggleSwitch::aClickAnywhereSwitchesOnce()
{
    ToggleSwitch toggle(u"Abilita Notifiche"_s);
    toggle.resize(400, toggle.sizeHint().height());
    test::activate(toggle);
    const QSignalSpy clicked(&toggle, &QAbstractButton::clicked);
    QTest::mouseClick(&toggle, Qt::LeftButton, {}, QPoint(390, toggle.height() / 2));
    QVERIFY(toggle.isChecked());
    QTest::mouseClick(&toggle, Qt::LeftButton, {}, QPoint(200, toggle.height() / 2));
    QVERIFY(!toggle.isChecked());
    QCOMPARE(clicked.size(), 2);
}

void tst_ToggleSwitch::spaceSwitches()
{
    ToggleSwitch toggle;
    test::activate(toggle);
    toggle.setFocus();
    QTest::keyClick(&toggle, Qt::Key_Space);
    QVERIFY(toggle.isChecked());
}

void tst_ToggleSwitch::theProgramsStateIsNoClick()
{
    ToggleSwitch toggle;
    const QSignalSpy clicked(&toggle, &QAbstractButton::clicked);
    toggle.setChecked(true);
    QCOMPARE(clicked.size(), 0);
}

void tst_ToggleSwitch::disabledItStays()
{
    ToggleSwitch toggle;
    test::activate(toggle);
    toggle.setEnabled(false);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    QVERIFY(!toggle.isChecked());
}

void tst_ToggleSwitch::itLooksOnAndOff()
{
    ToggleSwitch toggle;
    toggle.resize(toggle.sizeHint());
    const QPoint leadingEnd(toggle.width() - 32, toggle.height() / 2 + 5);
    QVERIFY(toggle.grab().toImage().pixelColor(leadingEnd) != Tokens::of(Scheme::Light).accentFill);
    toggle.setChecked(true);
    QCOMPARE(toggle.grab().toImage().pixelColor(leadingEnd), Tokens::of(Scheme::Light).accentFill);
}

void tst_ToggleSwitch::itIsReadAsACheckBox()
{
    ToggleSwitch toggle(u"Modalità Scura"_s);
    QCOMPARE(roleOf(toggle), QAccessible::CheckBox);
    QCOMPARE(nameOf(toggle), u"Modalità Scura"_s);
    toggle.setChecked(true);
    QVERIFY(QAccessible::queryAccessibleInterface(&toggle)->state().checked);
}

void tst_ToggleSwitch::theTextFits()
{
    const ToggleSwitch toggle(u"Controlla aggiornamenti all'avvio"_s);
    QVERIFY(toggle.sizeHint().width() > toggle.fontMetrics().horizontalAdvance(toggle.text()) + 36);
}

ABISSORA_TEST(tst_ToggleSwitch);
#include "tst_ToggleSwitch.moc"
