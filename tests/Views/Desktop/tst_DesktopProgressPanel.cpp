// SPDX-License-Identifier: MIT
#include "DesktopProgressPanel.h"

#include "Alert.h"
#include "ComponentTest.h"
#include "Literals.h"
#include "ProgressSheet.h"

#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

using namespace std::chrono_literals;

const QString title = u"Copia del documento…"_s;

/// A window with a field that has the focus, and work under way.
struct Under
{
    explicit Under(std::chrono::milliseconds patience = 0ms)
        : panel(patience)
    {
        auto* layout = new QVBoxLayout(window.get());
        layout->addWidget(field);
        window->resize(800, 600);
        activate(*window);
        field->setFocus();
    }

    void begin() { showing = panel.show(title, progress); }
    /// Begins, and waits for the sheet.
    ProgressSheet& sheet()
    {
        begin();
        settle();
        auto& opened = openDialog<ProgressSheet>(*window);
        if (!QTest::qWaitForWindowActive(&opened))
            qFatal("the sheet did not become active");
        return opened;
    }
    [[nodiscard]] bool isOpen() const { return findDialog<ProgressSheet>(*window) != nullptr; }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QLineEdit* field = new QLineEdit;
    DesktopProgressPanel panel;
    std::shared_ptr<WorkProgress> progress = std::make_shared<WorkProgress>();
    std::unique_ptr<ProgressPanel::Showing> showing;
};

} // namespace

class tst_DesktopProgressPanel : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSeenOfWorkThatEndsSoon()
    {
        Under u(1h);
        u.begin();
        settle();
        QVERIFY(!u.isOpen());
        QTest::keyClicks(u.field, u"testo"_s);
        QCOMPARE(u.field->text(), u"testo"_s);
        u.showing.reset();
        settle();
        QVERIFY(!u.isOpen());
        QVERIFY(!u.progress->isCancelled());
    }

    void aSheetTellsHowFarItIs()
    {
        Under u;
        ProgressSheet& sheet = u.sheet();
        QCOMPARE(sheet.windowTitle(), title);
        QCOMPARE(visibleLabels(sheet), QStringList(title));
        auto& bar = part<QProgressBar>(sheet, u"progress"_s);
        QCOMPARE(bar.value(), 0);
        for (const auto& [fraction, percent] : {std::pair(0.426, 42), std::pair(1.0, 100), std::pair(1.5, 100)}) {
            u.progress->setFraction(fraction);
            QTRY_COMPARE(bar.value(), percent);
        }
    }

    void isReadOut()
    {
        Under u;
        u.progress->setFraction(0.5);
        ProgressSheet& sheet = u.sheet();
        auto& bar = part<QProgressBar>(sheet, u"progress"_s);
        QCOMPARE(roleOf(sheet), QAccessible::Dialog);
        QCOMPARE(nameOf(sheet), title);
        QCOMPARE(roleOf(bar), QAccessible::ProgressBar);
        QCOMPARE(nameOf(bar), title);
        QAccessibleValueInterface* const value = QAccessible::queryAccessibleInterface(&bar)->valueInterface();
        QCOMPARE(value->currentValue().toInt(), 50);
        QCOMPARE(value->minimumValue().toInt(), 0);
        QCOMPARE(value->maximumValue().toInt(), 100);
        QCOMPARE(nameOf(part(sheet, u"cancelWork"_s)), u"Annulla"_s);
    }

    void cancelled_data()
    {
        QTest::addColumn<std::function<void(ProgressSheet&)>>("way");
        using Way = std::function<void(ProgressSheet&)>;
        QTest::newRow("by its button") << Way([](ProgressSheet& sheet) { press(sheet, u"Annulla"_s); });
        QTest::newRow("by Escape") << Way(
            [](ProgressSheet& sheet) { QTest::keyClick(sheet.focusWidget(), Qt::Key_Escape); });
        QTest::newRow("by the keys") << Way([](ProgressSheet& sheet) {
            QTest::keyClick(sheet.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(sheet.focusWidget(), Qt::Key_Space);
        });
        QTest::newRow("closed") << Way([](ProgressSheet& sheet) { sheet.close(); });
    }

    /// The sheet does not wait for the work to notice.
    void cancelled()
    {
        using Way = std::function<void(ProgressSheet&)>;
        QFETCH(Way, way);
        Under u;
        way(u.sheet());
        QVERIFY(u.progress->isCancelled());
        settle();
        QVERIFY(!u.isOpen());
        QTRY_VERIFY(u.field->hasFocus());
        u.showing.reset();
        settle();
        QVERIFY(!u.isOpen());
    }

    /// Whoever was typing when the sheet came shall not cancel by that.
    void keysOfSomebodyTypingDoNothing()
    {
        Under u;
        ProgressSheet& sheet = u.sheet();
        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A, Qt::Key_Enter})
            QTest::keyClick(sheet.focusWidget(), key);
        QVERIFY(!u.progress->isCancelled());
        QVERIFY(u.isOpen());
    }

    void goesWithTheWork()
    {
        Under u;
        u.sheet();
        u.showing.reset();
        QVERIFY(!u.isOpen());
        QVERIFY(!u.progress->isCancelled());
        settle();
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{u.window.get()});
        QTRY_VERIFY(u.field->hasFocus());
    }

    void cancelledBeforeThereIsASheet()
    {
        Under u;
        u.begin();
        u.progress->cancel();
        settle();
        QVERIFY(!u.isOpen());
    }

    void standsOverTheSheetInFront()
    {
        Under u;
        Alert* const notice = Alert::notice(u.window.get(), u"Errore"_s, u"Un avviso"_s);
        QVERIFY(QTest::qWaitForWindowActive(notice));
        u.begin();
        settle();
        const auto& sheet = openDialog<ProgressSheet>(*notice);
        QCOMPARE(sheet.parentWidget(), notice);
    }

    void waitsForADialogThatCameLater()
    {
        Under u;
        u.begin();
        Alert* const notice = Alert::notice(u.window.get(), u"Errore"_s, u"Un avviso"_s);
        QVERIFY(QTest::qWaitForWindowActive(notice));
        settle();
        QVERIFY(!u.isOpen());
        notice->close();
        QTRY_VERIFY(u.isOpen());
    }

    void waitsForAMenuThatIsOpen()
    {
        Under u;
        u.begin();
        QMenu menu(u.window.get());
        menu.addAction(u"Apri"_s);
        menu.popup(u.window->mapToGlobal(QPoint(10, 10)));
        settle();
        QVERIFY(!u.isOpen());
        menu.close();
        QTRY_VERIFY(u.isOpen());
    }

    void theWindowMayGo()
    {
        Under u;
        u.sheet();
        u.window.reset();
        u.showing.reset();
        settle();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void theWindowMayGoBeforeThereIsASheet()
    {
        Under u;
        u.begin();
        u.window.reset();
        QWidget another;
        activate(another);
        QTRY_VERIFY(findDialog<ProgressSheet>(another));
    }
};

ABISSORA_TEST(tst_DesktopProgressPanel);
#include "tst_DesktopProgressPanel.moc"
