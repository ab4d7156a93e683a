// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "Cards.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "FormRow.h"
#include "Literals.h"
#include "ScrollPane.h"
#include "Sheet.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace abissora;

class tst_Sheet : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itIsAModalDialogNamedAfterItsTitle();
    void escapeAndTheButtonCancel();
    void thePrimaryButtonTellsAndClosesNothing();
    void controlReturnPressesThePrimaryButton();
    void controlReturnWorksFromATextEdit();
    void controlReturnRespectsADisabledButton();
    void returnInAFieldPressesNothing();
    void returnPressesTheFocusedButton();
    void theFirstFieldHasTheFocus();
    void anotherFieldCanHaveTheFocusFirst();
    void theFocusReturnsToTheOpener();
    void theWindowBelowIsDimmedMeanwhile();
    void itIsCentredAndFitsTheWindow();
    void aTallBodyScrolls();
    void theFootStaysInSight();
    void nothingMovesWhenTheBodyBeginsToScroll();
    void theHeaderIsNotClipped();

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit* m_opener = nullptr;
    std::unique_ptr<Sheet> m_sheet;
    QLineEdit* m_first = nullptr;
    QPlainTextEdit* m_notes = nullptr;
};

void tst_Sheet::init()
{
    ComponentTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(50, 50, 1000, 700);
    m_opener = new QLineEdit(m_window.get());
    test::activate(*m_window);
    m_opener->setFocus();

    m_sheet = std::make_unique<Sheet>(u"Nuova Attrezzatura"_s, m_window.get());
    m_sheet->setPrimaryText(u"Salva"_s);
    auto* const group = new GroupBox(u"Informazioni Generali"_s);
    m_first = new QLineEdit;
    m_notes = new QPlainTextEdit;
    group->content()->addWidget(new FormRow(u"Nome*"_s, m_first));
    group->content()->addWidget(m_notes);
    m_sheet->body()->addWidget(group);
}

void tst_Sheet::cleanup()
{
    m_sheet.reset();
    m_window.reset();
}

void tst_Sheet::itIsAModalDialogNamedAfterItsTitle()
{
    m_sheet->open();
    QCOMPARE(m_sheet->windowModality(), Qt::WindowModal);
    QCOMPARE(roleOf(*m_sheet), QAccessible::Dialog);
    QCOMPARE(nameOf(*m_sheet), u"Nuova Attrezzatura"_s);
}

void tst_Sheet::escapeAndTheButtonCancel()
{
    const QSignalSpy rejected(m_sheet.get(), &QDialog::rejected);
    m_sheet->open();
    QTest::keyClick(m_sheet.get(), Qt::Key_Escape);
    QVERIFY(!m_sheet->isVisible());
    QCOMPARE(rejected.size(), 1);
    m_sheet->open();
    QTest::mouseClick(m_sheet->cancelButton(), Qt::LeftButton);
    QVERIFY(!m_sheet->isVisible());
    QCOMPARE(rejected.size(), 2);
}

