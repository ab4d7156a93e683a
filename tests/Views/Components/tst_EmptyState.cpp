// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "EmptyState.h"
#include "Literals.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace abissora;

class tst_EmptyState : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonIsThereOnceItHasAText();
    void theButtonIsPressed();
    void itIsNamedAfterItsTitle();
    void longTextsWrap();
    void withoutItsButtonTabPassesBy();
};

void tst_EmptyState::theButtonIsThereOnceItHasAText()
{
    EmptyState state(u"tray"_s, u"Nessuna attrezzatura trovata"_s);
    test::activate(state);
    QVERIFY(!state.button()->isVisible());
    state.setButtonText(u"Cancella filtri"_s);
    QVERIFY(state.button()->isVisible());
    state.setButtonText({});
    QVERIFY(!state.button()->isVisible());
}

void tst_EmptyState::theButtonIsPressed()
{
    EmptyState state;
    state.setButtonText(u"Cancella filtri"_s);
    test::activate(state);
    const QSignalSpy clicked(&state, &EmptyState::buttonClicked);
    QTest::mouseClick(state.button(), Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
}

void tst_EmptyState::itIsNamedAfterItsTitle()
{
    EmptyState state(u"tray"_s, u"Nessuna attrezzatura trovata"_s);
    QCOMPARE(roleOf(state), QAccessible::Grouping);
    QCOMPARE(nameOf(state), u"Nessuna attrezzatura trovata"_s);
}

void tst_EmptyState::longTextsWrap()
{
    EmptyState state(u"tray"_s, u"Nessuna attrezzatura trovata"_s);
    state.setText(u"Aggiungi il primo articolo del registro, poi le sue manutenzioni"_s);
    state.setButtonText(u"Aggiungi la prima attrezzatura"_s);
    state.resize(300, 400);
    test::activate(state);
    QCOMPARE(test::clippedTexts(state), QStringList());
}

void tst_EmptyState::withoutItsButtonTabPassesBy()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* before = new QLineEdit;
    auto* state = new EmptyState;
    auto* after = new QLineEdit;
    for (QWidget* widget : std::initializer_list<QWidget*>{before, state, after})
        layout->addWidget(widget);
    test::activate(window);
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
    state->setButtonText(u"Cancella filtri"_s);
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), state->button());
}

ABISSORA_TEST(tst_EmptyState);
#include "tst_EmptyState.moc"
