// SPDX-License-Identifier: MIT
#include "GatedWork.h"
#include "IoChecks.h"
#include "Literals.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

const QString documentsFolder = u"MaintenanceDocuments"_s;
const QByteArray pdf = QByteArray("%PDF-1.7\n").repeated(100'000);

using Stored = std::optional<std::optional<QString>>;

QCoro::Task<> storeInto(Stored& stored, MaintenanceDocumentStore& documents, QString source,
                        std::shared_ptr<WorkProgress> progress = std::make_shared<WorkProgress>())
{
    stored = co_await documents.store(source, progress);
}

QCoro::Task<> pickInto(Stored& stored, MaintenanceDocumentStore& documents, QString current,
                       std::shared_ptr<WorkProgress> progress = std::make_shared<WorkProgress>())
{
    stored = co_await documents.pickPDFAndStore(current, progress);
}

/// Something happens before the work begins, or between its end and its answer.
class InterruptedWork final : public LongWork
{
public:
    enum class Moment { Before, After };
    using Interruption = std::function<void(WorkProgress&)>;

    InterruptedWork(Moment moment, Interruption interruption)
        : m_moment(moment)
        , m_interruption(std::move(interruption))
    {}

    QCoro::Task<IoResult<void>> run(QString /*title*/, Function work, std::shared_ptr<WorkProgress> progress) override
    {
        if (m_moment == Moment::Before)
            m_interruption(*progress);
        m_outcome = work(*progress);
        if (m_moment == Moment::After)
            m_interruption(*progress);
        co_return outcome(); // what is not const would be moved away
    }
    [[nodiscard]] const IoResult<void>& outcome() const { return m_outcome; }

private:
    Moment m_moment;
    Interruption m_interruption;
    IoResult<void> m_outcome;
};

const auto before = InterruptedWork::Moment::Before;
const auto after = InterruptedWork::Moment::After;

} // namespace

