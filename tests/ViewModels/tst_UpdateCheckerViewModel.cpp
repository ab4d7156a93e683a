// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "Literals.h"
#include "ScriptedHttpClient.h"
#include "TestRunner.h"
#include "Timeline.h"
#include "UpdateCheckerViewModel.h"

#include <QTest>
#include <QTimeZone>

using namespace abissora;

namespace {

const Product product{u"Autrice"_s, QUrl(u"https://abissora.example/"_s),
                      QUrl(u"https://abissora.example/version.json"_s)};

const QByteArray
    newer(R"({"version":"1.3.0","build":57,"downloadURL":"https://abissora.example/","releaseNotes":"a"})");
const QByteArray newest = QByteArray(newer).replace("1.3.0", "1.4.0");
const QByteArray current = QByteArray(newer).replace("1.3.0", "1.2.0").replace("57", "42");

const QString unreachable = u"Impossibile contattare il sito dell'applicazione."_s;

UpdateInfo offered(const char* version = "1.3.0")
{
    return {QLatin1String(version), 57, QUrl(u"https://abissora.example/"_s), u"a"_s};
}

} // namespace

class tst_UpdateCheckerViewModel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_clock = {};
        m_http.emplace();
        m_checker.emplace(*m_http, m_info, product);
        m_updates.emplace(*m_checker, m_clock);
        m_timeline.emplace();
        m_timeline->follow(*m_updates);
    }

    void cleanup()
    {
        m_updates.reset();
        m_http.reset();
    }

    void startsEmptyAndSilent()
    {
        compareState(false, {}, {}, {});
        QCOMPARE(m_http->requested(), QList<QUrl>());
        QCOMPARE(m_timeline->take(), QStringList());
    }

    void findsANewerRelease()
    {
        auto task = m_updates->checkForUpdates();
        compareState(true, {}, {}, {});
        QCOMPARE(m_timeline->take(), notices({"isCheckingChanged", "lastErrorChanged", "availableUpdateChanged"}));
        m_clock.advance(std::chrono::seconds(5));
        m_http->answer(200, newer);
        compareState(false, offered(), {}, m_clock.now());
        QCOMPARE(m_timeline->take(), notices({"availableUpdateChanged", "lastCheckedAtChanged", "isCheckingChanged"}));
        QCOMPARE(QCoro::waitFor(task), std::optional(offered()));
    }

    void valuesAreThereBeforeTheNotice()
    {
        QStringList seen;
        connect(&*m_updates, &UpdateCheckerViewModel::changed, this, [&] {
            seen.append(u"%1%2%3%4"_s.arg(m_updates->isChecking())
                            .arg(m_updates->lastError().has_value())
                            .arg(m_updates->availableUpdate().has_value())
                            .arg(m_updates->lastCheckedAt().has_value()));
        });
        m_updates->checkForUpdates();
        m_http->answer(200, newer);
        QCOMPARE(seen.join(u' '), u"1000 1000 1000 1010 1011 0011"_s);
        seen.clear();
        m_updates->checkForUpdates();
        m_http->answer(500, {});
        QCOMPARE(seen.join(u' '), u"1011 1011 1001 1101 0101"_s);
    }

    void isUpToDate()
    {
        auto task = m_updates->checkForUpdates();
        m_http->answer(200, current);
        compareState(false, {}, {}, m_clock.now());
        QCOMPARE(QCoro::waitFor(task), std::optional<UpdateInfo>());
    }

    void failures_data()
    {
        QTest::addColumn<HttpResult>("answer");
        QTest::addColumn<QString>("text");
        QTest::newRow("status") << HttpResult(HttpResponse{500, newer})
                                << u"Il server non ha risposto correttamente."_s;
        QTest::newRow("manifest") << HttpResult(HttpResponse{200, QByteArray("{}")})
                                  << u"Il file di aggiornamento sul sito non è valido."_s;
        for (const auto kind : {HttpError::Kind::Transfer, HttpError::Kind::TimedOut, HttpError::Kind::Cancelled})
            QTest::addRow("transport %d", int(kind))
                << HttpResult(tl::unexpected(HttpError{kind, u"Connection refused"_s})) << unreachable;
    }

    void failures()
    {
        QFETCH(HttpResult, answer);
        QFETCH(QString, text);
        m_updates->checkForUpdates();
        m_http->answer(200, newer);
        const Instant before = m_clock.now();
        m_clock.advance(std::chrono::hours(1));
        m_timeline->take();

        auto task = m_updates->checkForUpdates();
        compareState(true, {}, {}, before);
        m_timeline->take();
        m_http->answer(answer);
        compareState(false, {}, text, before);
        QCOMPARE(m_timeline->take(), notices({"lastErrorChanged", "isCheckingChanged"}));
        QCOMPARE(QCoro::waitFor(task), std::optional<UpdateInfo>());

        m_updates->checkForUpdates();
        compareState(true, {}, {}, before);
        m_http->answer(200, current);
        compareState(false, {}, {}, m_clock.now());
    }

    void theOfferCanBeDismissed()
    {
        m_updates->checkForUpdates();
        m_http->answer(200, newer);
        m_timeline->take();
        m_updates->clearAvailableUpdate();
        compareState(false, {}, {}, m_clock.now());
        QCOMPARE(m_timeline->take(), notices({"availableUpdateChanged"}));
    }

    void checksMayOverlap()
    {
        auto first = m_updates->checkForUpdates();
        auto second = m_updates->checkForUpdates();
        QCOMPARE(m_http->open(), 2);
        m_http->answer(HttpResponse{200, newest}, 1);
        compareState(false, offered("1.4.0"), {}, m_clock.now());
        m_http->answer(500, {});
        compareState(false, offered("1.4.0"), u"Il server non ha risposto correttamente."_s, m_clock.now());
        QCOMPARE(QCoro::waitFor(first), std::optional<UpdateInfo>());
        QCOMPARE(QCoro::waitFor(second), std::optional(offered("1.4.0")));
    }

    void aCheckMayBeginWhenOneEnds()
    {
        bool again = true;
        connect(&*m_updates, &UpdateCheckerViewModel::isCheckingChanged, this, [&] {
            if (!m_updates->isChecking() && std::exchange(again, false))
                m_updates->checkForUpdates();
        });
        m_updates->checkForUpdates();
        m_http->answer(500, {});
        compareState(true, {}, {}, {});
        m_http->answer(200, newer);
        compareState(false, offered(), {}, m_clock.now());
    }

    void itMayGoAwayMeanwhile_data()
    {
        QTest::addColumn<HttpResult>("answer");
        QTest::newRow("newer") << HttpResult(HttpResponse{200, newer});
        QTest::newRow("status") << HttpResult(HttpResponse{500, {}});
        QTest::newRow("transport") << HttpResult(tl::unexpected(HttpError{}));
    }

    void itMayGoAwayMeanwhile()
    {
        QFETCH(HttpResult, answer);
        auto first = m_updates->checkForUpdates();
        auto second = m_updates->checkForUpdates();
        m_timeline->take();
        m_updates.reset();
        m_http->answer(answer);
        m_http->answer(answer);
        QCOMPARE(m_timeline->take(), QStringList());
        QCOMPARE(QCoro::waitFor(first), std::optional<UpdateInfo>());
        QCOMPARE(QCoro::waitFor(second), std::optional<UpdateInfo>());
    }

    void theClientMayGoAwayMeanwhile()
    {
        auto task = m_updates->checkForUpdates();
        m_http.reset();
        compareState(false, {}, unreachable, {});
        QVERIFY(task.isReady());
    }

