// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "Stepper.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

using namespace abissora;

class tst_Stepper : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
    void theButtonsStep();
    void keys();
    void typedTextChangesNothing();
    void theProgramsValueIsNoEdit();
    void aValueOutsideTheRangeIsShownAsItIs();
    void tabReachesIt();
    void theWheelNeedsTheFocus();
    void itShowsValueAndUnit();
    void theWidestValueFits();
    void itIsReadAsASpinBox();
    void aScreenReaderChangesItLikeAPerson();

private:
    static std::unique_ptr<Stepper> reminder(qint64 value);
    static QPoint part(const Stepper& stepper, QStyle::SubControl control);
};

std::unique_ptr<Stepper> tst_Stepper::reminder(qint64 value)
{
    auto stepper = std::make_unique<Stepper>();
    stepper->setRange(7, 90);
    stepper->setSingleStep(7);
    stepper->setSuffix(u" giorni"_s);
    stepper->setValue(value);
    return stepper;
}

QPoint tst_Stepper::part(const Stepper& stepper, QStyle::SubControl control)
{
    QStyleOptionSpinBox option;
    option.initFrom(&stepper);
    option.buttonSymbols = QAbstractSpinBox::PlusMinus;
    return stepper.style()->subControlRect(QStyle::CC_SpinBox, &option, control, &stepper).center();
}

void tst_Stepper::steps_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<int>("by");
    QTest::addColumn<qint64>("to");
    QTest::newRow("up from a value between the steps") << qint64{30} << 1 << qint64{37};
    QTest::newRow("down from a value between the steps") << qint64{30} << -1 << qint64{23};
    QTest::newRow("down at the lower end") << qint64{7} << -1 << qint64{7};
    QTest::newRow("down to the lower end") << qint64{9} << -1 << qint64{7};
    QTest::newRow("up to the upper end") << qint64{86} << 1 << qint64{90};
    QTest::newRow("up at the upper end") << qint64{90} << 1 << qint64{90};
    QTest::newRow("up from below the range") << qint64{0} << 1 << qint64{7};
    QTest::newRow("down from above the range") << qint64{400} << -1 << qint64{90};
    QTest::newRow("up from above the range") << qint64{400} << 1 << qint64{90};
}

void tst_Stepper::steps()
{
    QFETCH(const qint64, from);
    QFETCH(const int, by);
    QFETCH(const qint64, to);
    const auto stepper = reminder(from);
    const QSignalSpy edited(stepper.get(), &Stepper::edited);
    stepper->stepBy(by);
    QCOMPARE(stepper->value(), to);
    QCOMPARE(edited.size(), from == to ? 0 : 1);
}

void tst_Stepper::theButtonsStep()
{
    const auto stepper = reminder(30);
    test::activate(*stepper);
    const QSignalSpy edited(stepper.get(), &Stepper::edited);
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, part(*stepper, QStyle::SC_SpinBoxUp));
    QCOMPARE(stepper->value(), 37);
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, part(*stepper, QStyle::SC_SpinBoxDown));
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, part(*stepper, QStyle::SC_SpinBoxDown));
    QCOMPARE(stepper->value(), 23);
    QCOMPARE(edited.size(), 3);
}

void tst_Stepper::keys()
{
    const auto stepper = reminder(30);
    test::activate(*stepper);
    stepper->setFocus();
    const QSignalSpy edited(stepper.get(), &Stepper::edited);
    QTest::keyClick(stepper.get(), Qt::Key_Up);
    QCOMPARE(stepper->value(), 37);
    QTest::keyClick(stepper.get(), Qt::Key_Down);
    QCOMPARE(stepper->value(), 30);
    QTest::keyClick(stepper.get(), Qt::Key_PageDown);
    QCOMPARE(stepper->value(), 7);
    QTest::keyClick(stepper.get(), Qt::Key_PageUp);
    QCOMPARE(stepper->value(), 77);
    QTest::keyClick(stepper.get(), Qt::Key_Home);
    QCOMPARE(stepper->value(), 7);
    QTest::keyClick(stepper.get(), Qt::Key_End);
    QCOMPARE(stepper->value(), 90);
    QCOMPARE(edited.size(), 6);
}

