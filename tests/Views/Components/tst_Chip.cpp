// SPDX-License-Identifier: MIT
#include "Chip.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "Literals.h"

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
    chip.setText(u"Filtro: GAV"_s);
    test::activate(chip);
    const QSignalSpy cleared(&chip, &Chip::clearClicked);
    QTest::mouseClick(chip.findChild<QToolButton*>(), Qt::LeftButton);
    QCOMPARE(cleared.size(), 1);
}

void tst_Chip::theMarkIsReachedByTheKeyboard()
{
    Chip chip;
    test::activate(chip);
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
    chip.setText(u"Filtro: GAV"_s);
    QCOMPARE(roleOf(chip), QAccessible::Grouping);
    QCOMPARE(nameOf(chip), u"Filtro: GAV"_s);
    auto& mark = *chip.findChild<QToolButton*>();
    QCOMPARE(nameOf(mark), u"Cancella filtri"_s);
    QCOMPARE(mark.toolTip(), u"Cancella filtri"_s);
}

void tst_Chip::itsToolTipTakesNothingForMarkup()
{
    Chip chip;
    const auto* const text = chip.findChild<QLabel*>();
    chip.setText(u"Filtro: <b>GAV</b>"_s);
    QCOMPARE(text->toolTip(), u"<p>Filtro: &lt;b&gt;GAV&lt;/b&gt;</p>"_s);
    chip.setText(u"Filtro: A & B < C"_s);
    QCOMPARE(text->toolTip(), u"Filtro: A & B < C"_s);
}

void tst_Chip::nothingIsClipped()
{
    Chip chip;
    chip.setText(u"Filtro: Computer Subacqueo"_s);
    test::activate(chip);
    QCOMPARE(test::clippedTexts(chip), QStringList());
}

ABISSORA_TEST(tst_Chip);
#include "tst_Chip.moc"
