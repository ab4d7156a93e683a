// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "NoAnswerAlert.h"

#include <QSignalSpy>

using namespace abissora;

class tst_NoAnswerAlert : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ComponentTest::init();
        m_alert = std::make_unique<NoAnswerAlert>();
        m_accepted = std::make_unique<QSignalSpy>(m_alert.get(), &QDialog::accepted);
        m_rejected = std::make_unique<QSignalSpy>(m_alert.get(), &QDialog::rejected);
        m_alert->show();
        QTRY_COMPARE(QApplication::activeWindow(), m_alert.get());
    }

    void cleanup() { m_alert.reset(); }

    void itSaysWhatItIsAbout()
    {
        QCOMPARE(test::visibleLabels(*m_alert),
                 QStringList{u"Abissora è già aperta su questo registro, ma non risponde."_s});
        QCOMPARE(roleOf(*m_alert), QAccessible::AlertMessage);
        QCOMPARE(nameOf(*m_alert), u"Abissora"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(m_alert.get())->text(QAccessible::Description),
                 NoAnswerAlert::sentence());
        QCOMPARE(test::clippedTexts(*m_alert), QStringList());
    }

    void riprovaAccepts()
    {
        test::press(*m_alert, u"Riprova"_s);
        QVERIFY(!m_alert->isVisible());
        QCOMPARE(m_accepted->size(), 1);
        QCOMPARE(m_rejected->size(), 0);
    }

    void esciRejects()
    {
        test::press(*m_alert, u"Esci"_s);
        QVERIFY(!m_alert->isVisible());
        QCOMPARE(m_accepted->size(), 0);
        QCOMPARE(m_rejected->size(), 1);
    }

    void returnTriesAgainAndEscapeLeaves()
    {
        QTest::keyClick(m_alert->focusWidget(), Qt::Key_Return);
        QCOMPARE(m_accepted->size(), 1);
        m_alert->show();
        QTest::keyClick(m_alert.get(), Qt::Key_Escape);
        QCOMPARE(m_rejected->size(), 1);
    }

    void theKeyboardReachesBothButtons() { QCOMPARE(test::tabOrder(*m_alert), (QStringList{u"again"_s, u"leave"_s})); }

private:
    std::unique_ptr<NoAnswerAlert> m_alert;
    std::unique_ptr<QSignalSpy> m_accepted;
    std::unique_ptr<QSignalSpy> m_rejected;
};

ABISSORA_TEST(tst_NoAnswerAlert);

#include "tst_NoAnswerAlert.moc"
