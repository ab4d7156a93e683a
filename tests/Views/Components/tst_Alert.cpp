// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Buttons.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "Literals.h"

#include <QSignalSpy>

using namespace abissora;

class tst_Alert : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theDestructiveButtonAccepts();
    void theSafeButtonRejects();
    void escapeRejects();
    void returnPressesTheSafeButton();
    void tabLeadsToTheDestructiveButton();
    void aNoticeHasOneButton();
    void itIsReadAsAnAlert();
    void aLongMessageFits_data();
    void aLongMessageFits();
    void anEndlessMessageLeavesTheButtonsInTheirPlace();

private:
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Alert> m_alert;
};

void tst_Alert::init()
{
    ComponentTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(50, 50, 1000, 700);
    activate(*m_window);
    m_alert = std::make_unique<Alert>(m_window.get());
    m_alert->setTitle(u"Conferma Eliminazione"_s);
    m_alert->setMessage(u"Sei sicuro di voler eliminare l'attrezzatura 'GAV'?"_s);
}

void tst_Alert::cleanup()
{
    m_alert.reset();
    m_window.reset();
}

void tst_Alert::theDestructiveButtonAccepts()
{
    const QSignalSpy accepted(m_alert.get(), &QDialog::accepted);
    m_alert->open();
    QTest::mouseClick(m_alert->destructiveButton(), Qt::LeftButton);
    QCOMPARE(accepted.size(), 1);
    QVERIFY(!m_alert->isVisible());
}

void tst_Alert::theSafeButtonRejects()
{
    const QSignalSpy rejected(m_alert.get(), &QDialog::rejected);
    m_alert->open();
    QTest::mouseClick(m_alert->safeButton(), Qt::LeftButton);
    QCOMPARE(rejected.size(), 1);
}

void tst_Alert::escapeRejects()
{
    const QSignalSpy rejected(m_alert.get(), &QDialog::rejected);
    m_alert->open();
    QTest::keyClick(m_alert.get(), Qt::Key_Escape);
    QCOMPARE(rejected.size(), 1);
}

void tst_Alert::returnPressesTheSafeButton()
{
    const QSignalSpy rejected(m_alert.get(), &QDialog::rejected);
    m_alert->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_alert.get());
    QTRY_VERIFY(m_alert->safeButton()->hasFocus());
    QTest::keyClick(m_alert->focusWidget(), Qt::Key_Return);
    QCOMPARE(rejected.size(), 1);
}

void tst_Alert::tabLeadsToTheDestructiveButton()
{
    m_alert->open();
    QTRY_COMPARE(QApplication::activeWindow(), m_alert.get());
    QTRY_VERIFY(m_alert->safeButton()->hasFocus());
    QTest::keyClick(m_alert->safeButton(), Qt::Key_Tab);
    QVERIFY(m_alert->destructiveButton()->hasFocus());
    const QSignalSpy accepted(m_alert.get(), &QDialog::accepted);
    QTest::keyClick(m_alert->destructiveButton(), Qt::Key_Space);
    QCOMPARE(accepted.size(), 1);
}

void tst_Alert::aNoticeHasOneButton()
{
    m_alert->makeNotice();
    m_alert->open();
    QVERIFY(!m_alert->destructiveButton()->isVisible());
    QCOMPARE(m_alert->safeButton()->text(), u"OK"_s);
    QTest::mouseClick(m_alert->safeButton(), Qt::LeftButton);
    QVERIFY(!m_alert->isVisible());
}

void tst_Alert::itIsReadAsAnAlert()
{
    QCOMPARE(roleOf(*m_alert), QAccessible::AlertMessage);
    QCOMPARE(nameOf(*m_alert), u"Conferma Eliminazione"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(m_alert.get())->text(QAccessible::Description), m_alert->message());
}

void tst_Alert::aLongMessageFits_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("words") << u"Computer Suunto EON Core "_s.repeated(6);
    QTest::newRow("one word") << u"Computer"_s.repeated(20);
}

void tst_Alert::aLongMessageFits()
{
    QFETCH(QString, name);
    m_alert->setMessage(u"Sei sicuro di voler eliminare l'attrezzatura '%1'? Questa azione non può essere "
                        "annullata."_s.arg(name));
    m_alert->open();
    QCoreApplication::processEvents();
    QCOMPARE(test::clippedTexts(*m_alert), QStringList());
    QVERIFY(m_alert->width() < 480);
}

void tst_Alert::anEndlessMessageLeavesTheButtonsInTheirPlace()
{
    m_alert->setMessage(u"Computer "_s.repeated(2000));
    m_alert->open();
    QCoreApplication::processEvents();
    QVERIFY(m_window->geometry().contains(m_alert->geometry()));
    for (const QWidget* button : std::initializer_list<QWidget*>{m_alert->safeButton(), m_alert->destructiveButton()})
        QVERIFY(m_alert->rect().contains(button->geometry()));
}

ABISSORA_TEST(tst_Alert);
#include "tst_Alert.moc"
