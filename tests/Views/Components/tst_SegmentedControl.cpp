// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "SegmentedControl.h"

#include <QAbstractButton>
#include <QSignalSpy>

using namespace abissora;

class tst_SegmentedControl : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClickChoosesOnce();
    void theProgramsChoiceIsNoEdit();
    void nothingCanBeChosen();
    void anIndexThatIsNotThereChoosesNothing();
    void theArrowKeysMoveTheChoice();
    void tabReachesTheChoiceOnly();
    void isOneStopOfTab();
    void theFocusFollowsTheProgramsChoice();
    void tabsAreReadAsTabs();
    void aChoiceIsReadAsRadioButtons();
    void aScreenReaderChoosesLikeAPerson();
    void largerTextFits();

private:
    static std::unique_ptr<SegmentedControl> intervals(SegmentedControl::Purpose purpose);
    static QAbstractButton* segment(const SegmentedControl& control, int index)
    {
        return control.findChildren<QAbstractButton*>().at(index);
    }
};

std::unique_ptr<SegmentedControl> tst_SegmentedControl::intervals(SegmentedControl::Purpose purpose)
{
    auto control = std::make_unique<SegmentedControl>(purpose);
    control->addSegment(u"6 Mesi"_s);
    control->addSegment(u"1 Anno"_s);
    control->addSegment(u"2 Anni"_s);
    return control;
}

void tst_SegmentedControl::aClickChoosesOnce()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    control->setCurrentIndex(0);
    test::activate(*control);
    const QSignalSpy activated(control.get(), &SegmentedControl::activated);
    QTest::mouseClick(segment(*control, 2), Qt::LeftButton);
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first().first().toInt(), 2);
    QCOMPARE(control->currentIndex(), 2);
    QTest::mouseClick(segment(*control, 2), Qt::LeftButton);
    QCOMPARE(activated.size(), 1);
    QVERIFY(!segment(*control, 0)->isChecked());
}

void tst_SegmentedControl::theProgramsChoiceIsNoEdit()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    const QSignalSpy activated(control.get(), &SegmentedControl::activated);
    control->setCurrentIndex(1);
    QCOMPARE(control->currentIndex(), 1);
    QVERIFY(segment(*control, 1)->isChecked());
    QCOMPARE(activated.size(), 0);
}

void tst_SegmentedControl::nothingCanBeChosen()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    QCOMPARE(control->currentIndex(), -1);
    control->setCurrentIndex(1);
    control->setCurrentIndex(-1);
    QCOMPARE(control->currentIndex(), -1);
    for (int index = 0; index < control->count(); ++index)
        QVERIFY(!segment(*control, index)->isChecked());
    test::activate(*control);
    QTest::mouseClick(segment(*control, 1), Qt::LeftButton);
    QCOMPARE(control->currentIndex(), 1);
    QTest::mouseClick(segment(*control, 2), Qt::LeftButton);
    QVERIFY2(!segment(*control, 1)->isChecked(), "the choice is exclusive again");
}

void tst_SegmentedControl::anIndexThatIsNotThereChoosesNothing()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    control->setCurrentIndex(1);
    control->setCurrentIndex(7);
    QCOMPARE(control->currentIndex(), -1);
}

void tst_SegmentedControl::theArrowKeysMoveTheChoice()
{
    const auto control = intervals(SegmentedControl::Purpose::Tabs);
    control->setCurrentIndex(0);
    test::activate(*control);
    const QSignalSpy activated(control.get(), &SegmentedControl::activated);
    segment(*control, 0)->setFocus();
    QTest::keyClick(segment(*control, 0), Qt::Key_Right);
    QCOMPARE(control->currentIndex(), 1);
    QVERIFY(segment(*control, 1)->hasFocus());
    QTest::keyClick(segment(*control, 1), Qt::Key_Left);
    QCOMPARE(control->currentIndex(), 0);
    QCOMPARE(activated.size(), 2);
}

void tst_SegmentedControl::tabReachesTheChoiceOnly()
{
    QWidget window;
    auto* const control = intervals(SegmentedControl::Purpose::Choice).release();
    control->setParent(&window);
    control->setCurrentIndex(1);
    QAbstractButton* const before = segment(*control, 0);
    test::activate(window);
    segment(*control, 1)->setFocus();
    QTest::keyClick(segment(*control, 1), Qt::Key_Tab);
    QVERIFY(!before->hasFocus());
    QVERIFY(!segment(*control, 2)->hasFocus());
}

void tst_SegmentedControl::isOneStopOfTab()
{
    for (const int chosen : {-1, 0, 1, 2}) {
        const auto control = intervals(SegmentedControl::Purpose::Choice);
        control->setCurrentIndex(2);
        control->setCurrentIndex(chosen);
        for (int index = 0; index < control->count(); ++index)
            QCOMPARE(segment(*control, index)->focusPolicy() == Qt::StrongFocus, index == std::max(0, chosen));
    }
}

void tst_SegmentedControl::theFocusFollowsTheProgramsChoice()
{
    const auto control = intervals(SegmentedControl::Purpose::Tabs);
    control->setCurrentIndex(0);
    test::activate(*control);
    segment(*control, 0)->setFocus();
    control->setCurrentIndex(2);
    QVERIFY(segment(*control, 2)->hasFocus());
}

void tst_SegmentedControl::tabsAreReadAsTabs()
{
    const auto control = intervals(SegmentedControl::Purpose::Tabs);
    control->setCurrentIndex(1);
    QCOMPARE(roleOf(*control), QAccessible::PageTabList);
    QCOMPARE(roleOf(*segment(*control, 1)), QAccessible::PageTab);
    QCOMPARE(nameOf(*segment(*control, 1)), u"1 Anno"_s);
    QVERIFY(QAccessible::queryAccessibleInterface(segment(*control, 1))->state().selected);
    QVERIFY(!QAccessible::queryAccessibleInterface(segment(*control, 0))->state().selected);
}

void tst_SegmentedControl::aChoiceIsReadAsRadioButtons()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    control->setCurrentIndex(2);
    QCOMPARE(roleOf(*control), QAccessible::Grouping);
    QCOMPARE(roleOf(*segment(*control, 2)), QAccessible::RadioButton);
    QVERIFY(QAccessible::queryAccessibleInterface(segment(*control, 2))->state().checked);
}

void tst_SegmentedControl::aScreenReaderChoosesLikeAPerson()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    control->setCurrentIndex(0);
    const QSignalSpy activated(control.get(), &SegmentedControl::activated);
    auto* const actions = QAccessible::queryAccessibleInterface(segment(*control, 2))->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(control->currentIndex(), 2);
    QCOMPARE(activated.size(), 1);
}

void tst_SegmentedControl::largerTextFits()
{
    const auto control = intervals(SegmentedControl::Purpose::Choice);
    QFont larger = control->font();
    larger.setPointSizeF(larger.pointSizeF() * 1.25);
    control->setFont(larger);
    test::activate(*control);
    for (int index = 0; index < control->count(); ++index) {
        const QAbstractButton* const button = segment(*control, index);
        QVERIFY(button->width() > button->fontMetrics().horizontalAdvance(button->text()));
        QVERIFY(button->height() > button->fontMetrics().height());
    }
}

ABISSORA_TEST(tst_SegmentedControl);
#include "tst_SegmentedControl.moc"
