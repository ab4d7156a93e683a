// SPDX-License-Identifier: MIT
#include "Chip.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"

#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>

using namespace abissora;

class tst_Chip : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void theMarkClears();
    void theMarkIsReachedByTheKeyboard();
    void itIsNamedAfterItsText();
    void itsToolTipTakesNothingForMarkup();
    void nothingIsClipped();
};

void tst_Chip::theMarkClears()
{
    Chip chip;
    chip.setText(QStringLiteral("Filtro: GAV"));
    activate(chip);
    const QSignalSpy cleared(&chip, &Chip::clearClicked);
    QTest::mouseClick(chip.findChild<QToolButton*>(), Qt::LeftButton);
    QCOMPARE(cleared.size(), 1);
}

void tst_Chip::theMarkIsReachedByTheKeyboard()
{
    Chip chip;
    activate(chip);
    const QSignalSpy cleared(&chip, &Chip::clearClicked);
    auto* const mark = chip.findChild<QToolButton*>();
    QVERIFY(mark->focusPolicy() & Qt::TabFocus);
    mark->setFocus();
    QTest::keyClick(mark, Qt::Key_Space);
    QCOMPARE(cleared.size(), 1);
}

void tst_Chip::itIsNamedAfterItsText()
{
    Chip chip;
    chip.setText(QStringLiteral("Filtro: GAV"));
    QCOMPARE(roleOf(chip), QAccessible::Grouping);
    QCOMPARE(nameOf(chip), QStringLiteral("Filtro: GAV"));
    auto& mark = *chip.findChild<QToolButton*>();
    QCOMPARE(nameOf(mark), QStringLiteral("Cancella filtri"));
    chip.setClearName(QStringLiteral("Mostra tutti"));
    QCOMPARE(nameOf(mark), QStringLiteral("Mostra tutti"));
    QCOMPARE(mark.toolTip(), QStringLiteral("Mostra tutti"));
}

void tst_Chip::itsToolTipTakesNothingForMarkup()
{
    Chip chip;
    const auto* const text = chip.findChild<QLabel*>();
    chip.setText(QStringLiteral("Filtro: <b>GAV</b>"));
    QCOMPARE(text->toolTip(), QStringLiteral("<p>Filtro: &lt;b&gt;GAV&lt;/b&gt;</p>"));
    chip.setText(QStringLiteral("Filtro: A & B < C"));
    QCOMPARE(text->toolTip(), QStringLiteral("Filtro: A & B < C"));
}

void tst_Chip::nothingIsClipped()
{
    Chip chip;
    chip.setText(QStringLiteral("Filtro: Computer Subacqueo"));
    activate(chip);
    QCOMPARE(test::clippedTexts(chip), QStringList());
}

ABISSORA_TEST(tst_Chip);
#include "tst_Chip.moc"
