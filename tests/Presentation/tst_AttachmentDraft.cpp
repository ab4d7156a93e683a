// SPDX-License-Identifier: MIT
#include "AttachmentDraft.h"

#include "SlotNames.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

/// A record with a receipt, and its draft.
struct Edited
{
    Edited()
        : stored(maintenance(1))
    {
        stored.receiptFileName = r.stored(r.write(u"vecchio.pdf"_s, "%PDF-1.4 old")).value();
        draft = std::make_unique<AttachmentDraft>(r.documents, stored);
    }

    /// Gives the name of the new file.
    QString attach(DocumentSlot slot)
    {
        beginToAttach(slot);
        return draft->name(slot).value();
    }
    void beginToAttach(DocumentSlot slot)
    {
        r.panel.answer(r.write(u"nuovo.pdf"_s, "%PDF-1.4 new"));
        draft->attach(slot);
    }
    [[nodiscard]] QString old() const { return stored.receiptFileName.value(); }
    [[nodiscard]] Maintenance result() const { return draft->appliedTo(stored); }
    [[nodiscard]] QStringList files() const { return r.names(u"MaintenanceDocuments"_s); }

    TemporaryRegister r;
    Maintenance stored;
    std::unique_ptr<AttachmentDraft> draft;
};

} // namespace

