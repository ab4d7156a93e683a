// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
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
    StatCard card(QStringLiteral("Totale Articoli"), QStringLiteral("folder.fill"), NamedColor::blue);
    card.setValue(QStringLiteral("7"));
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&card);
    QCOMPARE(read->role(), QAccessible::StaticText);
    QCOMPARE(read->text(QAccessible::Name), QStringLiteral("Totale Articoli: 7"));
    QCOMPARE(read->childCount(), 0);
    card.setValue(QStringLiteral("8"));
    QCOMPARE(read->text(QAccessible::Name), QStringLiteral("Totale Articoli: 8"));
}

void tst_StatCard::digitsAreEquallyWide()
{
    StatCard card({}, QStringLiteral("folder.fill"), NamedColor::blue);
    card.setValue(QStringLiteral("1111"));
    const int narrow = card.sizeHint().width();
    card.setValue(QStringLiteral("8888"));
    QCOMPARE(card.sizeHint().width(), narrow);
}

void tst_StatCard::titleAndValueFit()
{
    const StatCard card(QStringLiteral("Manutenzioni Scadute"), QStringLiteral("folder.fill"), NamedColor::red);
    const QFontMetrics caption(font(TextStyle::Caption));
    QVERIFY(card.sizeHint().width() > caption.horizontalAdvance(card.title()));
    QVERIFY(card.sizeHint().height() > caption.height() + QFontMetrics(font(TextStyle::StatisticsValue)).height());
}

ABISSORA_TEST(tst_StatCard);
#include "tst_StatCard.moc"
