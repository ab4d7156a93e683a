// SPDX-License-Identifier: MIT
#include "EarlierStateRow.h"

#include "Builders.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSet>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

struct Rome
{
    explicit Rome(const char* now)
        : clock(at(now))
    {}

    [[nodiscard]] Almanac almanac() const
    {
        return {clock, calendar, DateFormat(QLocale(QLocale::Italian, QLocale::Italy), calendar)};
    }

    FixedClock clock;
    Calendar calendar{QTimeZone("Europe/Rome")};
};

EarlierState state(const char* kept, Occasion occasion = Occasion::deletedItem)
{
    return {stateName(at(kept), occasion), {}, at(kept), occasion, {}};
}

StateContent content(qsizetype items, int records)
{
    StateContent content;
    content.equipment.isStored = true;
    for (int i = 0; i < items; ++i)
        content.equipment.records.append(equipment(i + 1));
    for (int i = 0; i < records; ++i)
        content.equipment.records.first().maintenanceHistory.append(maintenance(100 + i));
    content.equipment.total = items;
    return content;
}

StateContent damaged(qsizetype items, qsizetype total)
{
    StateContent damaged = content(items, 0);
    damaged.equipment.total = total;
    damaged.equipment.error = u"[3].name: is missing"_s;
    return damaged;
}

constexpr std::array allOccasions{
    Occasion::change,      Occasion::firstOfDay,  Occasion::deletedDocument, Occasion::deletedRecord,
    Occasion::deletedItem, Occasion::deletedType, Occasion::typesReset,      Occasion::iconsMigrated,
    Occasion::import,      Occasion::restoration, Occasion::unknownMembers,  Occasion::foreignBytes,
    Occasion::unreadable,  Occasion::emergency,
};

} // namespace

