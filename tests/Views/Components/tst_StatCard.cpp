// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "StatCard.h"
#include "TypeScale.h"

using namespace abissora;

class tst_StatCard : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void itIsOneObjectThatReadsTitleAndValue();
    void digitsAreEquallyWide();
    void titleAndValueFit();
};

void tst_StatCard::itIsOneObjectThatReadsTitleAndValue()
{
    StatCard card(u"Totale Articoli"_s, u"folder.fill"_s, NamedColor::blue);
    card.setValue(u"7"_s);
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&card);
    QCOMPARE(read->role(), QAccessible::StaticText);
    QCOMPARE(read->text(QAccessible::Name), u"Totale Articoli: 7"_s);
    QCOMPARE(read->childCount(), 0);
    card.setValue(u"8"_s);
    QCOMPARE(read->text(QAccessible::Name), u"Totale Articoli: 8"_s);
}

void tst_StatCard::digitsAreEquallyWide()
{
    StatCard card({}, u"folder.fill"_s, NamedColor::blue);
    card.setValue(u"1111"_s);
    const int narrow = card.sizeHint().width();
    card.setValue(u"8888"_s);
    QCOMPARE(card.sizeHint().width(), narrow);
}

void tst_StatCard::titleAndValueFit()
{
    const StatCard card(u"Manutenzioni Scadute"_s, u"folder.fill"_s, NamedColor::red);
    const QFontMetrics caption(font(TextStyle::Caption));
    QVERIFY(card.sizeHint().width() > caption.horizontalAdvance(card.title()));
    QVERIFY(card.sizeHint().height() > caption.height() + QFontMetrics(font(TextStyle::StatisticsValue)).height());
}

ABISSORA_TEST(tst_StatCard);
#include "tst_StatCard.moc"
