// SPDX-License-Identifier: MIT
#include "WindowState.h"

#include "Literals.h"
#include "LookedAtStates.h"
#include "TestRunner.h"
#include "Umask.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QWidget>
#include <functional>

using namespace abissora;
using namespace abissora::test;

class tst_WindowState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowHasNoMoreThanTheScreen_data()
    {
        QTest::addColumn<QSize>("remembered");
        QTest::addColumn<QRect>("room");
        QTest::addColumn<QSize>("least");
        QTest::addColumn<QSize>("most");
        QTest::newRow("first start") << QSize() << QRect(0, 0, 1366, 740) << QSize(1280, 700) << QSize(1280, 739);
        QTest::newRow("too large") << QSize(3000, 1300) << QRect(0, 28, 1366, 740) << QSize(1300, 700)
                                   << QSize(1366, 739);
        QTest::newRow("as remembered") << QSize(1111, 777) << QRect(0, 0, 1920, 1080) << QSize(1111, 777)
                                       << QSize(1111, 777);
        QTest::newRow("never below its minimum")
            << QSize(3000, 1300) << QRect(0, 0, 800, 600) << QSize(1000, 700) << QSize(1000, 700);
    }

    void theWindowHasNoMoreThanTheScreen()
    {
        QFETCH(const QSize, remembered);
        QFETCH(const QRect, room);
        QFETCH(const QSize, least);
        QFETCH(const QSize, most);
        const QTemporaryDir folder;
        WindowState state(folder.filePath(u"state.ini"_s));
        QWidget window;
        window.setMinimumSize(1000, 700);
        if (remembered.isValid()) {
            window.resize(remembered);
            state.save(window, {});
        }
        state.restore(window, {}, room);
        QCOMPARE(window.size().expandedTo(least), window.size());
        QCOMPARE(window.size().boundedTo(most), window.size());
    }

    void columnsAreRemembered()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"state.ini"_s);
        WindowState(file).saveColumnWidths({0, 120, 0, 90, 0, 0});
        QCOMPARE(WindowState(file).columnWidths(), (QList<int>{0, 120, 0, 90, 0, 0}));
        QVERIFY(WindowState(folder.filePath(u"none.ini"_s)).columnWidths().isEmpty());
    }

    void theFileIsItsOwnersAlone_data()
    {
        QTest::addColumn<std::function<void(const QString&)>>("write");
        QTest::newRow("sizes") << std::function([](const QString& file) { WindowState(file).save(QWidget(), {}); });
        QTest::newRow("columns") << std::function(
            [](const QString& file) { WindowState(file).saveColumnWidths({120}); });
        QTest::newRow("states that were looked at")
            << std::function([](const QString& file) { LookedAtStates(file).add(u"x"_s, {u"x"_s}); });
    }

    void theFileIsItsOwnersAlone()
    {
        QFETCH(const std::function<void(const QString&)>, write);
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"of the program/state.ini"_s);
        const Umask umask(0);
        write(file);
        QVERIFY(QFileInfo(file).size() > 0);
        QCOMPARE(modeOf(file), mode_t{0600});
        QCOMPARE(modeOf(QFileInfo(file).path()), mode_t{0700});
        write(file);
        QCOMPARE(modeOf(file), mode_t{0600});
    }

    void aDamagedFileGivesNoWidths()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"state.ini"_s);
        QSettings(file, QSettings::IniFormat).setValue(u"main/columns"_s, QStringList{u"x"_s, u"12"_s});
        QCOMPARE(WindowState(file).columnWidths(), (QList<int>{0, 12}));
    }
};

ABISSORA_TEST(tst_WindowState);

#include "tst_WindowState.moc"
