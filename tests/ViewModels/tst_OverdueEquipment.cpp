// SPDX-License-Identifier: MIT
#include "EquipmentViewModel.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using std::chrono::hours;
using std::chrono::minutes;
using test::at;

namespace {

QList<Equipment> dueAt(const QList<Instant>& instants)
{
    QList<Equipment> equipment;
    for (const Instant instant : instants) {
        equipment.append(test::equipment(static_cast<int>(equipment.size())));
        equipment.last().nextServiceDate = instant;
    }
    return equipment;
}

} // namespace

class tst_OverdueEquipment : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
    }

    void thirtyDays()
    {
        // Noon in Rome, no clock change near.
        const QList<Equipment> all =
            dueAt({at("2026-07-16T10:00:00Z"), at("2026-07-16T09:59:59.999Z"), at("2026-07-15T10:00:00Z"),
                   at("2026-06-15T10:00:00Z"), at("2020-01-01T00:00:00Z"), at("2027-01-01T00:00:00Z")});
        QCOMPARE(overdue(all, m_files->calendar), all.mid(1, 4));
    }

    void inactiveItemsNever()
    {
        QList<Equipment> all = dueAt({at("2020-01-01T00:00:00Z"), at("2026-06-20T00:00:00Z")});
        all[0].isActive = false;
        QCOMPARE(overdue(all, m_files->calendar), all.mid(1));
        all[1].isActive = false;
        QCOMPARE(overdue(all, m_files->calendar), QList<Equipment>());
    }

    void catalogueOrderAndSilence()
    {
        const QList<Equipment> all =
            dueAt({at("2026-06-20T00:00:00Z"), at("2020-01-01T00:00:00Z"), at("2026-07-01T00:00:00Z")});
        m_files->console.clear();
        const auto viewModel = viewModelOf(all, m_files->calendar);
        m_files->console.clear();
        QCOMPARE(copied(viewModel->overdueEquipment()), all);
        QCOMPARE(m_files->console.calls(), QStringList());
    }

    void filtersDoNotMatter()
    {
        const QList<Equipment> all = dueAt({at("2026-06-20T00:00:00Z")});
        const auto viewModel = viewModelOf(all, m_files->calendar);
        viewModel->filterByTypeName(u"Torcia"_s);
        viewModel->setSearchText(u"zzz"_s);
        QCOMPARE(copied(viewModel->overdueEquipment()), all);
    }

    void theClockGoesOn()
    {
        const QList<Equipment> all = dueAt({at("2026-07-16T10:00:00Z")});
        const auto viewModel = viewModelOf(all, m_files->calendar);
        QCOMPARE(viewModel->overdueEquipment().size(), 0);
        m_files->clock.advance(std::chrono::milliseconds(1));
        QCOMPARE(viewModel->overdueEquipment().size(), 1);
    }

    void theLastEvening()
    {
        // Already the year 10000 in Rome.
        const QList<Equipment> all = dueAt({at("9999-12-31T22:59:59Z"), at("9999-12-31T23:00:00Z")});
        QCOMPARE(overdue(all, m_files->calendar), QList<Equipment>());
        m_files->clock.set(at("9999-12-20T10:00:00Z"));
        QCOMPARE(overdue(all, m_files->calendar), all);
    }

    void allWhenTheCalendarCannotCount()
    {
        const QList<Equipment> all = dueAt({at("2020-01-01T00:00:00Z"), at("9999-12-31T23:00:00Z")});
        m_files->clock.set(firstInstant - std::chrono::milliseconds(1));
        QCOMPARE(overdue(all, m_files->calendar), all);
    }

    void freshSamples()
    {
        const EquipmentViewModel viewModel(m_files->storageManager(), m_files->documents, m_files->console,
                                           m_files->clock, m_files->calendar);
        const auto due = viewModel.overdueEquipment();
        QCOMPARE(due.size(), 2);
        QCOMPARE(due.at(0)->type, EquipmentType::bcd);
        QCOMPARE(due.at(1)->type, EquipmentType::computer);
    }

    void aroundClockChanges_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("Rome, into summer") << QByteArray("Europe/Rome") << QByteArray("2026-02-20T00:00:00Z");
        QTest::newRow("Rome, into winter") << QByteArray("Europe/Rome") << QByteArray("2026-09-18T00:00:00Z");
        QTest::newRow("half an hour") << QByteArray("Australia/Lord_Howe") << QByteArray("2026-02-27T00:00:00Z");
        QTest::newRow("at midnight") << QByteArray("America/Santiago") << QByteArray("2026-07-30T00:00:00Z");
        QTest::newRow("UTC") << QByteArray("UTC") << QByteArray("2026-02-20T00:00:00Z");
    }

    /// An item is not due from the same time of day on, 31 dates later.
    void aroundClockChanges()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QByteArray, begin);
        const QTimeZone timeZone(zone);
        const Calendar calendar(timeZone);
        const auto viewModel = viewModelOf(everyHalfHour(at(begin.constData()) + hours(24 * 28)), calendar);
        int compared = 0;
        for (Instant now = at(begin.constData()); now < at(begin.constData()) + hours(24 * 12); now += minutes(97)) {
            const QDateTime local = calendar.local(now);
            const QDateTime limit(local.date().addDays(31), local.time(), timeZone);
            if (limit.time() != local.time() || limit.addSecs(3600).time() == local.time() ||
                limit.addSecs(-3600).time() == local.time())
                continue; // skipped by the clock, or there twice
            m_files->clock.set(now);
            const auto due = std::count_if(
                viewModel->equipment().begin(), viewModel->equipment().end(), [&limit](const Equipment& item) {
                    return item.nextServiceDate.time_since_epoch().count() < limit.toMSecsSinceEpoch();
                });
            QCOMPARE(viewModel->overdueEquipment().size(), due);
            QVERIFY(due > 0 && due < viewModel->equipment().size());
            ++compared;
        }
        QVERIFY(compared > 150);
    }

private:
    static QList<Equipment> copied(const QList<const Equipment*>& items)
    {
        QList<Equipment> copies;
        for (const Equipment* item : items)
            copies.append(*item);
        return copies;
    }

    static QList<Equipment> everyHalfHour(Instant begin)
    {
        QList<Instant> instants;
        for (int i = 0; i < 48 * 17; ++i)
            instants.append(begin + minutes(30 * i) + minutes(i % 29));
        return dueAt(instants);
    }

    std::unique_ptr<EquipmentViewModel> viewModelOf(const QList<Equipment>& all, const Calendar& calendar)
    {
        m_files->write(test::registerFile, encode(all).value());
        return std::make_unique<EquipmentViewModel>(m_files->storageManager(), m_files->documents, m_files->console,
                                                    m_files->clock, calendar);
    }

    QList<Equipment> overdue(const QList<Equipment>& all, const Calendar& calendar)
    {
        const auto viewModel = viewModelOf({}, calendar);
        for (const Equipment& item : all)
            viewModel->addEquipment(item); // with milliseconds, which storing would cut off
        return copied(viewModel->overdueEquipment());
    }

    std::optional<test::TemporaryRegister> m_files;
};

ABISSORA_TEST(tst_OverdueEquipment);
#include "tst_OverdueEquipment.moc"