/// Copies that take a while.
class tst_DocumentCopies : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theAnswerComesWithTheCopy()
    {
        TemporaryRegister files;
        files.work.beSlow();
        files.panel.grantAccess(true);
        files.write(documentsFolder + u"/old.pdf"_s, "old");
        const QString source = files.write(u"a.pdf"_s, pdf);
        files.panel.answer(source);
        const auto progress = std::make_shared<WorkProgress>();
        Stored stored;
        pickInto(stored, files.documents, u"old.pdf"_s, progress);
        QVERIFY(!stored);
        QCOMPARE(files.work.titles(), QStringList{u"Copia del documento…"_s});
        QCOMPARE(files.names(documentsFolder), QStringList{u"old.pdf"_s});
        QCOMPARE(files.panel.ended(), QStringList());
        files.work.finish();
        QCOMPARE(files.names(documentsFolder), QStringList{stored.value().value()});
        QCOMPARE(files.content(documentsFolder + u'/' + **stored), pdf);
        QCOMPARE(files.panel.ended(), QStringList{source});
        QCOMPARE(progress->fraction(), 1.0);
    }

    void cancelled()
    {
        TemporaryRegister files;
        files.work.beSlow();
        files.write(documentsFolder + u"/old.pdf"_s, "old");
        files.panel.answer(files.write(u"a.pdf"_s, pdf));
        const auto progress = std::make_shared<WorkProgress>();
        Stored stored;
        pickInto(stored, files.documents, u"old.pdf"_s, progress);
        progress->cancel();
        files.work.finish();
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(documentsFolder), QStringList{u"old.pdf"_s});
        QCOMPARE(files.console.calls(), QStringList());
    }

    void cancelledWhenTheCopyIsThere()
    {
        TemporaryRegister files;
        InterruptedWork work(after, [](WorkProgress& progress) { progress.cancel(); });
        MaintenanceDocumentStore documents(files.path(documentsFolder), files.archive, files.panel, work, files.ids,
                                           files.console);
        Stored stored;
        storeInto(stored, documents, files.write(u"a.pdf"_s, pdf));
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(documentsFolder), QStringList());
        QCOMPARE(files.console.calls(), QStringList());
    }

    void cancelledWhileThePanelIsOpen()
    {
        TemporaryRegister files;
        const auto progress = std::make_shared<WorkProgress>();
        files.panel.meanwhile([&progress] { progress->cancel(); });
        files.panel.answer(files.write(u"a.pdf"_s, pdf));
        Stored stored;
        pickInto(stored, files.documents, {}, progress);
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.work.titles(), QStringList());
        QCOMPARE(files.names(u"."_s), QStringList{u"a.pdf"_s});
    }

    void theStoreMayGo()
    {
        TemporaryRegister files;
        files.work.beSlow();
        files.panel.grantAccess(true);
        const QString source = files.write(u"a.pdf"_s, pdf);
        auto documents = std::make_unique<MaintenanceDocumentStore>(files.path(documentsFolder), files.archive,
                                                                    files.panel, files.work, files.ids, files.console);
        Stored stored;
        storeInto(stored, *documents, source);
        documents.reset();
        files.work.finish();
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(documentsFolder), QStringList());
        QCOMPARE(files.panel.ended(), QStringList{source});
        QCOMPARE(files.console.calls(), QStringList());
    }

    void aStoreThatGoesEndsItsCopies()
    {
        TemporaryRegister files;
        std::unique_ptr<MaintenanceDocumentStore> documents;
        InterruptedWork work(before, [&documents](WorkProgress&) { documents.reset(); });
        documents = std::make_unique<MaintenanceDocumentStore>(files.path(documentsFolder), files.archive, files.panel,
                                                               work, files.ids, files.console);
        Stored stored;
        storeInto(stored, *documents, files.write(u"a.pdf"_s, pdf));
        VERIFY_FAILED(work.outcome(), ECANCELED);
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(documentsFolder), QStringList());
    }

    void theStoreMayGoWhenTheCopyIsThere()
    {
        TemporaryRegister files;
        std::unique_ptr<MaintenanceDocumentStore> documents;
        InterruptedWork work(after, [&documents](WorkProgress&) { documents.reset(); });
        documents = std::make_unique<MaintenanceDocumentStore>(files.path(documentsFolder), files.archive, files.panel,
                                                               work, files.ids, files.console);
        Stored stored;
        storeInto(stored, *documents, files.write(u"a.pdf"_s, pdf));
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(documentsFolder), QStringList());
    }

    void theStoreMayGoWhileThePanelIsOpen()
    {
        TemporaryRegister files;
        auto documents = std::make_unique<MaintenanceDocumentStore>(files.path(documentsFolder), files.archive,
                                                                    files.panel, files.work, files.ids, files.console);
        files.panel.meanwhile([&documents] { documents.reset(); });
        files.panel.answer(files.write(u"a.pdf"_s, pdf));
        Stored stored;
        pickInto(stored, *documents, u"a.pdf"_s);
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(u"."_s), QStringList{u"a.pdf"_s});
    }

    void onAThreadEverythingGoesOnMeanwhile()
    {
        TemporaryRegister files;
        FakeProgressPanel panel;
        GatedWork work(panel);
        MaintenanceDocumentStore documents(files.path(documentsFolder), files.archive, files.panel, work, files.ids,
                                           files.console);
        Stored stored;
        storeInto(stored, documents, files.write(u"a.pdf"_s, pdf));
        bool turned = false;
        QMetaObject::invokeMethod(
            this, [&turned] { turned = true; }, Qt::QueuedConnection);
        QTRY_VERIFY(turned);
        QVERIFY(!stored);
        QCOMPARE(panel.titles(), QStringList{u"Copia del documento…"_s});
        work.open();
        QTRY_VERIFY(stored);
        QCOMPARE(files.names(documentsFolder), QStringList{stored->value()});
        QCOMPARE(files.content(documentsFolder + u'/' + **stored), pdf);
    }

    void onAThreadTheStoreAndTheWorkMayGo()
    {
        TemporaryRegister files;
        FakeProgressPanel panel;
        auto work = std::make_unique<GatedWork>(panel);
        auto documents = std::make_unique<MaintenanceDocumentStore>(files.path(documentsFolder), files.archive,
                                                                    files.panel, *work, files.ids, files.console);
        Stored stored;
        storeInto(stored, *documents, files.write(u"a.pdf"_s, pdf));
        documents.reset();
        work.reset(); // waits for its thread
        QCOMPARE(stored.value(), std::nullopt);
        QCOMPARE(files.names(documentsFolder), QStringList());
    }
};

ABISSORA_TEST(tst_DocumentCopies);
#include "tst_DocumentCopies.moc"
