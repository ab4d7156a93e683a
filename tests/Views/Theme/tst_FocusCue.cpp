// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "Literals.h"
#include "Painting.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

class tst_FocusCue : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void theFocusIsSeenFromTheFirstMoment()
    {
        QPushButton button;
        activate(button);
        QVERIFY(button.hasFocus());
        QVERIFY(showsFocusRing(button));
    }

    void thePointerHidesItAndAnyKeyShowsIt()
    {
        QWidget window;
        auto* const layout = new QVBoxLayout(&window);
        auto* const first = new QPushButton;
        auto* const second = new QPushButton;
        layout->addWidget(first);
        layout->addWidget(second);
        activate(window);
        QTest::mouseClick(second, Qt::LeftButton);
        QVERIFY(second->hasFocus());
        QVERIFY(!showsFocusRing(*second));
        QTest::keyClick(second, Qt::Key_Space);
        QVERIFY(showsFocusRing(*second));
        QTest::mouseClick(first, Qt::LeftButton);
        QVERIFY(!showsFocusRing(*first));
    }

    void anotherWindowDoesNotMakeItForgotten()
    {
        QPushButton button;
        activate(button);
        QTest::keyClick(&button, Qt::Key_Space);
        {
            QPushButton other;
            activate(other);
            other.setFocus(Qt::OtherFocusReason);
            QVERIFY(showsFocusRing(other));
        }
        button.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&button));
        button.setFocus(Qt::OtherFocusReason);
        QVERIFY(showsFocusRing(button));
    }
};

ABISSORA_TEST(tst_FocusCue);

#include "tst_FocusCue.moc"
