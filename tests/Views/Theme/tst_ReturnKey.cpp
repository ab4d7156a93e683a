// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "Literals.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

using namespace abissora;

/// A dialog with a default button and another one.
struct ShownDialog
{
    explicit ShownDialog(QAbstractButton* other)
        : button(other)
    {
        auto* layout = new QVBoxLayout(&dialog);
        first->setDefault(true);
        layout->addWidget(first);
        layout->addWidget(button);
        test::activate(dialog);
        button->setFocus(Qt::TabFocusReason);
    }

    QDialog dialog;
    QPushButton* first = new QPushButton;
    QAbstractButton* button;
    QSignalSpy defaultPressed{first, &QAbstractButton::clicked};
    QSignalSpy pressed{button, &QAbstractButton::clicked};
};

class tst_ReturnKey : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }
    void pressesTheFocusedButton_data();
    void pressesTheFocusedButton();
    void pressesOnceWhileItIsHeld();
    void withAnotherKeyItIsNoPress();
    void choicesAreNotPressed();
    void aButtonMayGoWhenItIsPressed();
};

void tst_ReturnKey::pressesTheFocusedButton_data()
{
    QTest::addColumn<bool>("isTool");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifier>("modifier");
    for (const bool isTool : {false, true}) {
        QTest::addRow("Return, %d", isTool) << isTool << Qt::Key_Return << Qt::NoModifier;
        QTest::addRow("Enter, %d", isTool) << isTool << Qt::Key_Enter << Qt::KeypadModifier;
    }
}

void tst_ReturnKey::pressesTheFocusedButton()
{
    QFETCH(bool, isTool);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifier, modifier);
    auto* button = isTool ? static_cast<QAbstractButton*>(new QToolButton) : new QPushButton;
    button->setFocusPolicy(Qt::StrongFocus);
    if (auto* push = qobject_cast<QPushButton*>(button))
        push->setAutoDefault(false);
    ShownDialog d(button);
    QTest::keyClick(button, key, modifier);
    QCOMPARE(d.pressed.size(), 1);
    QCOMPARE(d.defaultPressed.size(), 0);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(d.pressed.size(), 2);
    d.first->setFocus();
    QTest::keyClick(d.first, key, modifier);
    QCOMPARE(d.defaultPressed.size(), 1);
}

void tst_ReturnKey::pressesOnceWhileItIsHeld()
{
    ShownDialog d(new QPushButton);
    QTest::keyPress(d.button, Qt::Key_Return);
    for (int repeated = 0; repeated < 3; ++repeated) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QApplication::sendEvent(d.button, &held);
    }
    QTest::keyRelease(d.button, Qt::Key_Return);
    QCOMPARE(d.pressed.size(), 1);
    QCOMPARE(d.defaultPressed.size(), 0);
}

void tst_ReturnKey::withAnotherKeyItIsNoPress()
{
    auto* button = new QToolButton;
    button->setFocusPolicy(Qt::StrongFocus);
    ShownDialog d(button);
    QTest::keyClick(d.button, Qt::Key_Return, Qt::AltModifier);
    QTest::keyClick(d.button, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(d.pressed.size(), 0);
}

void tst_ReturnKey::choicesAreNotPressed()
{
    for (QAbstractButton* choice : std::initializer_list<QAbstractButton*>{new QCheckBox, new QRadioButton}) {
        ShownDialog d(choice);
        QTest::keyClick(choice, Qt::Key_Return);
        QVERIFY(!choice->isChecked());
        QCOMPARE(d.defaultPressed.size(), 1);
    }
}

void tst_ReturnKey::aButtonMayGoWhenItIsPressed()
{
    QWidget window;
    const QPointer<QPushButton> button(new QPushButton(&window));
    test::activate(window);
    button->setFocus();
    connect(button, &QAbstractButton::clicked, button, [&button] { delete button.data(); });
    QTest::keyPress(button, Qt::Key_Return);
    QVERIFY(button.isNull());
}

ABISSORA_TEST(tst_ReturnKey);
#include "tst_ReturnKey.moc"
