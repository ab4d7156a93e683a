// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "ComponentTest.h"
#include "Literals.h"
#include "SymbolIcon.h"

#include <QSignalSpy>

using namespace abissora;

class tst_Buttons : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindHasItsLook();
    void aButtonIsPressedByMouseAndSpace();
    void theFocusMakesNoButtonTheDefault();
    void anIconButtonHasANameAndAToolTip();
    void anIconButtonTakesTheFocusByTab();
};

void tst_Buttons::everyKindHasItsLook()
{
    QCOMPARE(buttonLook(std::make_unique<PlainButton>(QString()).get(), ButtonLook::Link), ButtonLook::Plain);
    QCOMPARE(buttonLook(std::make_unique<PrimaryButton>(QString()).get(), ButtonLook::Link), ButtonLook::Primary);
    QCOMPARE(buttonLook(std::make_unique<DestructiveButton>(QString()).get(), ButtonLook::Link),
             ButtonLook::Destructive);
    QCOMPARE(buttonLook(std::make_unique<LinkButton>(QString()).get(), ButtonLook::Plain), ButtonLook::Link);
}

void tst_Buttons::aButtonIsPressedByMouseAndSpace()
{
    PrimaryButton button(u"Salva"_s);
    test::activate(button);
    const QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(clicked.size(), 2);
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(roleOf(button), QAccessible::Button);
    QCOMPARE(nameOf(button), u"Salva"_s);
}

void tst_Buttons::theFocusMakesNoButtonTheDefault()
{
    QVERIFY(!PlainButton(QString()).autoDefault());
    QVERIFY(!PrimaryButton(QString()).autoDefault());
}

void tst_Buttons::anIconButtonHasANameAndAToolTip()
{
    IconButton button(symbolIcon(u"xmark"_s), u"Chiudi"_s);
    QCOMPARE(nameOf(button), u"Chiudi"_s);
    QCOMPARE(button.toolTip(), u"Chiudi"_s);
}

void tst_Buttons::anIconButtonTakesTheFocusByTab()
{
    const IconButton button(symbolIcon(u"xmark"_s), u"Chiudi"_s);
    QVERIFY(button.focusPolicy() & Qt::TabFocus);
}

ABISSORA_TEST(tst_Buttons);
#include "tst_Buttons.moc"