private:
    void compareState(bool checking, const std::optional<UpdateInfo>& update, const std::optional<QString>& error,
                      const std::optional<Instant>& checkedAt)
    {
        QCOMPARE(m_updates->isChecking(), checking);
        QCOMPARE(m_updates->availableUpdate(), update);
        QCOMPARE(m_updates->lastError(), error);
        QCOMPARE(m_updates->lastCheckedAt(), checkedAt);
    }

    /// Each with the common one, which was connected first.
    static QStringList notices(std::initializer_list<const char*> names)
    {
        QStringList notices;
        for (const char* name : names)
            notices << u"<%1>"_s.arg(QLatin1String(name)) << u"<changed>"_s;
        return notices;
    }

    test::FixedClock m_clock;
    test::FakePackageInformation m_package = test::release(u"1.2.0"_s, u"42"_s);
    AppInfo m_info{m_package, m_clock, Calendar(QTimeZone::utc())};
    std::optional<test::ScriptedHttpClient> m_http;
    std::optional<UpdateChecker> m_checker;
    std::optional<UpdateCheckerViewModel> m_updates;
    std::optional<test::Timeline> m_timeline;
};

ABISSORA_TEST(tst_UpdateCheckerViewModel);
#include "tst_UpdateCheckerViewModel.moc"
