// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "FileDrop.h"
#include "FileDropping.h"

#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

class tst_FileDrop : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheFilesItWants()
    {
        QWidget target;
        target.resize(200, 100);
        FileDrop drop(target,
                      [](const QString& path, QPoint place) { return path.endsWith(".csv"_L1) && place.x() < 100; });
        QSignalSpy dropped(&drop, &FileDrop::dropped);
        QVERIFY(dropOn(target, {20, 10}, {QUrl::fromLocalFile(u"/home/anna/a.csv"_s)}));
        QCOMPARE(dropped.size(), 1);
        QCOMPARE(dropped.first().first().toString(), u"/home/anna/a.csv"_s);
        QCOMPARE(dropped.first().last().toPoint(), QPoint(20, 10));
    }

    void refusesEverythingElse_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<Qt::DropActions>("actions");
        const QUrl table = QUrl::fromLocalFile(u"/home/anna/a.csv"_s);
        const Qt::DropActions copy = Qt::CopyAction;
        QTest::newRow("another file") << QList{QUrl::fromLocalFile(u"/home/anna/a.pdf"_s)} << QPoint(1, 1) << copy;
        QTest::newRow("two files") << QList{table, table} << QPoint(1, 1) << copy;
        QTest::newRow("a page") << QList{QUrl(u"https://abissora.example/a.csv"_s)} << QPoint(1, 1) << copy;
        QTest::newRow("no file") << QList<QUrl>() << QPoint(1, 1) << copy;
        QTest::newRow("another place") << QList{table} << QPoint(150, 1) << copy;
        QTest::newRow("what may only be moved") << QList{table} << QPoint(1, 1) << Qt::DropActions(Qt::MoveAction);
    }
    void refusesEverythingElse()
    {
        QFETCH(QList<QUrl>, urls);
        QFETCH(QPoint, place);
        QFETCH(Qt::DropActions, actions);
        QWidget target;
        target.resize(200, 100);
        FileDrop drop(target, [](const QString& path, QPoint at) { return path.endsWith(".csv"_L1) && at.x() < 100; });
        const QSignalSpy dropped(&drop, &FileDrop::dropped);
        QVERIFY(!dropOn(target, place, urls, actions));
        QCOMPARE(dropped.size(), 0);
    }
};

ABISSORA_TEST(tst_FileDrop);
#include "tst_FileDrop.moc"
