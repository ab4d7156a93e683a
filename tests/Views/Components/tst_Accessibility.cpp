// SPDX-License-Identifier: MIT
#include "Accessibility.h"
#include "Announcements.h"
#include "Assembly.h"
#include "ComponentTest.h"
#include "Literals.h"

#include <QLineEdit>

using namespace abissora;

class tst_Accessibility : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void anAnnouncementIsReadOut();
    void theSameIsReadOutAgain();
    void nothingIsReadOutForAnEmptyText();
    void anAnnouncementTakesNeitherFocusNorClicks();
};

void tst_Accessibility::anAnnouncementIsReadOut()
{
    QWidget window;
    auto* const field = new QLineEdit;
    window.setLayout(inColumn(0, {field}));
    test::activate(window);
    const test::Announcements heard;
    announce(*field, u"Manca la data"_s);
    QCOMPARE(heard.texts(), QStringList{u"Manca la data"_s});
}

void tst_Accessibility::theSameIsReadOutAgain()
{
    QWidget window;
    test::activate(window);
    const test::Announcements heard;
    announce(window, u"Manca la data"_s);
    announce(window, u"Importo non valido"_s);
    announce(window, u"Importo non valido"_s);
    QCOMPARE(heard.texts(), (QStringList{u"Manca la data"_s, u"Importo non valido"_s, u"Importo non valido"_s}));
    QCOMPARE(window.findChildren<QWidget*>().size(), 1);
}

void tst_Accessibility::nothingIsReadOutForAnEmptyText()
{
    QWidget window;
    test::activate(window);
    const test::Announcements heard;
    announce(window, {});
    QCOMPARE(heard.texts(), QStringList());
}

void tst_Accessibility::anAnnouncementTakesNeitherFocusNorClicks()
{
    QWidget window;
    auto* const field = new QLineEdit;
    window.setLayout(inColumn(0, {field}));
    test::activate(window);
    field->setFocus();
    announce(*field, u"Manca la data"_s);
    test::settle();
    QVERIFY(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(field->hasFocus());
    QCOMPARE(window.childAt(0, 0), field);
}

ABISSORA_TEST(tst_Accessibility);
#include "tst_Accessibility.moc"