void tst_Sheet::thePrimaryButtonTellsAndClosesNothing()
{
    const QSignalSpy clicked(m_sheet.get(), &Sheet::primaryClicked);
    m_sheet->open();
    QTest::mouseClick(m_sheet->primaryButton(), Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(m_sheet->isVisible());
}

void tst_Sheet::controlReturnPressesThePrimaryButton()
{
    const QSignalSpy clicked(m_sheet.get(), &Sheet::primaryClicked);
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    QTest::keyClick(m_first, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(clicked.size(), 1);
}

void tst_Sheet::controlReturnWorksFromATextEdit()
{
    const QSignalSpy clicked(m_sheet.get(), &Sheet::primaryClicked);
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    m_notes->setFocus();
    QTest::keyClick(m_notes, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(m_notes->toPlainText().isEmpty());
}

void tst_Sheet::controlReturnRespectsADisabledButton()
{
    const QSignalSpy clicked(m_sheet.get(), &Sheet::primaryClicked);
    m_sheet->primaryButton()->setEnabled(false);
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    QTest::keyClick(m_first, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(clicked.size(), 0);
}

void tst_Sheet::returnInAFieldPressesNothing()
{
    const QSignalSpy clicked(m_sheet.get(), &Sheet::primaryClicked);
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    QTest::keyClick(m_first, Qt::Key_Return);
    QVERIFY(m_sheet->isVisible());
    QCOMPARE(clicked.size(), 0);
}

void tst_Sheet::returnPressesTheFocusedButton()
{
    const QSignalSpy clicked(m_sheet.get(), &Sheet::primaryClicked);
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    m_sheet->primaryButton()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_sheet->focusWidget(), Qt::Key_Enter);
    QCOMPARE(clicked.size(), 1);
    m_sheet->cancelButton()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_sheet->focusWidget(), Qt::Key_Return);
    QVERIFY(!m_sheet->isVisible());
    QCOMPARE(clicked.size(), 1);
}

void tst_Sheet::theFirstFieldHasTheFocus()
{
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    QTRY_VERIFY(m_first->hasFocus());
}

void tst_Sheet::anotherFieldCanHaveTheFocusFirst()
{
    m_sheet->setFirstField(m_notes);
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    QTRY_VERIFY(m_notes->hasFocus());
}

void tst_Sheet::theFocusReturnsToTheOpener()
{
    m_sheet->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.get());
    QLineEdit other(m_window.get());
    other.show();
    other.setFocus(); // as when a list below is built anew
    m_sheet->reject();
    QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
    QTRY_VERIFY(m_opener->hasFocus());
}

void tst_Sheet::theWindowBelowIsDimmedMeanwhile()
{
    m_sheet->open();
    const QWidget& scrim = test::part(*m_window, u"scrim"_s);
    QCOMPARE(scrim.geometry(), m_window->rect());
    m_window->resize(1100, 720);
    test::settle();
    QCOMPARE(scrim.geometry(), m_window->rect());
    m_sheet->reject();
    QVERIFY(!test::isShown(*m_window, u"scrim"_s));
}

void tst_Sheet::itIsCentredAndFitsTheWindow()
{
    m_sheet->setPreferredSize({2000, 2000});
    m_sheet->open();
    const QRect frame = m_sheet->geometry();
    QVERIFY(m_window->geometry().contains(frame));
    QVERIFY((frame.center() - m_window->geometry().center()).manhattanLength() <= 2);
    m_window->resize(1000, 750);
    test::settle();
    QVERIFY((m_sheet->geometry().center() - m_window->geometry().center()).manhattanLength() <= 2);
}

void tst_Sheet::aTallBodyScrolls()
{
    m_notes->setFixedHeight(1500);
    m_sheet->open();
    test::settle();
    QVERIFY(m_sheet->height() < 700);
    QVERIFY(m_sheet->findChild<QScrollArea*>()->verticalScrollBar()->maximum() > 0);
    QCOMPARE(m_sheet->findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
}

void tst_Sheet::theFootStaysInSight()
{
    auto* line = new QLabel(u"* Campi obbligatori"_s);
    m_sheet->open();
    test::settle();
    const int before = m_sheet->height();
    m_sheet->addToFoot(line);
    test::settle();
    QVERIFY(m_sheet->height() > before); // the body has its height as before
    QCOMPARE(m_sheet->scrollArea()->verticalScrollBar()->maximum(), 0);
    m_notes->setFixedHeight(1500);
    test::settle();
    QCOMPARE(line->visibleRegion().boundingRect(), line->rect());
    QCOMPARE(line->mapTo(m_sheet.get(), QPoint()).x(), m_sheet->cancelButton()->mapTo(m_sheet.get(), QPoint()).x());
}

void tst_Sheet::nothingMovesWhenTheBodyBeginsToScroll()
{
    m_sheet->open();
    test::settle();
    const auto place = [this] { return QRect(m_first->mapTo(m_sheet->scrollArea(), QPoint()), m_first->size()); };
    const QRect before = place();
    m_notes->setFixedHeight(1500);
    test::settle();
    QVERIFY(m_sheet->scrollArea()->verticalScrollBar()->maximum() > 0);
    QCOMPARE(place(), before);
}

void tst_Sheet::theHeaderIsNotClipped()
{
    m_sheet->setTitle(u"Modifica Attrezzatura"_s);
    m_sheet->open();
    test::settle();
    QCOMPARE(test::clippedTexts(*m_sheet), QStringList());
}

ABISSORA_TEST(tst_Sheet);
#include "tst_Sheet.moc"
