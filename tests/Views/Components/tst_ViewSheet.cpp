// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "ViewSheet.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace abissora;

class tst_ViewSheet : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itHasTheSizeItIsGiven();
    void elseItIsAsLargeAsItsView();
    void theNamedPartHasTheFocusFirst();
    void itsButtonRejects();
    void withoutATextThereIsNoButton();

private:
    std::unique_ptr<QWidget> m_window;
    QWidget* m_view = nullptr;
    QLineEdit* m_second = nullptr;
};

void tst_ViewSheet::init()
{
    ComponentTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->resize(1000, 700);
    test::activate(*m_window);
    m_second = new QLineEdit;
    m_view = new QWidget;
    auto* layout = new QVBoxLayout(m_view);
    layout->addWidget(new QLineEdit);
    layout->addWidget(m_second);
}

void tst_ViewSheet::cleanup()
{
    m_window.reset();
}

void tst_ViewSheet::itHasTheSizeItIsGiven()
{
    ViewSheet sheet({.view = m_view, .title = u"Aiuto"_s, .preferredSize = {500, 400}}, m_window.get());
    sheet.open();
    QCOMPARE(sheet.windowTitle(), u"Aiuto"_s);
    QCOMPARE(sheet.size(), QSize(500, 400));
    QCOMPARE(m_view->geometry(), sheet.rect());
}

void tst_ViewSheet::elseItIsAsLargeAsItsView()
{
    ViewSheet sheet({.view = m_view, .title = u"Aiuto"_s, .margins = {8, 16, 4, 2}}, m_window.get());
    sheet.open();
    QCOMPARE(sheet.size(), m_view->sizeHint().grownBy({8, 16, 4, 2}));
    QCOMPARE(m_view->pos(), QPoint(8, 16));
}

void tst_ViewSheet::theNamedPartHasTheFocusFirst()
{
    ViewSheet sheet({.view = m_view, .title = u"Aiuto"_s, .firstFocus = m_second}, m_window.get());
    sheet.open();
    QTRY_VERIFY(m_second->hasFocus());
}

void tst_ViewSheet::itsButtonRejects()
{
    ViewSheet sheet({.view = m_view, .title = u"Aiuto"_s, .closeButton = u"Chiudi"_s}, m_window.get());
    const QSignalSpy rejected(&sheet, &QDialog::rejected);
    sheet.open();
    QVERIFY(m_view->geometry().bottom() < test::part(sheet, u"close"_s).y());
    test::press(sheet, u"Chiudi"_s);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!sheet.isVisible());
}

void tst_ViewSheet::withoutATextThereIsNoButton()
{
    ViewSheet sheet({.view = m_view, .title = u"Aiuto"_s}, m_window.get());
    sheet.open();
    QVERIFY(!test::isShown(sheet, u"close"_s));
}

ABISSORA_TEST(tst_ViewSheet);
#include "tst_ViewSheet.moc"
