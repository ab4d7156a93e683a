// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "Literals.h"
#include "ScriptedHttpClient.h"
#include "TestRunner.h"
#include "UpdateChecker.h"

#include <QTest>
#include <QTimeZone>

using namespace abissora;
using Case = UpdateCheckError::Case;

namespace {

const Product product{u"Autrice"_s, QUrl(u"https://abissora.example/"_s),
                      QUrl(u"https://abissora.example/novita/version.json"_s)};

/// The checker of a release that runs.
struct Running
{
    Running(const QString& version, const QString& build)
        : package(test::release(version, build))
    {}

    UpdateCheckResult after(const HttpResult& answer)
    {
        auto task = checker.checkForUpdates();
        http.answer(answer);
        return QCoro::waitFor(task);
    }
    UpdateCheckResult after(int status, const QByteArray& body) { return after(HttpResponse{status, body}); }

    test::FakePackageInformation package;
    test::FixedClock clock;
    AppInfo info{package, clock, Calendar(QTimeZone::utc())};
    test::ScriptedHttpClient http;
    UpdateChecker checker{http, info, product};
};

QByteArray manifest(const QByteArray& version, int build, const QByteArray& address = "https://abissora.example/")
{
    return "{\"version\":\"" + version + "\",\"build\":" + QByteArray::number(build) + ",\"downloadURL\":\"" + address +
           "\"}";
}

UpdateCheckResult failed(Case which)
{
    return tl::unexpected(UpdateCheckFailure(UpdateCheckError{which}));
}

const UpdateCheckResult current = std::optional<UpdateInfo>();

} // namespace