class tst_EarlierStateRow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dateAndTimeAreThoseOfTheZone()
    {
        const Rome rome("2026-11-21T20:00:00Z");
        const EarlierStateRow row = EarlierStateRow::of(state("2026-11-21T17:42:05Z"), content(12, 31), rome.almanac());
        QCOMPARE(row.when, u"21 nov 2026, 18:42"_s);
        QCOMPARE(row.counts, u"12 articoli · 31 manutenzioni"_s);
        QCOMPARE(row.occasion, u"Prima di eliminare un articolo"_s);
        QVERIFY(!row.isWarning);
        QCOMPARE(EarlierStateRow::of(state("2026-06-30T22:05:00Z"), content(1, 0), rome.almanac()).when,
                 u"1 lug 2026, 00:05"_s);
    }

    void counts_data()
    {
        QTest::addColumn<int>("items");
        QTest::addColumn<int>("records");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << 0 << 0 << u"nessun articolo · nessuna manutenzione"_s;
        QTest::newRow("one") << 1 << 1 << u"1 articolo · 1 manutenzione"_s;
        QTest::newRow("one without") << 1 << 0 << u"1 articolo · nessuna manutenzione"_s;
        QTest::newRow("two") << 2 << 2 << u"2 articoli · 2 manutenzioni"_s;
    }

    void counts()
    {
        QFETCH(int, items);
        QFETCH(int, records);
        const Rome rome("2026-11-21T20:00:00Z");
        QTEST(EarlierStateRow::of(state("2026-11-21T17:42:05Z"), content(items, records), rome.almanac()).counts,
              "text");
    }

    void everyOccasionHasItsTextAndItsSymbol()
    {
        const Rome rome("2026-11-21T20:00:00Z");
        QSet<QString> texts;
        QSet<QString> symbols;
        for (const Occasion occasion : allOccasions) {
            const EarlierStateRow row =
                EarlierStateRow::of(state("2026-11-21T17:42:05Z", occasion), content(1, 0), rome.almanac());
            QVERIFY(!row.occasion.isEmpty() && !row.symbol.isEmpty());
            texts.insert(row.occasion);
            symbols.insert(row.symbol);
            QCOMPARE(row.isWarning, occasion >= Occasion::unreadable);
        }
        QCOMPARE(texts.size(), qsizetype(allOccasions.size()));
        QCOMPARE(symbols.size(), qsizetype(allOccasions.size()));
        QVERIFY(texts.contains(u"Con dati di un'altra versione"_s));
        QVERIFY(texts.contains(u"Non salvato alla chiusura"_s));
    }

    void whatCannotBeReadIsCounted()
    {
        const Rome rome("2026-11-21T20:00:00Z");
        const EarlierState unreadable = state("2026-11-14T16:50:00Z", Occasion::unreadable);
        EarlierStateRow row = EarlierStateRow::of(unreadable, damaged(299, 300), rome.almanac());
        QCOMPARE(row.occasion, u"Dati non leggibili: leggibili 299 articoli su 300"_s);
        QCOMPARE(row.counts, u"299 articoli · nessuna manutenzione"_s);
        QVERIFY(row.isWarning);

        StateContent types = content(1, 0);
        types.types.isStored = true;
        types.types.total = 16;
        types.types.error = u"[3].name: is missing"_s;
        for (int i = 0; i < 15; ++i)
            types.types.records.append(equipmentType(i + 1, u"Tipo"_s));
        row = EarlierStateRow::of(unreadable, types, rome.almanac());
        QCOMPARE(row.occasion, u"Dati non leggibili: leggibili 15 tipologie su 16"_s);
        types.equipment = damaged(1, 2).equipment;
        row = EarlierStateRow::of(unreadable, types, rome.almanac());
        QCOMPARE(row.occasion, u"Dati non leggibili: leggibili 1 articolo su 2, 15 tipologie su 16"_s);
        types.equipment = {};
        QCOMPARE(EarlierStateRow::of(unreadable, types, rome.almanac()).counts, u"15 tipologie"_s);
    }

    void damagedLaterItWarnsToo()
    {
        const Rome rome("2026-11-21T20:00:00Z");
        const EarlierStateRow row = EarlierStateRow::of(state("2026-11-14T16:50:00Z"), damaged(0, 0), rome.almanac());
        QCOMPARE(row.occasion, u"Dati non leggibili"_s);
        QCOMPARE(row.counts, u"Niente di leggibile"_s);
        QCOMPARE(row.symbol, u"exclamationmark.triangle.fill"_s);
        QVERIFY(row.isWarning);
        QCOMPARE(EarlierStateRow::of(state("2026-11-14T16:50:00Z"), StateContent(), rome.almanac()), row);
    }

    void whatCanBeRestored()
    {
        QVERIFY(canBeRestored(content(2, 0)));
        QVERIFY(canBeRestored(content(0, 0)));
        QVERIFY(canBeRestored(damaged(1, 300)));
        QVERIFY(!canBeRestored(damaged(0, 300)));
        QVERIFY(!canBeRestored(StateContent()));
        StateContent types;
        types.types.isStored = true;
        QVERIFY(canBeRestored(types));
        types.equipment = damaged(0, 300).equipment; // the types alone are no state of the register
        QVERIFY(!canBeRestored(types));
    }

    void groups_data()
    {
        QTest::addColumn<QByteArray>("kept");
        QTest::addColumn<QByteArray>("now");
        QTest::addColumn<QString>("title");
        const auto row = [](const char* name, const char* kept, const char* now, const QString& title) {
            QTest::newRow(name) << QByteArray(kept) << QByteArray(now) << title;
        };
        row("today", "2026-11-21T08:00:00Z", "2026-11-21T20:00:00Z", u"Oggi"_s);
        row("just after midnight", "2026-11-20T23:00:00Z", "2026-11-21T20:00:00Z", u"Oggi"_s);
        row("just before midnight", "2026-11-20T22:59:59Z", "2026-11-21T20:00:00Z", u"Ieri"_s);
        row("midnight passes", "2026-11-21T22:59:00Z", "2026-11-21T23:01:00Z", u"Ieri"_s);
        row("yesterday's first minute", "2026-11-19T23:00:00Z", "2026-11-21T20:00:00Z", u"Ieri"_s);
        row("the day before", "2026-11-19T22:59:00Z", "2026-11-21T20:00:00Z", u"Novembre"_s);
        row("in summer time", "2026-06-30T22:00:00Z", "2026-11-21T20:00:00Z", u"Luglio"_s);
        row("another year", "2025-11-21T20:00:00Z", "2026-11-21T20:00:00Z", u"Novembre 2025"_s);
        row("the year in Rome", "2025-12-31T23:30:00Z", "2026-11-21T20:00:00Z", u"Gennaio"_s);
        row("yesterday was another year", "2025-12-31T12:00:00Z", "2026-01-01T12:00:00Z", u"Ieri"_s);
        row("the clock went back", "2026-12-24T12:00:00Z", "2026-11-21T20:00:00Z", u"Dicembre"_s);
    }

    void groups()
    {
        QFETCH(QByteArray, kept);
        QFETCH(QByteArray, now);
        const Rome rome(now.constData());
        QTEST(groupTitle(state(kept.constData()), rome.almanac()), "title");
        QCOMPARE(groupTitle(state(kept.constData(), Occasion::emergency), rome.almanac()), u"Non salvato"_s);
    }
};

ABISSORA_TEST(tst_EarlierStateRow);
#include "tst_EarlierStateRow.moc"