class tst_AttachmentDraft : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void untouched()
    {
        Edited e;
        QVERIFY(e.draft->path(receipt));
        QVERIFY(!e.draft->path(certificate));
        e.draft->commit();
        QCOMPARE(e.result(), e.stored);
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void attachedAndSaved()
    {
        Edited e;
        const QString attached = e.attach(certificate);
        QVERIFY(e.draft->path(certificate));
        QCOMPARE(e.files(), QStringList({e.old(), attached}));
        e.draft->commit();
        QCOMPARE(e.result().certificateFileName, std::optional(attached));
        QCOMPARE(e.r.content(u"MaintenanceDocuments/"_s + attached), "%PDF-1.4 new");
        e.draft.reset();
        QCOMPARE(e.files(), QStringList({e.old(), attached}));
    }

    void removedAndCancelled()
    {
        Edited e;
        e.draft->remove(receipt);
        QVERIFY(!e.draft->path(receipt));
        QVERIFY(!e.result().receiptFileName);
        QCOMPARE(e.files(), QStringList(e.old()));
        e.draft->discard();
        QCOMPARE(e.result(), e.stored);
        QCOMPARE(e.r.content(u"MaintenanceDocuments/"_s + e.old()), "%PDF-1.4 old");
    }

    void removedAttachedAndCancelled()
    {
        Edited e;
        e.draft->remove(receipt);
        const QString attached = e.attach(receipt);
        QCOMPARE(e.files(), QStringList({e.old(), attached}));
        e.draft->discard();
        QCOMPARE(e.result(), e.stored);
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void removedAttachedAndSaved()
    {
        Edited e;
        e.draft->remove(receipt);
        const QString attached = e.attach(receipt);
        e.draft->commit();
        QCOMPARE(e.result().receiptFileName, std::optional(attached));
        QCOMPARE(e.files(), QStringList(attached));
    }

    void attachedRemovedAndSaved()
    {
        Edited e;
        e.attach(certificate);
        e.draft->remove(certificate);
        QCOMPARE(e.files().size(), 2);
        e.draft->commit();
        QCOMPARE(e.result(), e.stored);
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void removedAndSaved()
    {
        Edited e;
        e.draft->remove(receipt);
        e.draft->commit();
        QVERIFY(!e.result().receiptFileName);
        QCOMPARE(e.files(), QStringList());
    }

    void attachedTwice()
    {
        Edited e;
        const QString first = e.attach(certificate);
        const QString second = e.attach(certificate);
        QVERIFY(first != second);
        QCOMPARE(e.files(), QStringList({e.old(), first, second}));
        e.draft->commit();
        QCOMPARE(e.result().certificateFileName, std::optional(second));
        QCOMPARE(e.files(), QStringList({e.old(), second}));
    }

    void attachedTwiceAndCancelled()
    {
        Edited e;
        e.attach(receipt);
        e.attach(receipt);
        e.draft->discard();
        QCOMPARE(e.result(), e.stored);
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void twoSlotsOfOneFile()
    {
        Edited e;
        e.stored.certificateFileName = e.stored.receiptFileName;
        AttachmentDraft draft(e.r.documents, e.stored);
        draft.remove(receipt);
        QVERIFY(draft.path(certificate));
        draft.commit();
        QCOMPARE(e.files(), QStringList(e.old()));
        draft.remove(certificate);
        draft.commit();
        QCOMPARE(e.files(), QStringList());
    }

    void cancelledPanelAndFailedCopyChangeNothing()
    {
        Edited e;
        e.draft->attach(receipt);
        e.r.panel.answer(e.r.path(u"non-esiste.pdf"_s));
        e.draft->attach(receipt);
        QCOMPARE(e.r.panel.requests().size(), 2);
        QVERIFY(e.r.console.text().startsWith(u"Errore salvataggio documento: "_s));
        QCOMPARE(e.result(), e.stored);
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void nameOfAMissingFileStaysUntilAnotherTakesItsPlace()
    {
        Edited e;
        e.r.documents.deleteDocument(e.old());
        QVERIFY(!e.draft->path(receipt));
        QCOMPARE(e.result(), e.stored);
        const QString attached = e.attach(receipt);
        e.draft->commit();
        QCOMPARE(e.files(), QStringList(attached));
    }

    void itsEndDiscards()
    {
        Edited e;
        e.draft->remove(receipt);
        e.attach(certificate);
        e.draft.reset();
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void itsEndWhileThePanelIsOpen()
    {
        Edited e;
        e.r.panel.meanwhile([&e] { e.draft.reset(); });
        e.r.panel.answer(e.r.write(u"nuovo.pdf"_s, "%PDF-1.4 new"));
        e.draft->attach(certificate);
        QVERIFY(!e.draft);
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void theSlotIsFilledOnceTheCopyIsThere()
    {
        Edited e;
        e.r.work.beSlow();
        const QSignalSpy changed(e.draft.get(), &AttachmentDraft::changed);
        e.beginToAttach(certificate);
        QVERIFY(e.draft->isCopying());
        QVERIFY(e.draft->isCopying(certificate) && !e.draft->isCopying(receipt));
        QVERIFY(!e.draft->name(certificate));
        QCOMPARE(changed.size(), 0);
        e.r.work.finish();
        QCOMPARE(changed.size(), 1);
        QVERIFY(!e.draft->isCopying());
        QVERIFY(e.draft->path(certificate));
        e.draft->commit();
        QCOMPARE(e.files(), QStringList({e.old(), e.result().certificateFileName.value()}));
    }

    void attachTellsWhetherSomethingCameOfIt()
    {
        Edited e;
        QVERIFY(!QCoro::waitFor(e.draft->attach(certificate)));
        e.r.panel.answer(e.r.write(u"appunti.pdf"_s, "no document"));
        QVERIFY(!QCoro::waitFor(e.draft->attach(certificate)));
        e.r.panel.answer(e.r.write(u"nuovo.pdf"_s, "%PDF-1.4 new"));
        QVERIFY(QCoro::waitFor(e.draft->attach(certificate)));
    }

    void oneCopyForASlotAtATime()
    {
        Edited e;
        e.r.work.beSlow();
        e.beginToAttach(certificate);
        e.draft->attach(certificate);
        QCOMPARE(e.r.panel.requests().size(), 1);
        e.beginToAttach(receipt);
        QCOMPARE(e.r.work.held(), 2);
        e.r.work.finish(1);
        QVERIFY(e.draft->isCopying());
        e.r.work.finish();
        QVERIFY(!e.draft->isCopying());
        QCOMPARE(e.files().size(), 3);
        e.draft->discard();
        QCOMPARE(e.files(), QStringList(e.old()));
    }

    void oneSlotAtATimeWhileThePanelIsOpen()
    {
        Edited e;
        e.r.panel.meanwhile([&e] { e.draft->attach(certificate); });
        e.draft->attach(certificate);
        QCOMPARE(e.r.panel.requests().size(), 1);
    }

    void whatEndsACopy_data()
    {
        QTest::addColumn<std::function<void(Edited&)>>("end");
        using End = std::function<void(Edited&)>;
        QTest::newRow("the draft ends") << End([](Edited& e) { e.draft.reset(); });
        QTest::newRow("discarded") << End([](Edited& e) { e.draft->discard(); });
        QTest::newRow("committed") << End([](Edited& e) { e.draft->commit(); });
        QTest::newRow("removed") << End([](Edited& e) { e.draft->remove(certificate); });
        QTest::newRow("the person") << End([](Edited& e) { e.r.work.progress().cancel(); });
    }

    void whatEndsACopy()
    {
        using End = std::function<void(Edited&)>;
        QFETCH(End, end);
        Edited e;
        e.r.work.beSlow();
        e.beginToAttach(certificate);
        end(e);
        QVERIFY(!e.draft || !e.draft->isCopying());
        QVERIFY(e.r.work.progress().isCancelled());
        e.r.work.finish();
        QCOMPARE(e.files(), QStringList(e.old()));
        QVERIFY(!e.draft || e.result() == e.stored);
        QCOMPARE(e.r.console.calls(), QStringList());
    }

    void aCopyThatEndsAfterItsSuccessor()
    {
        Edited e;
        e.r.work.beSlow();
        e.beginToAttach(certificate);
        e.r.work.progress().cancel();
        e.beginToAttach(certificate);
        e.r.work.finish(1);
        const QString attached = e.draft->name(certificate).value();
        e.r.work.finish();
        QCOMPARE(e.draft->name(certificate), std::optional(attached));
        QCOMPARE(e.files(), QStringList({e.old(), attached}));
    }

    void aCancelledCopyThatEndsDuringItsSuccessor()
    {
        Edited e;
        e.r.work.beSlow();
        e.beginToAttach(certificate);
        e.r.work.progress().cancel();
        e.beginToAttach(certificate);
        e.r.work.finish();
        QVERIFY(e.draft->isCopying(certificate));
        e.r.work.finish();
        QVERIFY(e.draft->name(certificate));
    }
};

ABISSORA_TEST(tst_AttachmentDraft);

#include "tst_AttachmentDraft.moc"
