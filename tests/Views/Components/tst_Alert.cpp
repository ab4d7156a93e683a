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
    void returnPressesTheDestructiveButtonOnceItHasTheFocus();
    void aNoticeHasOneButton();
    void anAskedQuestionActsOnceAndGoes();
    void nobodyIsToldOnceThePlaceIsGone();
    void aNoticeGoesByItself();
    void itIsReadAsAnAlert();
    void aLongMessageFits_data();
    void aLongMessageFits();
    void anEndlessMessageLeavesTheButtonsInTheirPlace();

private:
    std::unique_ptr<QWidget> m_window;
    void make(Alert::Kind kind, const QString& message);

    std::unique_ptr<Alert> m_alert;
};

void tst_Alert::init()
{
    ComponentTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(50, 50, 1000, 700);
    test::activate(*m_window);
    make(Alert::Kind::Question, u"Sei sicuro di voler eliminare l'attrezzatura 'GAV'?"_s);
}

void tst_Alert::make(Alert::Kind kind, const QString& message)
{
    m_alert = std::make_unique<Alert>(kind, u"Conferma Eliminazione"_s, message, m_window.get());
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

void tst_Alert::returnPressesTheDestructiveButtonOnceItHasTheFocus()
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        m_alert->open();
        QTRY_COMPARE(QApplication::activeWindow(), m_alert.get());
        QTRY_VERIFY(m_alert->safeButton()->hasFocus());
        QTest::keyClick(m_alert->focusWidget(), Qt::Key_Tab);
        const QSignalSpy accepted(m_alert.get(), &QDialog::accepted);
        QTest::keyClick(m_alert->focusWidget(), key);
        QCOMPARE(accepted.size(), 1);
    }
}

void tst_Alert::aNoticeHasOneButton()
{
    make(Alert::Kind::Notice, u"Il file non c'è più."_s);
    m_alert->open();
    QVERIFY(!m_alert->destructiveButton()->isVisible());
    QCOMPARE(m_alert->safeButton()->text(), u"OK"_s);
    QTest::mouseClick(m_alert->safeButton(), Qt::LeftButton);
    QVERIFY(!m_alert->isVisible());
}

void tst_Alert::anAskedQuestionActsOnceAndGoes()
{
    int accepted = 0;
    for (const auto& [button, times] : {std::pair(u"safe"_s, 0), std::pair(u"destructive"_s, 1)}) {
        const QPointer<Alert> alert =
            Alert::ask(m_window.get(), u"Conferma Eliminazione"_s, u"Sicuro?"_s, [&accepted] { ++accepted; });
        QCOMPARE(&test::openDialog(*m_window), alert.get());
        QCOMPARE(alert->windowTitle(), u"Conferma Eliminazione"_s);
        QCOMPARE(alert->message(), u"Sicuro?"_s);
        test::click(*alert, button);
        test::settle();
        QVERIFY(alert.isNull());
        QCOMPARE(accepted, times);
    }
}

void tst_Alert::nobodyIsToldOnceThePlaceIsGone()
{
    bool accepted = false;
    auto place = std::make_unique<QWidget>(m_window.get());
    Alert* const alert = Alert::ask(place.get(), u"Errore"_s, u"Sicuro?"_s, [&accepted] { accepted = true; });
    place.reset();
    test::click(*alert, u"destructive"_s);
    test::settle();
    QVERIFY(!accepted);
    QVERIFY(!test::isDialogOpen(*m_window));
}

void tst_Alert::aNoticeGoesByItself()
{
    const QPointer<Alert> notice = Alert::notice(m_window.get(), u"Errore"_s, u"Il file non c'è più."_s);
    QVERIFY(!test::isShown(*notice, u"destructive"_s));
    test::click(*notice, u"safe"_s);
    test::settle();
    QVERIFY(notice.isNull());
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
    make(Alert::Kind::Question, u"Sei sicuro di voler eliminare l'attrezzatura '%1'? Questa azione non può essere "
                                "annullata."_s.arg(name));
    m_alert->open();
    test::settle();
    QCOMPARE(test::clippedTexts(*m_alert), QStringList());
    QVERIFY(m_alert->width() < 480);
}

void tst_Alert::anEndlessMessageLeavesTheButtonsInTheirPlace()
{
    make(Alert::Kind::Question, u"Computer "_s.repeated(2000));
    m_alert->open();
    test::settle();
    QVERIFY(m_window->geometry().contains(m_alert->geometry()));
    for (const QWidget* button : std::initializer_list<QWidget*>{m_alert->safeButton(), m_alert->destructiveButton()})
        QVERIFY(m_alert->rect().contains(button->geometry()));
}

ABISSORA_TEST(tst_Alert);
#include "tst_Alert.moc"
