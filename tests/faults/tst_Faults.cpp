// SPDX-License-Identifier: MIT
#include "CallPlan.h"
#include "Literals.h"
#include "Operations.h"
#include "TestRunner.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

using namespace abissora;
using test::Operation;

Q_DECLARE_METATYPE(Operation)

namespace {

/// An empty plan ends the one before.
void begin(const QString& plan, const std::optional<ApplicationDirectories>& directories)
{
    if (!test::calls::begin(plan.toStdString(), directories ? directories->root().toStdString() : std::string()))
        qFatal("not a plan: %s", qPrintable(plan));
}

/// How a child that performed an operation ended.
enum class End { Stored, Pending, Killed, Other };

End perform(const ApplicationDirectories& directories, Operation operation, const QString& plan)
{
    const pid_t child = fork();
    if (child == 0) {
        const bool isStored = test::perform(
            directories, operation, [&] { begin(plan, directories); }, [] { begin({}, {}); });
        _exit(isStored ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status))
        return WTERMSIG(status) == SIGKILL ? End::Killed : End::Other;
    switch (WEXITSTATUS(status)) {
    case 0:
        return End::Stored;
    case 1:
        return End::Pending;
    default:
        return End::Other;
    }
}

} // namespace

/// Nothing is lost, whatever goes wrong at whichever call: after a new start the register is the one before or the one
/// after the operation, its documents are there, and nothing unfinished is left.
class tst_Faults : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCall_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QString>("plan"); // %1 is the number of the call
        const std::pair<const char*, QString> faults[] = {{"no space once", u"change@%1=ENOSPC"_s},
                                                          {"a full disk", u"change@%1+=ENOSPC"_s},
                                                          {"EIO", u"change@%1=EIO"_s},
                                                          {"EACCES", u"change@%1=EACCES"_s},
                                                          {"EINTR", u"change@%1=EINTR"_s},
                                                          {"a short write", u"write@%1=short"_s},
                                                          {"killed before", u"change@%1=kill-before"_s},
                                                          {"killed after", u"change@%1=kill-after"_s}};
        for (const Operation operation : test::allOperations) {
            for (const auto& [name, plan] : faults)
                QTest::addRow("%s, %s", test::nameOf(operation), name) << operation << plan;
        }
    }

    void everyCall()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, plan);
        const Reference reference = refer(operation);
        QVERIFY2(reference.calls >= 5, qPrintable(QString::number(reference.calls)));

        const bool kills = plan.contains(u"kill"_s);
        const bool harmless = plan.endsWith(u"EINTR"_s) || plan.endsWith(u"short"_s);
        for (int at = 1; at <= reference.calls; ++at) {
            const QTemporaryDir folder;
            const ApplicationDirectories directories = copyOf(reference, folder);
            const End end = perform(directories, operation, plan.arg(at));
            ++m_faults;
            QVERIFY(end != End::Other);
            QCOMPARE(end == End::Killed, kills);
            const test::Finding finding = test::inspect(directories);
            const auto where = [at](const QString& what) -> QString {
                return u"at call %1: %2"_s.arg(QString::number(at), what);
            };
            QVERIFY2(finding.complaints.isEmpty(), qPrintable(where(finding.complaints.join(u"; "_s))));
            const bool isNeighbour = finding.state == reference.before || finding.state == reference.after;
            QVERIFY2(isNeighbour, qPrintable(where(u"another state"_s)));
            if (harmless)
                QVERIFY2(finding.state == reference.after, qPrintable(where(u"not done"_s)));
            // What could not be stored is stored when it is repeated on a healthy disk.
            if (!kills && operation != Operation::restore && operation != Operation::attach)
                QVERIFY2(end == End::Stored && finding.state == reference.after,
                         qPrintable(where(u"not made up for"_s)));
        }
    }

    void cleanupTestCase() const { qInfo("%d faults injected", m_faults); }

private:
    struct Reference
    {
        std::shared_ptr<QTemporaryDir> folder;
        QByteArray before;
        QByteArray after;
        int calls = 0;
    };

    static QString registerIn(const QTemporaryDir& folder) { return folder.filePath(u"registro"_s); }

    static ApplicationDirectories copyOf(const Reference& reference, const QTemporaryDir& folder)
    {
        std::filesystem::copy(reference.folder->path().toStdString(), folder.path().toStdString(),
                              std::filesystem::copy_options::recursive);
        return ApplicationDirectories(registerIn(folder), true);
    }

    /// The prepared folder, what the operation makes of it when nothing goes wrong, and how many calls it takes.
    static Reference refer(Operation operation)
    {
        Reference reference{std::make_shared<QTemporaryDir>(), {}, {}, 0};
        const ApplicationDirectories prepared(registerIn(*reference.folder), true);
        test::prepare(prepared, operation);
        const QTemporaryDir untouched;
        reference.before = test::inspect(copyOf(reference, untouched)).state;

        const QTemporaryDir folder;
        const ApplicationDirectories directories = copyOf(reference, folder);
        test::perform(
            directories, operation, [&] { begin(u"change@1000000=EIO"_s, directories); },
            [&] {
                reference.calls = int(test::calls::changes());
                begin({}, {});
            });
        reference.after = test::inspect(directories).state;
        return reference;
    }

    int m_faults = 0;
};

ABISSORA_TEST(tst_Faults);
#include "tst_Faults.moc"
