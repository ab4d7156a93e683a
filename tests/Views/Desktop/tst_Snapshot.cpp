// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "Snapshot.h"
#include "TestRunner.h"

#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

class tst_Snapshot : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ofAWindow()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"finestra.png"_s);
        QLabel window(u"Testo"_s);
        window.resize(120, 60);
        Snapshot taker(window, file);
        QSignalSpy taken(&taker, &Snapshot::taken);
        window.show();
        QTRY_COMPARE(taken.size(), 1);
        QCOMPARE(QImage(file).size(), QSize(120, 60) * window.devicePixelRatio());
    }

    void toNowhere()
    {
        QTemporaryDir folder;
        QLabel window(u"Testo"_s);
        Snapshot taker(window, folder.filePath(u"manca/finestra.png"_s));
        QSignalSpy failed(&taker, &Snapshot::failed);
        window.show();
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.first().first().toString(), u"No such file or directory"_s);
    }

    void ontoAFullDisk()
    {
        QLabel window(u"Testo"_s);
        Snapshot taker(window, u"/dev/full"_s);
        QSignalSpy failed(&taker, &Snapshot::failed);
        window.show();
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.first().first().toString(), u"No space left on device"_s);
    }
};

ABISSORA_TEST(tst_Snapshot);

#include "tst_Snapshot.moc"
