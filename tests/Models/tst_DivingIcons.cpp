// SPDX-License-Identifier: MIT
#include "DivingIcons.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSet>
#include <QTest>

using namespace abissora;

namespace {

/// What type records store, in the order of the picker.
const QString identifiers =
    u"dive.regulator dive.bcd dive.tank dive.mask dive.fins dive.wetsuit dive.drysuit dive.computer "
    "dive.light dive.compass gauge.with.dots.needle.bottom.0percent dive.gauge dive.knife dive.reel "
    "balloon.fill dive.weightbelt dive.lifejacket cross.case.fill lungs.fill dive.whistle flag.checkered "
    "antenna.radiowaves.left.and.right bell.and.waves.left.and.right.fill camera.fill "
    "camera.macro.circle.fill suitcase.fill bag.badge.plus wrench.and.screwdriver.fill gearshape.fill "
    "water.waves figure.water.fitness dive.snorkel graduationcap.fill mountain.2.fill sailboat.fill "
    "moon.stars.fill arrow.down.circle.fill wrench.fill bubbles.and.sparkles.fill checkmark.circle.fill "
    "hammer.circle.fill magnifyingglass.circle.fill slider.horizontal.3 questionmark.circle.fill "
    "circle.hexagongrid.fill pencil.circle.fill"_s;

} // namespace

class tst_DivingIcons : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void storedIdentifiers()
    {
        QStringList stored;
        for (const DivingIcons icon : allCases<DivingIcons>())
            stored.append(rawValue(icon));
        QCOMPARE(stored.join(u' '), identifiers);
        QCOMPARE(stored.size(), 46);
        QCOMPARE(rawValue(DivingIcons::regulator), u"dive.regulator"_s);
        QCOMPARE(rawValue(DivingIcons::weightBelt), u"dive.weightbelt"_s);
        QCOMPARE(rawValue(DivingIcons::snorkel), u"dive.snorkel"_s);
        QCOMPARE(rawValue(DivingIcons::custom), u"pencil.circle.fill"_s);
    }

    void everyIconHasANameOfItsOwn()
    {
        QSet<QString> names;
        for (const DivingIcons icon : allCases<DivingIcons>()) {
            QVERIFY(fromRawValue<DivingIcons>(rawValue(icon)) == icon);
            names.insert(displayName(icon));
        }
        QCOMPARE(names.size(), 46);
        QVERIFY(!names.contains(QString()));
        QCOMPARE(displayName(DivingIcons::regulator), u"Erogatore"_s);
        QCOMPARE(displayName(DivingIcons::weightBelt), u"Cintura Zavorra"_s);
        QCOMPARE(displayName(DivingIcons::snorkel), u"Snorkeling"_s);
        QCOMPARE(displayName(DivingIcons::custom), u"Personalizzato"_s);
    }

    void onlyExactIdentifiersCount()
    {
        QVERIFY(!fromRawValue<DivingIcons>(u"Dive.regulator"));
        QVERIFY(!fromRawValue<DivingIcons>(u"dive."));
        QVERIFY(!fromRawValue<DivingIcons>(u"dive.diveComputer"));
        QVERIFY(!fromRawValue<DivingIcons>(u"regulator"));
        QVERIFY(!fromRawValue<DivingIcons>(u""));
    }

    void sectionsOfThePicker()
    {
        const QList<std::pair<QString, qsizetype>> expected{
            {u"Accessori"_s, 8},    {u"Altro"_s, 3},     {u"Attrezzatura Principale"_s, 8}, {u"Comunicazione"_s, 2},
            {u"Manutenzione"_s, 6}, {u"Sicurezza"_s, 5}, {u"Tipi di Immersione"_s, 8},      {u"Varie"_s, 6},
        };
        const auto sections = categorizedDivingIcons();
        QCOMPARE(sections.size(), expected.size());
        for (qsizetype i = 0; i < sections.size(); ++i) {
            QCOMPARE(sections.at(i).title, expected.at(i).first);
            QCOMPARE(sections.at(i).icons.size(), expected.at(i).second);
            QVERIFY(std::ranges::is_sorted(sections.at(i).icons));
            for (const DivingIcons icon : sections.at(i).icons)
                QCOMPARE(category(icon), sections.at(i).title);
        }
        QCOMPARE(category(DivingIcons::diveComputer), u"Attrezzatura Principale"_s);
        QCOMPARE(category(DivingIcons::diveLight), u"Accessori"_s);
        QCOMPARE(category(DivingIcons::spareParts), u"Varie"_s);
        QCOMPARE(category(DivingIcons::other), u"Altro"_s);
    }
};

ABISSORA_TEST(tst_DivingIcons);
#include "tst_DivingIcons.moc"
