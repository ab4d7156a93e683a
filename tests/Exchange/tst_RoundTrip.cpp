// SPDX-License-Identifier: MIT
#include "Export.h"
#include "ImportStage.h"
#include "RandomRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

constexpr int rounds = 60;

/// What a table can hold: days, and no ids.
class AtWholeDays
{
public:
    explicit AtWholeDays(Calendar calendar)
        : m_calendar(std::move(calendar))
    {}

    QList<Equipment> operator()(QList<Equipment> items) const
    {
        for (Equipment& item : items) {
            item.id = {};
            toDay(item.purchaseDate);
            toDay(item.lastServiceDate);
            toDay(item.nextServiceDate);
            for (Maintenance& record : item.maintenanceHistory) {
                record.id = {};
                toDay(record.date);
                toDay(record.nextServiceDate);
            }
        }
        return items;
    }

private:
    void toDay(Instant& instant) const
    {
        instant = m_calendar.instant(m_calendar.local(instant).date(), QTime(12, 0)).value();
    }

    Calendar m_calendar;
};

} // namespace

/// What leaves a register and comes into an empty one is the same, whatever the texts hold.
class tst_RoundTrip : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void registers()
    {
        QRandomGenerator random(20'260'615);
        for (int round = 0; round < rounds / 5; ++round) {
            test::ImportStage stage;
            const QList<Equipment> items = test::randomRegister(random, stage.types, stage.almanac);
            const QByteArray text =
                exported(ExportForm::Register, {items, stage.types.types(), stage.calendar, stage.clock.now(), {}, {}});
            if (!items.isEmpty())
                stage.import(stage.plan(text));
            QCOMPARE(stage.equipment.equipment(), items);
            QCOMPARE(decodeEquipment(stage.content(test::registerFile)).value(), items);
        }
    }

    void tables_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("zone");
        for (const char* locale : {"it_IT", "en_US", "de_DE"}) {
            for (const char* zone : {"Europe/Rome", "Pacific/Honolulu", "Pacific/Kiritimati"})
                QTest::addRow("%s %s", locale, zone) << QString::fromLatin1(locale) << QByteArray(zone);
        }
    }

    void tables()
    {
        QFETCH(QString, locale);
        QFETCH(QByteArray, zone);
        const Calendar calendar{QTimeZone(zone)};
        QRandomGenerator random(quint32(qHash(locale + QString::fromLatin1(zone), 7)));
        test::ImportStage stage;
        const Almanac almanac{stage.clock, calendar, DateFormat(QLocale(locale), calendar)};
        for (int round = 0; round < rounds; ++round) {
            const QList<Equipment> items = test::randomRegister(random, stage.types, almanac);
            const ExportSource source{items, {}, calendar, stage.clock.now(), QLocale(locale), {}};
            QList<Equipment> imported;
            for (const ExportForm form : {ExportForm::Items, ExportForm::Records}) {
                const auto parsed = parseImport({}, exported(form, source));
                if (!parsed) { // there are no rows
                    QCOMPARE(parsed.error(), u"Nel file non ci sono righe sotto le intestazioni."_s);
                    continue;
                }
                ImportPlan plan(*parsed, {imported, stage.types.types(), calendar, stage.clock.now(), u"€"_s});
                QCOMPARE(plan.faults(5), QStringList());
                for (qsizetype row = 0; row < plan.rows().size(); ++row)
                    plan.setChosen(row, true); // two items may be of one make
                addImported(imported, plan.records(stage.ids));
            }
            const AtWholeDays wholeDays(calendar);
            QCOMPARE(imported.size(), items.size());
            for (qsizetype i = 0; i < items.size(); ++i)
                QCOMPARE(QString::fromUtf8(encode(wholeDays({imported.at(i)})).value()),
                         QString::fromUtf8(encode(wholeDays({items.at(i)})).value()));
        }
    }
};

ABISSORA_TEST(tst_RoundTrip);
#include "tst_RoundTrip.moc"
