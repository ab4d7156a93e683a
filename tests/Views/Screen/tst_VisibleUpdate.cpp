// SPDX-License-Identifier: MIT
#include "VisibleUpdate.h"

#include "Gui.h"
#include "TestRunner.h"

#include <QWidget>

using namespace abissora;

class tst_VisibleUpdate : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstShowing()
    {
        QWidget widget;
        int runs = 0;
        VisibleUpdate update(widget, [&runs] { ++runs; });
        test::settle();
        QCOMPARE(runs, 0);
        widget.show();
        QCOMPARE(runs, 1);
        test::settle();
        QCOMPARE(runs, 1);
    }

    void oncePerPassWhileVisible()
    {
        QWidget widget;
        int runs = 0;
        VisibleUpdate update(widget, [&runs] { ++runs; });
        widget.show();
        update.schedule();
        update.schedule();
        QCOMPARE(runs, 1);
        test::settle();
        QCOMPARE(runs, 2);
    }

    void whenNextShownWhileHidden()
    {
        QWidget widget;
        int runs = 0;
        VisibleUpdate update(widget, [&runs] { ++runs; });
        widget.show();
        widget.hide();
        update.schedule();
        update.schedule();
        test::settle();
        QCOMPARE(runs, 1);
        widget.show();
        QCOMPARE(runs, 2);
        widget.hide();
        widget.show();
        QCOMPARE(runs, 2);
    }

    void askedForAndHiddenInTheSamePass()
    {
        QWidget widget;
        int runs = 0;
        VisibleUpdate update(widget, [&runs] { ++runs; });
        widget.show();
        update.schedule();
        widget.hide();
        test::settle();
        QCOMPARE(runs, 1);
        widget.show();
        QCOMPARE(runs, 2);
    }
};

ABISSORA_TEST(tst_VisibleUpdate);

#include "tst_VisibleUpdate.moc"
