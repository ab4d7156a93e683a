// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "ShellFixture.h"
#include "TestRunner.h"
#include "Theme.h"

using namespace abissora;
using namespace abissora::test;

namespace {

/// The windows that were shown while it lives. A widget that is shown before it has its parent is one for a moment: it
/// flashes, and takes the keyboard from the window that it will be part of.
class ShownWindows final : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }

    [[nodiscard]] const QStringList& names() const { return m_names; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const widget = qobject_cast<const QWidget*>(watched);
        if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow())
            m_names.append(QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName());
        return false;
    }

private:
    QStringList m_names;
};

} // namespace

/// Making a screen shows nothing, and what comes into it later is no window of its own.
class tst_StrayWindows : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void makingAScreenShowsNothing()
    {
        ShellFixture f(QList{itemOfTwo(), equipment(4)});
        for (int occasion = 0; occasion < 2; ++occasion) { // with the first, then with a state to go back to
            QWidget window;
            ScreenFactory& screens = f;
            const Equipment item = f.equipment.equipment().first();
            const ShownWindows shown;
            const std::unique_ptr<QWidget> made[]{
                std::unique_ptr<QWidget>(screens.makeSidebar()),
                std::unique_ptr<QWidget>(screens.makeList()),
                std::unique_ptr<QWidget>(screens.makeDetail(item)),
                std::unique_ptr<QWidget>(screens.makeOverview()),
                std::unique_ptr<QWidget>(screens.makeStatistics()),
                std::unique_ptr<QWidget>(screens.makeSettings()),
                std::unique_ptr<QWidget>(screens.makeFormForNew(std::nullopt, &window)),
                std::unique_ptr<QWidget>(screens.makeFormForNew(item, &window)),
                std::unique_ptr<QWidget>(screens.makeFormFor(item, &window)),
                std::unique_ptr<QWidget>(screens.makePrint(item, &window)),
                std::unique_ptr<QWidget>(screens.makePrint(std::nullopt, &window)),
                std::unique_ptr<QWidget>(screens.makeRestore(&window)),
            };
            settle();
            QCOMPARE(shown.names(), QStringList());
            QVERIFY(std::ranges::all_of(made, [](const auto& screen) { return screen != nullptr; }));
            f.equipment.deleteEquipment(f.equipment.equipment().last());
        }
    }

    void whatAStateChangesIsNoWindow()
    {
        ShellFixture f(QList{itemOfTwo(), equipment(4)});
        f.equipment.deleteEquipment(f.equipment.equipment().last());
        f.equipment.deleteEquipment(f.equipment.equipment().last());
        QWidget window;
        window.resize(1280, 800);
        activate(window);
        const ShownWindows shown;
        ViewSheet* const sheet = f.makeRestore(&window);
        sheet->open();
        settle();
        for (int state = 0; state < 3; ++state) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            settle();
        }
        QVERIFY(isShown(*sheet, u"difference"));
        QCOMPARE(shown.names(), QStringList{u"abissora::ViewSheet "_s + sheet->objectName()});
    }

private:
    static Equipment itemOfTwo() { return equipmentWith(1, {maintenance(2), maintenance(3)}); }
};

ABISSORA_TEST(tst_StrayWindows);
#include "tst_StrayWindows.moc"
