// SPDX-License-Identifier: MIT
#include "Opening.h"

#include "Alert.h"
#include "Fakes.h"
#include "Gui.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

const QUrl address(u"https://abissora.example/"_s);

struct SlowOpening
{
    SlowOpening()
    {
        opener.beSlow();
        window.show();
    }

    /// Deleted by itself or with the window.
    QWidget window;
    QPointer<QWidget> place = new QWidget(&window);
    RecordingOpener opener;
};

} // namespace

class tst_Opening : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLateFailureIsTold()
    {
        SlowOpening s;
        const auto page = openPage(address, s.opener, *s.place);
        QVERIFY(!page.isReady());
        QVERIFY(!isDialogOpen(s.window));
        s.opener.answer(false);
        QVERIFY(page.isReady());
        QCOMPARE(openDialog<Alert>(s.window).windowTitle(), u"Pagina non aperta"_s);
    }

    void aLateSuccessNeedsNoWord()
    {
        SlowOpening s;
        const auto document = openDocument(u"/a.pdf"_s, s.opener, *s.place);
        QCOMPARE(s.opener.opened(), QList<QUrl>{QUrl::fromLocalFile(u"/a.pdf"_s)});
        s.opener.answer(true);
        QVERIFY(document.isReady());
        QVERIFY(!isDialogOpen(s.window));
    }

    void aPlaceThatIsGoneIsToldNothing()
    {
        SlowOpening s;
        openDocument(u"/a.pdf"_s, s.opener, *s.place);
        delete s.place;
        s.opener.answer(false);
        QVERIFY(!isDialogOpen(s.window));
    }

    void whatIsAwaitedIsNotAskedForAgain()
    {
        SlowOpening s;
        openPage(address, s.opener, *s.place);
        openPage(address, s.opener, *s.place);
        QCOMPARE(s.opener.opened(), QList<QUrl>{address});
        openPage(QUrl(u"https://altrove.example/"_s), s.opener, *s.place);
        QCOMPARE(s.opener.opened().size(), 2);
        s.opener.answer(true);
        s.opener.answer(true);
        openPage(address, s.opener, *s.place);
        QCOMPARE(s.opener.opened().size(), 3);
    }

    void longAddressesAreCutInTheNotice()
    {
        SlowOpening s;
        openPage(QUrl(u"https://abissora.example/?"_s + QString(10'000, u'a')), s.opener, *s.place);
        s.opener.answer(false);
        QVERIFY(openDialog<Alert>(s.window).message().size() < 400);
    }
};

ABISSORA_TEST(tst_Opening);

#include "tst_Opening.moc"