class tst_UpdateChecker : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void versions_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("order");
        const auto row = [](const char* a, const char* b, int order) {
            QTest::newRow(qPrintable(u"%1 and %2"_s.arg(QLatin1String(a), QLatin1String(b))))
                << QString::fromUtf8(a) << QString::fromUtf8(b) << order;
        };
        row("1.3", "1.3.0", 0);
        row("1.2", "1.2.0.0", 0);
        row("1.2.0.1", "1.2", 1);
        row("1.10.0", "1.9.9", 1);
        row("2.0-beta", "1.9", 1);
        row("2.0-beta", "2", 0);
        row("2.0-beta", "2.0.1", -1);
        row("1..2.", "1.2", 0);
        row("...", "", 0);
        row("", "0.0.1", -1);
        row("", "—", 0);
        row("—", "0.0.0", 0);
        row("0.1", "—", 1);
        row("1.2.beta.3", "1.2.3", 0);
        row("1.2-rc1", "1", 0);
        row("v1.2", "2", 0);
        row("+1.2", "1.2", 0);
        row("-1", "0", -1);
        row("-1", "", -1);
        row("1.-2", "1", -1);
        row("01.002", "1.2", 0);
        row(" 1.2", "2", 0);
        row("1 .2", "2", 0);
        row("1.2\n", "1", 0);
        row("+-1.2", "2", 0);
        row("++1.2", "2", 0);
        row("+.2", "2", 0);
        row("-.2", "2", 0);
        row("1,2", "0", 0);
        row("1e3.2", "2", 0);
        row("0x10.2", "2", 0);
        row("٣.2", "2", 0);
        row("9223372036854775807", "9223372036854775806", 1);
        row("9223372036854775808.2", "2", 0);
        row("-9223372036854775808", "-9223372036854775807", -1);
        row("-9223372036854775809.2", "2", 0);
        row("-9223372036854775808", "9223372036854775807", -1);
    }

    void versions()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, order);
        QCOMPARE(UpdateChecker::compareVersions(a, b), order);
        QCOMPARE(UpdateChecker::compareVersions(b, a), -order);
        QCOMPARE(UpdateChecker::compareVersions(a, a), 0);
    }

    void aNulEndsNoNumber()
    {
        const QString withNul = u"9"_s + QChar(0) + u".2"_s;
        QCOMPARE(UpdateChecker::compareVersions(withNul, u"2"_s), 0);
    }

    void newer_data()
    {
        QTest::addColumn<QString>("runningVersion");
        QTest::addColumn<QString>("runningBuild");
        QTest::addColumn<QString>("version");
        QTest::addColumn<int>("build");
        QTest::addColumn<bool>("isNewer");
        const auto row = [](const char* runningVersion, const char* runningBuild, const char* version, int build,
                            bool isNewer) {
            const QString name =
                u"%1 (%2) and %3 (%4)"_s.arg(QLatin1String(runningVersion), QLatin1String(runningBuild),
                                             QLatin1String(version), QString::number(build));
            QTest::newRow(qPrintable(name)) << QString::fromUtf8(runningVersion) << QString::fromUtf8(runningBuild)
                                            << QString::fromUtf8(version) << build << isNewer;
        };
        row("1.9.9", "500", "1.10.0", 1, true);
        row("1.10.0", "1", "1.9.9", 500, false);
        row("1.9", "1", "2.0-beta", 0, true);
        row("1.3.0", "56", "1.3", 57, true);
        row("1.3.0", "57", "1.3", 57, false);
        row("1.3.0", "58", "1.3", 57, false);
        row("1.3.0", "abc", "1.3.0", 57, true);
        row("1.3.0", "abc", "1.3.0", 0, false);
        row("1.3.0", "", "1.3.0", 1, true);
        row("1.3.0", "—", "1.3.0", 1, true);
        row("1.3.0", "—", "1.3.0", 0, false);
        row("1.3.0", "—", "1.3.0", -1, false);
        row("1.3.0", " 57", "1.3.0", 1, true);
        row("1.3.0", "57a", "1.3.0", 1, true);
        row("1.3.0", "+57", "1.3.0", 57, false);
        row("1.3.0", "-5", "1.3.0", -4, true);
        row("1.3.0", "99999999999999999999", "1.3.0", 1, true);
        row("—", "—", "0.0.1", -5, true);
        row("—", "—", "0.0.0", 0, false);
        row("—", "—", "0.0", 1, true);
        row("—", "—", "beta", 1, true);
    }

    void newer()
    {
        QFETCH(QString, runningVersion);
        QFETCH(QString, runningBuild);
        QFETCH(QString, version);
        QFETCH(int, build);
        QFETCH(bool, isNewer);
        const Running running(runningVersion, runningBuild);
        QCOMPARE(running.checker.isNewer(version, build), isNewer);
    }

    void asksTheManifestOnce()
    {
        Running running(u"1.2.0"_s, u"42"_s);
        QCOMPARE(running.http.requested(), QList<QUrl>());
        auto task = running.checker.checkForUpdates();
        QVERIFY(!task.isReady());
        QCOMPARE(running.http.requested(), QList<QUrl>({product.manifestURL}));
        running.http.answer(200, manifest("1.2.0", 42));
        QVERIFY(task.isReady());
        QCOMPARE(running.http.requested().size(), 1);
    }

    void mayGoBeforeTheAnswer()
    {
        test::ScriptedHttpClient http;
        QCoro::Task<UpdateCheckResult> task;
        {
            Running running(u"1.2.0"_s, u"42"_s);
            task = UpdateChecker(http, running.info, product).checkForUpdates();
        }
        http.answer(200, manifest("1.3.0", 57));
        QCOMPARE(QCoro::waitFor(task),
                 UpdateCheckResult(tl::unexpected(UpdateCheckFailure(HttpError{HttpError::Kind::Cancelled, {}}))));
    }

    void answers_data()
    {
        QTest::addColumn<HttpResult>("answer");
        QTest::addColumn<UpdateCheckResult>("result");
        const auto row = [](const char* name, int status, const QByteArray& body, const UpdateCheckResult& result) {
            QTest::newRow(name) << HttpResult(HttpResponse{status, body}) << result;
        };
        const UpdateInfo info{u"1.3.0"_s, 57, QUrl(u"https://abissora.example/"_s), {}};
        UpdateInfo withNotes = info;
        withNotes.releaseNotes = u"Note"_s;
        row("newer", 200, manifest("1.3.0", 57), info);
        row("newer with notes", 200, manifest("1.3.0", 57).replace('}', R"(,"releaseNotes":"Note"})"), withNotes);
        row("equal", 200, manifest("1.2.0", 42), current);
        row("older", 200, manifest("1.1", 99), current);
        row("not found with a manifest", 404, manifest("1.3.0", 57), failed(Case::invalidResponse));
        for (const int status : {0, 199, 201, 202, 203, 204, 206, 302, 304, 400, 401, 403, 500, 503})
            row(qPrintable(QString::number(status)), status, manifest("1.3.0", 57), failed(Case::invalidResponse));
        row("empty", 200, {}, failed(Case::invalidManifest));
        row("no JSON", 200, "<html>", failed(Case::invalidManifest));
        row("text for a build", 200, manifest("1.3.0", 57).replace("57", "\"57\""), failed(Case::invalidManifest));
        row("no address", 200, manifest("1.3.0", 57, "a b"), failed(Case::invalidManifest));
        row("no address though older", 200, manifest("1.0", 1, "a b"), failed(Case::invalidManifest));
        row("no address though equal", 200, manifest("1.2.0", 42, ""), failed(Case::invalidManifest));
        QTest::newRow("too large") << HttpResult(HttpResponse{200, std::nullopt}) << failed(Case::invalidManifest);
        QTest::newRow("error, too large")
            << HttpResult(HttpResponse{500, std::nullopt}) << failed(Case::invalidResponse);
        for (const auto kind : {HttpError::Kind::Transfer, HttpError::Kind::TimedOut, HttpError::Kind::Cancelled}) {
            const HttpError error{kind, u"Host not found"_s};
            QTest::addRow("transport %d", int(kind))
                << HttpResult(tl::unexpected(error)) << UpdateCheckResult(tl::unexpected(UpdateCheckFailure(error)));
        }
    }

    void answers()
    {
        QFETCH(HttpResult, answer);
        QFETCH(UpdateCheckResult, result);
        Running running(u"1.2.0"_s, u"42"_s);
        QVERIFY(running.after(answer) == result);
    }

    void readsTheRunningVersionAfresh()
    {
        Running running(u"1.2.0"_s, u"42"_s);
        QVERIFY(running.after(200, manifest("1.2.0", 43)).value().has_value());
        running.package = test::release(u"1.2.0"_s, u"43"_s);
        QVERIFY(running.after(200, manifest("1.2.0", 43)) == current);
    }

    void errorsHaveDescriptions()
    {
        QCOMPARE(UpdateCheckError{Case::network}.errorDescription(),
                 u"Impossibile contattare il sito. Controlla la connessione."_s);
        QCOMPARE(UpdateCheckError{Case::invalidResponse}.errorDescription(),
                 u"Il server non ha risposto correttamente."_s);
        QCOMPARE(UpdateCheckError{Case::invalidManifest}.errorDescription(),
                 u"Il file di aggiornamento sul sito non è valido."_s);
    }
};

ABISSORA_TEST(tst_UpdateChecker);
#include "tst_UpdateChecker.moc"