void tst_Stepper::typedTextChangesNothing()
{
    const auto stepper = reminder(30);
    test::activate(*stepper);
    stepper->setFocus();
    const QSignalSpy edited(stepper.get(), &Stepper::edited);
    QTest::keyClicks(stepper.get(), u"12"_s);
    QTest::keyClick(stepper.get(), Qt::Key_Backspace);
    stepper->clearFocus();
    QCOMPARE(stepper->value(), 30);
    QCOMPARE(stepper->text(), u"30 giorni"_s);
    QCOMPARE(edited.size(), 0);
}

void tst_Stepper::theProgramsValueIsNoEdit()
{
    const auto stepper = reminder(30);
    const QSignalSpy edited(stepper.get(), &Stepper::edited);
    stepper->setValue(60);
    stepper->setRange(100, 200);
    QCOMPARE(stepper->value(), 60);
    QCOMPARE(edited.size(), 0);
}

void tst_Stepper::aValueOutsideTheRangeIsShownAsItIs()
{
    const auto stepper = reminder(400);
    QCOMPARE(stepper->value(), 400);
    QCOMPARE(stepper->text(), u"400 giorni"_s);
}

void tst_Stepper::tabReachesIt()
{
    const auto stepper = reminder(30);
    QCOMPARE(stepper->focusPolicy(), Qt::StrongFocus);
}

void tst_Stepper::theWheelNeedsTheFocus()
{
    const auto stepper = reminder(30);
    const auto turn = [&] {
        QWheelEvent wheel({5, 5}, stepper->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(stepper.get(), &wheel);
        return wheel.isAccepted();
    };
    test::activate(*stepper);
    stepper->clearFocus();
    QVERIFY2(!turn(), "the area around scrolls instead");
    QCOMPARE(stepper->value(), 30);
    QCOMPARE(stepper->focusPolicy(), Qt::StrongFocus);
    stepper->setFocus();
    QVERIFY(turn());
    QCOMPARE(stepper->value(), 37);
}

void tst_Stepper::itShowsValueAndUnit()
{
    const auto stepper = reminder(30);
    QCOMPARE(stepper->text(), u"30 giorni"_s);
    stepper->stepUp();
    QCOMPARE(stepper->text(), u"37 giorni"_s);
}

void tst_Stepper::theWidestValueFits()
{
    const auto stepper = reminder(123456);
    stepper->resize(stepper->sizeHint());
    stepper->show();
    const auto* const text = stepper->findChild<QLineEdit*>();
    QVERIFY(text->width() >= text->fontMetrics().horizontalAdvance(text->text()));
}

void tst_Stepper::itIsReadAsASpinBox()
{
    const auto stepper = reminder(30);
    stepper->setAccessibleName(u"Giorni di anticipo"_s);
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(stepper.get());
    QCOMPARE(read->role(), QAccessible::SpinBox);
    QCOMPARE(read->text(QAccessible::Name), u"Giorni di anticipo"_s);
    QCOMPARE(read->text(QAccessible::Value), u"30 giorni"_s);
    QAccessibleTextInterface* const shown = read->textInterface();
    QVERIFY(shown != nullptr);
    QCOMPARE(shown->text(0, shown->characterCount()), u"30 giorni"_s);
    QCOMPARE(shown->text(0, 2), u"30"_s);
    QCOMPARE(read->valueInterface()->currentValue().toInt(), 30);
    QCOMPARE(read->valueInterface()->minimumValue().toInt(), 7);
    QCOMPARE(read->valueInterface()->maximumValue().toInt(), 90);
    QCOMPARE(read->valueInterface()->minimumStepSize().toInt(), 7);
}

void tst_Stepper::aScreenReaderChangesItLikeAPerson()
{
    const auto stepper = reminder(30);
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(stepper.get());
    const QSignalSpy edited(stepper.get(), &Stepper::edited);
    read->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(stepper->value(), 37);
    read->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    QCOMPARE(stepper->value(), 30);
    read->valueInterface()->setCurrentValue(500);
    QCOMPARE(stepper->value(), 90);
    QCOMPARE(edited.size(), 3);
}

ABISSORA_TEST(tst_Stepper);
#include "tst_Stepper.moc"
