// SPDX-License-Identifier: MIT
#include "Answer.h"
#include "RestoreParts.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

QAccessibleInterface& reader(QWidget& widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
    settle();
}

QCoro::Task<IoResult<void>> given(Answer<IoResult<void>>& answer)
{
    co_return co_await answer.given();
}

} // namespace

class tst_RestoreView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void theNewestStateIsChosenAtFirst()
    {
        KeptRegister f;
        const ShownRestore s(f);
        QCOMPARE(s.sheet->windowTitle(), u"Ripristina"_s);
        QCOMPARE(s.states().size(), 4);
        QCOMPARE(s.chosen(), 0);
        QVERIFY(s.states().constFirst()->hasFocus());
        QCOMPARE(s.states().constFirst()->text(), u"14 giu 2026, 12:00"_s);
        QCOMPARE(textOf(*s.sheet, u"stateTitle"), u"14 giugno 2026, 12:00"_s);
        QCOMPARE(textOf(*s.sheet, u"stateSubtitle"), u"Che cosa cambia rispetto ad adesso"_s);
        QCOMPARE(s.differences(),
                 (QStringList{u"Boa, nessuna manutenzione"_s, u"Pinne, Nome: Pinne → Pinne lunghe"_s}));
    }

    void groupsHaveTheirTitles()
    {
        KeptRegister f;
        const ShownRestore s(f);
        QStringList titles;
        for (const QLabel* label : s.sheet->findChildren<QLabel*>(u"stateGroup"_s)) {
            if (label->isVisible())
                titles.append(label->text());
        }
        titles.sort();
        QCOMPARE(titles, (QStringList{u"Aprile"_s, u"Febbraio"_s, u"Ieri"_s, u"Marzo"_s}));
    }

    void aClickChooses()
    {
        KeptRegister f;
        ShownRestore s(f);
        QTest::mouseClick(s.states().at(1), Qt::LeftButton);
        settle();
        QCOMPARE(s.chosen(), 1);
        QCOMPARE(textOf(*s.sheet, u"stateSubtitle"), u"Uguale ad adesso"_s);
        QVERIFY(s.differences().isEmpty());
        QTest::mouseClick(s.states().at(1), Qt::LeftButton); // again: it stays chosen
        QCOMPARE(s.chosen(), 1);
        QTest::mouseClick(s.states().at(0), Qt::LeftButton);
        settle();
        QCOMPARE(s.differences().size(), 2);
    }

    void whatIsReadSlowlySaysSo()
    {
        KeptRegister f;
        ShownRestore s(f);
        f.work.beSlow();
        QTest::mouseClick(s.states().at(1), Qt::LeftButton);
        QCOMPARE(s.differences().size(), 2); // of the one before, for a moment
        click(*s.sheet, u"restore");
        QCOMPARE(s.asked, QStringList()); // neither the one before nor one that nobody has seen
        QTRY_COMPARE(textOf(*s.sheet, u"stateSubtitle"), u"Lettura in corso…"_s);
        QCOMPARE(textOf(*s.sheet, u"stateTitle"), u"1 aprile 2026, 12:00"_s);
        QVERIFY(s.differences().isEmpty());
        QVERIFY(!part(*s.sheet, u"restore").isEnabled());
        f.work.finish();
        settle();
        QCOMPARE(textOf(*s.sheet, u"stateSubtitle"), u"Uguale ad adesso"_s);
        click(*s.sheet, u"restore");
        QCOMPARE(s.asked, QStringList{oldState});
    }

    void keysChoose()
    {
        KeptRegister f;
        ShownRestore s(f);
        press(Qt::Key_Down);
        QCOMPARE(s.chosen(), 1);
        QCOMPARE(textOf(*s.sheet, u"stateTitle"), u"1 aprile 2026, 12:00"_s);
        press(Qt::Key_Space);
        QCOMPARE(s.chosen(), 1);
        press(Qt::Key_End);
        QCOMPARE(s.chosen(), 3);
        press(Qt::Key_Up);
        QCOMPARE(s.chosen(), 2);
        press(Qt::Key_Home);
        QCOMPARE(s.chosen(), 0);
    }

    void tabPassesTheChosenStateOnly()
    {
        KeptRegister f;
        ShownRestore s(f);
        press(Qt::Key_Down);
        QCOMPARE(tabOrder(*s.sheet), (QStringList{u"state"_s, u"cancel"_s, u"restore"_s}));
        QCOMPARE(s.chosen(), 1);
    }

    void whatIsRead()
    {
        KeptRegister f;
        const ShownRestore s(f);
        StateButton& state = *s.states().at(1);
        QCOMPARE(reader(state).role(), QAccessible::RadioButton);
        QCOMPARE(reader(state).text(QAccessible::Name),
                 u"1 apr 2026, 12:00, 2 articoli · 1 manutenzione, Prima di importare"_s);
        QVERIFY(!reader(state).state().checked);
        QVERIFY(reader(*s.states().constFirst()).state().checked);
        QCOMPARE(reader(part(*s.sheet, u"states"_s)).role(), QAccessible::List);
        QCOMPARE(part(*s.sheet, u"differenceGroup").accessibleName(), u"Tornano: 1"_s);
        reader(state).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(s.chosen(), 1);
    }

    void restoresTheChosenState()
    {
        KeptRegister f;
        ShownRestore s(f);
        press(Qt::Key_Down);
        click(*s.sheet, u"restore");
        QCOMPARE(s.asked, QStringList{oldState});
        QVERIFY(!s.sheet->isVisible());
    }

    void returnOnTheButtonRestores()
    {
        KeptRegister f;
        ShownRestore s(f);
        press(Qt::Key_Return); // on a state nothing is done
        QCOMPARE(s.asked, QStringList());
        press(Qt::Key_Tab);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"restore"_s);
        press(Qt::Key_Return);
        QCOMPARE(s.asked, QStringList{seaState});
        QVERIFY(!s.sheet->isVisible());
    }

    void aFailureIsToldAndTheSheetStays()
    {
        KeptRegister f;
        ShownRestore s(f);
        s.answer = tl::unexpected(IoError{u"No space left on device"_s});
        QVERIFY(!isShown(*s.sheet, u"restoreError"));
        click(*s.sheet, u"restore");
        const QString text = u"Non è stato possibile ripristinare: No space left on device"_s;
        QVERIFY(s.sheet->isVisible());
        QCOMPARE(textOf(*s.sheet, u"restoreError"), text);
        QCOMPARE(reader(part(*s.sheet, u"restoreError")).role(), QAccessible::AlertMessage);
        QCOMPARE(reader(part(*s.sheet, u"restoreError")).text(QAccessible::Name), text);
        QTest::mouseClick(s.states().at(1), Qt::LeftButton); // another state, another try
        settle();
        QVERIFY(!isShown(*s.sheet, u"restoreError"));
        s.answer = {};
        click(*s.sheet, u"restore");
        QVERIFY(!s.sheet->isVisible());
    }

    void aStateIsRestoredOnceAndWaitedFor()
    {
        KeptRegister f;
        LookedAtStates lookedAt(f.directories.windowStateFile());
        Answer<IoResult<void>> answer;
        QList<std::shared_ptr<WorkProgress>> asked;
        const auto restore = [&](const EarlierState&, const std::shared_ptr<WorkProgress>& progress) {
            asked.append(progress);
            return given(answer);
        };
        RestoreView view({f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac}, lookedAt,
                         restore);
        const QSignalSpy closed(&view, &RestoreView::closed);
        settle();
        existing<QPushButton>(view, u"restore").click();
        existing<QPushButton>(view, u"restore").click();
        QCOMPARE(asked.size(), 1);
        QCOMPARE(closed.size(), 0);
        answer.give({});
        settle();
        QCOMPARE(closed.size(), 1);
    }

    void leavingCancelsWhatIsRead()
    {
        KeptRegister f;
        LookedAtStates lookedAt(f.directories.windowStateFile());
        Answer<IoResult<void>> answer;
        std::shared_ptr<WorkProgress> asked;
        const auto restore = [&](const EarlierState&, const std::shared_ptr<WorkProgress>& progress) {
            asked = progress;
            return given(answer);
        };
        auto view = std::make_unique<RestoreView>(
            RestoreContent::Sources{f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac},
            lookedAt, restore);
        settle();
        existing<QPushButton>(*view, u"restore").click();
        QVERIFY(!asked->isCancelled());
        view.reset();
        QVERIFY(asked->isCancelled());
        answer.give({});
        settle();
    }

    void whatRestoresMayEndTheView()
    {
        KeptRegister f;
        ShownRestore s(f);
        RestoreView* view = nullptr;
        const auto end = [&view](const EarlierState&, const std::shared_ptr<WorkProgress>&) {
            delete std::exchange(view, nullptr);
            return ended(tl::unexpected(IoError{u"gone"_s}));
        };
        view = new RestoreView({f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac},
                               s.lookedAt, end);
        settle();
        existing<QPushButton>(*view, u"restore").click();
        QCOMPARE(view, nullptr);
    }

    void nothingReadableCannotBeRestored()
    {
        KeptRegister f;
        ShownRestore s(f);
        press(Qt::Key_End);
        QVERIFY(!part(*s.sheet, u"restore").isEnabled());
        QCOMPARE(textOf(*s.sheet, u"stateSubtitle"), u"Niente di leggibile"_s);
        press(Qt::Key_Up);
        QVERIFY(part(*s.sheet, u"restore").isEnabled());
        QVERIFY(s.states().at(2)->accessibleName().endsWith(u"Dati non leggibili: leggibili 1 articolo su 2"_s));
    }

    void escapeAndCancelClose()
    {
        KeptRegister f;
        ShownRestore s(f);
        press(Qt::Key_Escape);
        QVERIFY(!s.sheet->isVisible());
        ShownRestore again(f);
        click(*again.sheet, u"cancel");
        QVERIFY(!again.sheet->isVisible());
        QVERIFY(s.asked.isEmpty() && again.asked.isEmpty());
    }

    void withoutStates()
    {
        KeptRegister f;
        f.forgetStates();
        const ShownRestore s(f);
        QVERIFY(isShown(*s.sheet, u"noStates"));
        QVERIFY(visibleLabels(*s.sheet).contains(u"Nessuno stato precedente"_s));
        QVERIFY(!isShown(*s.sheet, u"promise"));
        QVERIFY(!part(*s.sheet, u"restore").isEnabled());
        QVERIFY(part(*s.sheet, u"cancel").hasFocus());
        press(Qt::Key_Escape);
        QVERIFY(!s.sheet->isVisible());
    }

    void onlyShownStatesAreRead()
    {
        KeptRegister f;
        for (int i = 10; i < 60; ++i)
            f.keep(u"20260613T1000%1.000Z-import"_s.arg(i), {});
        const ShownRestore s(f);
        QVERIFY(s.states().size() < 20);
        int read = 0;
        for (const StateButton* button : s.sheet->findChildren<StateButton*>())
            read += button->text().isEmpty() ? 0 : 1;
        QVERIFY(read < 20);
        press(Qt::Key_End);
        QCOMPARE(textOf(*s.sheet, u"stateTitle"), u"1 febbraio 2026, 11:00"_s);
    }

    void whatWasLookedAtIsRemembered()
    {
        KeptRegister f;
        QVERIFY(hasStateToLookAt(f.generations.list(), LookedAtStates(f.directories.windowStateFile())));
        {
            ShownRestore s(f);
            QVERIFY(!s.lookedAt.contains(damagedState));
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QVERIFY(s.lookedAt.contains(damagedState));
            QVERIFY(!s.lookedAt.contains(seaState)); // nothing was wrong with it
            QVERIFY(hasStateToLookAt(f.generations.list(), s.lookedAt));
            press(Qt::Key_Down);
            QVERIFY(!hasStateToLookAt(f.generations.list(), s.lookedAt));
        }
        LookedAtStates nextStart(f.directories.windowStateFile());
        QVERIFY(!hasStateToLookAt(f.generations.list(), nextStart));
        nextStart.add(u"x"_s, {u"x"_s, lostState});
        QVERIFY(nextStart.contains(lostState));
        QVERIFY(!nextStart.contains(damagedState)); // is no more
    }
};

ABISSORA_TEST(tst_RestoreView);
#include "tst_RestoreView.moc"
