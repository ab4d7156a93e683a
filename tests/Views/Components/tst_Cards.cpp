// SPDX-License-Identifier: MIT
#include "Cards.h"
#include "ComponentTest.h"
#include "Literals.h"

using namespace abissora;

class tst_Cards : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCardPaintsItsSurface();
    void aCardFollowsTheScheme();
    void aGroupBoxIsNamedAfterItsTitle();
    void aSeparatorIsReadAsOne();
};

void tst_Cards::aCardPaintsItsSurface()
{
    Card card;
    card.resize(80, 60);
    const QImage image = card.grab().toImage();
    QCOMPARE(image.pixelColor(40, 30), Tokens::of(Scheme::Light).surface);
    QCOMPARE(image.pixelColor(40, 0), Tokens::of(Scheme::Light).border);
    QCOMPARE(image.pixelColor(0, 0), Tokens::of(Scheme::Light).window);
}

void tst_Cards::aCardFollowsTheScheme()
{
    Card card;
    card.resize(80, 60);
    card.ensurePolished();
    applyTheme(*qApp, Scheme::Dark);
    test::settle();
    const QColor middle = card.grab().toImage().pixelColor(40, 30);
    applyTheme(*qApp, Scheme::Light);
    QCOMPARE(middle, Tokens::of(Scheme::Dark).surface);
}

void tst_Cards::aGroupBoxIsNamedAfterItsTitle()
{
    GroupBox box(u"Notifiche"_s, u"bell"_s);
    QCOMPARE(roleOf(box), QAccessible::Grouping);
    QCOMPARE(nameOf(box), u"Notifiche"_s);
    box.setTitle(u"Aspetto"_s);
    QCOMPARE(nameOf(box), u"Aspetto"_s);
    QCOMPARE(box.title(), u"Aspetto"_s);
}

void tst_Cards::aSeparatorIsReadAsOne()
{
    Separator separator;
    QCOMPARE(roleOf(separator), QAccessible::Separator);
}

ABISSORA_TEST(tst_Cards);
#include "tst_Cards.moc"
