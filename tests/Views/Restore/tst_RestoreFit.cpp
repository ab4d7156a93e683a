// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "RestoreParts.h"
#include "ScaledText.h"
#include "TestRunner.h"
#include "Theme.h"

using namespace abissora;
using namespace abissora::test;

class tst_RestoreFit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void nothingIsClipped_data()
    {
        QTest::addColumn<double>("text");
        QTest::addColumn<QSize>("window");
        QTest::newRow("usual") << 1.0 << QSize(1280, 800);
        QTest::newRow("smallest") << 1.0 << QSize(1000, 700);
        QTest::newRow("larger text") << 1.25 << QSize(1280, 800);
        QTest::newRow("larger text, smallest") << 1.25 << QSize(1000, 700);
    }

    void nothingIsClipped()
    {
        QFETCH(double, text);
        QFETCH(QSize, window);
        const ScaledText scaled(text);
        KeptRegister f;
        ShownRestore s(f, window);
        s.answer = tl::unexpected(IoError{u"No space left on device"_s});
        click(*s.sheet, u"restore");
        settle();
        QCOMPARE(clippedTexts(*s.sheet), QStringList());
        QVERIFY(s.sheet->width() < window.width() && s.sheet->height() < window.height());
        if (text == 1.0)
            QCOMPARE(s.sheet->size(), QSize(860, 600));
    }

    void longNamesGiveWay()
    {
        KeptRegister f;
        f.keep(seaState, {equipment(1, QString(200, u'm')), equipment(7, QString(200, u'm'))});
        const ShownRestore s(f);
        const QWidget& card = part(*s.sheet, u"differences");
        QVERIFY(card.width() < 860);
        for (const QWidget* row : s.sheet->findChildren<QWidget*>(u"difference"_s)) {
            for (const QLabel* label : row->findChildren<QLabel*>()) {
                QVERIFY(row->rect().contains(label->geometry()) || !label->isVisible());
                QVERIFY(label->width() > 20 || !label->isVisible());
            }
        }
        // What stands beside a long name is read in full.
        for (const QLabel* label : s.sheet->findChildren<QLabel*>(u"differenceDetail"_s)) {
            if (label->text() == u"nessuna manutenzione"_s)
                QVERIFY(label->width() >= label->sizeHint().width());
        }
        QVERIFY(part<QLabel>(*s.sheet, u"differenceName").text().size() > 199);
    }
};

ABISSORA_TEST(tst_RestoreFit);
#include "tst_RestoreFit.moc"
