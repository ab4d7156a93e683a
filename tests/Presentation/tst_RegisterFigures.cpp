// SPDX-License-Identifier: MIT
#include "RegisterFigures.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

QStringList texts(const QList<RegisterFigure>& figures)
{
    QStringList texts;
    for (const RegisterFigure& figure : figures)
        texts.append(u"%1: %2"_s.arg(figure.title).arg(figure.value));
    return texts;
}

EquipmentTypeModel type(int id, const QString& name, const QString& color)
{
    return {SequentialIds::at(30'000 + id), name, u"dive.tank"_s, color, 365, true};
}

} // namespace

class tst_RegisterFigures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFigureHasItsOwnPlace()
    {
        RegisterSummary summary;
        summary.total = 5;
        summary.active = 4;
        summary.expiring = 3;
        summary.inOrder = 1;
        summary.due = {{}, {}};
        QCOMPARE(texts(overviewFigures(summary)), QStringList({u"Totale Articoli: 5"_s, u"Manutenzioni Scadute: 2"_s,
                                                               u"In Scadenza (30gg): 3"_s, u"In Regola: 1"_s}));
        QCOMPARE(texts(statisticsFigures(summary, 16)),
                 QStringList({u"Totale Attrezzatura: 5"_s, u"Attrezzatura Attiva: 4"_s, u"Manutenzioni Scadute: 2"_s,
                              u"In Scadenza (30gg): 3"_s, u"In Regola: 1"_s, u"Tipologie: 16"_s}));
    }

    void whatCountsForAType()
    {
        const RegisterFixture f;
        QList<Equipment> items;
        const auto add = [&](EquipmentType kind, const std::optional<QString>& custom, bool isActive) {
            Equipment item = makeItem(1, u"x"_s, kind, f.inDays(40));
            item.customTypeName = custom;
            item.isActive = isActive;
            items.append(item);
        };
        add(EquipmentType::bcd, std::nullopt, true);
        add(EquipmentType::bcd, QString(), true); // an empty name counts as absent
        add(EquipmentType::bcd, std::nullopt, false);
        add(EquipmentType::bcd, u"Boa"_s, true);
        add(EquipmentType::mask, std::nullopt, true);
        const QList<EquipmentTypeModel> types{type(1, u"GAV"_s, u"orange"_s), type(2, u"gav"_s, u"blue"_s),
                                              type(3, u"Boa"_s, u"red"_s), type(4, u"Boa"_s, u"green"_s)};
        const auto share = [](const QString& name, NamedColor color, qsizetype count) {
            return TypeShare{name, {u"dive.tank"_s, color}, count};
        };
        // Types of one name count the same items.
        QCOMPARE(typeShares(items, types),
                 QList<TypeShare>({share(u"GAV"_s, NamedColor::orange, 2), share(u"gav"_s, NamedColor::blue, 0),
                                   share(u"Boa"_s, NamedColor::red, 1), share(u"Boa"_s, NamedColor::green, 1)}));
    }

    void dueTexts_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("text");
        QTest::newRow("overdue") << -12 << u"Scaduto da 12 giorni"_s;
        QTest::newRow("a day overdue") << -1 << u"Scaduto da 1 giorni"_s;
        QTest::newRow("today") << 0 << u"Scaduto da 0 giorni"_s;
        QTest::newRow("not yet") << 12 << u"Scaduto da 12 giorni"_s;
        QTest::newRow("long ago") << -3000 << u"Scaduto da 3000 giorni"_s;
    }

    void dueTexts()
    {
        QFETCH(const int, days);
        QFETCH(const QString, text);
        QCOMPARE(dueText({Equipment(), days}), text);
    }

    void noTypes() { QCOMPARE(typeShares(RegisterFixture().equipment.equipment(), {}), QList<TypeShare>()); }
};

ABISSORA_TEST(tst_RegisterFigures);

#include "tst_RegisterFigures.moc"
