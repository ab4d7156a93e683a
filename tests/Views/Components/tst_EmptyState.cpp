// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "EmptyState.h"

#include <QSignalSpy>

using namespace abissora;

class tst_EmptyState : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonIsThereOnceItHasAText();
    void theButtonIsPressed();
    void itIsNamedAfterItsTitle();
    void longTextsWrap();
};

void tst_EmptyState::theButtonIsThereOnceItHasAText()
{
    EmptyState state(QStringLiteral("tray"), QStringLiteral("Nessuna attrezzatura trovata"));
    activate(state);
    QVERIFY(!state.button()->isVisible());
    state.setButtonText(QStringLiteral("Cancella filtri"));
    QVERIFY(state.button()->isVisible());
    state.setButtonText({});
    QVERIFY(!state.button()->isVisible());
}

void tst_EmptyState::theButtonIsPressed()
{
    EmptyState state;
    state.setButtonText(QStringLiteral("Cancella filtri"));
    activate(state);
    const QSignalSpy clicked(&state, &EmptyState::buttonClicked);
    QTest::mouseClick(state.button(), Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
}

void tst_EmptyState::itIsNamedAfterItsTitle()
{
    EmptyState state(QStringLiteral("tray"), QStringLiteral("Nessuna attrezzatura trovata"));
    QCOMPARE(roleOf(state), QAccessible::Grouping);
    QCOMPARE(nameOf(state), QStringLiteral("Nessuna attrezzatura trovata"));
}

void tst_EmptyState::longTextsWrap()
{
    EmptyState state(QStringLiteral("tray"), QStringLiteral("Nessuna attrezzatura trovata"));
    state.setText(QStringLiteral("Aggiungi il primo articolo del registro, poi le sue manutenzioni"));
    state.setButtonText(QStringLiteral("Aggiungi la prima attrezzatura"));
    state.resize(300, 400);
    activate(state);
    QCOMPARE(test::clippedTexts(state), QStringList());
}

ABISSORA_TEST(tst_EmptyState);
#include "tst_EmptyState.moc"
