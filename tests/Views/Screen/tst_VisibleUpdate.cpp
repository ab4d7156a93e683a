// SPDX-License-Identifier: MIT
#include "VisibleUpdate.h"

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
        QCoreApplication::processEvents();
        QCOMPARE(runs, 0);
        widget.show();
        QCOMPARE(runs, 1);
        QCoreApplication::processEvents();
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
        QCoreApplication::processEvents();
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
        QCoreApplication::processEvents();
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
        QCoreApplication::processEvents();
        QCOMPARE(runs, 1);
        widget.show();
        QCOMPARE(runs, 2);
    }
};

ABISSORA_TEST(tst_VisibleUpdate);

#include "tst_VisibleUpdate.moc"
