// SPDX-License-Identifier: MIT
#include "DivingIcons.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

struct Row
{
    DivingIcons icon;
    QStringView identifier;
    QStringView name;
    QStringView category;
};

constexpr std::array table{
    Row{DivingIcons::regulator, u"dive.regulator", u"Erogatore", u"Attrezzatura Principale"},
    Row{DivingIcons::bcd, u"dive.bcd", u"GAV", u"Attrezzatura Principale"},
    Row{DivingIcons::tank, u"dive.tank", u"Bombola", u"Attrezzatura Principale"},
    Row{DivingIcons::mask, u"dive.mask", u"Maschera", u"Attrezzatura Principale"},
    Row{DivingIcons::fins, u"dive.fins", u"Pinne", u"Attrezzatura Principale"},
    Row{DivingIcons::wetsuit, u"dive.wetsuit", u"Muta", u"Attrezzatura Principale"},
    Row{DivingIcons::drysuit, u"dive.drysuit", u"Muta Stagna", u"Attrezzatura Principale"},
    Row{DivingIcons::diveComputer, u"dive.computer", u"Computer Sub", u"Attrezzatura Principale"},
    Row{DivingIcons::diveLight, u"dive.light", u"Torcia", u"Accessori"},
    Row{DivingIcons::compass, u"dive.compass", u"Bussola", u"Accessori"},
    Row{DivingIcons::depthGauge, u"gauge.with.dots.needle.bottom.0percent", u"Profondimetro", u"Accessori"},
    Row{DivingIcons::pressureGauge, u"dive.gauge", u"Manometro", u"Accessori"},
    Row{DivingIcons::diveKnife, u"dive.knife", u"Coltello", u"Accessori"},
    Row{DivingIcons::reel, u"dive.reel", u"Bozzello", u"Accessori"},
    Row{DivingIcons::liftBag, u"balloon.fill", u"Sacco Sollevamento", u"Accessori"},
    Row{DivingIcons::weightBelt, u"dive.weightbelt", u"Cintura Zavorra", u"Accessori"},
    Row{DivingIcons::lifeJacket, u"dive.lifejacket", u"Salvagente", u"Sicurezza"},
    Row{DivingIcons::firstAid, u"cross.case.fill", u"Pronto Soccorso", u"Sicurezza"},
    Row{DivingIcons::oxygen, u"lungs.fill", u"Ossigeno", u"Sicurezza"},
    Row{DivingIcons::whistle, u"dive.whistle", u"Fischietto", u"Sicurezza"},
    Row{DivingIcons::safetyMarker, u"flag.checkered", u"Bandiera Sub", u"Sicurezza"},
    Row{DivingIcons::underwaterComms, u"antenna.radiowaves.left.and.right", u"Comunicatore", u"Comunicazione"},
    Row{DivingIcons::diveBell, u"bell.and.waves.left.and.right.fill", u"Campana Sub", u"Comunicazione"},
    Row{DivingIcons::camera, u"camera.fill", u"Fotocamera Sub", u"Varie"},
    Row{DivingIcons::gopro, u"camera.macro.circle.fill", u"Action Cam", u"Varie"},
    Row{DivingIcons::diveBag, u"suitcase.fill", u"Borsa Sub", u"Varie"},
    Row{DivingIcons::finsBag, u"bag.badge.plus", u"Borsa Pinne", u"Varie"},
    Row{DivingIcons::repairKit, u"wrench.and.screwdriver.fill", u"Kit Riparazione", u"Varie"},
    Row{DivingIcons::spareParts, u"gearshape.fill", u"Ricambi", u"Varie"},
    Row{DivingIcons::scuba, u"water.waves", u"Subacquea", u"Tipi di Immersione"},
    Row{DivingIcons::freediving, u"figure.water.fitness", u"Apnea", u"Tipi di Immersione"},
    Row{DivingIcons::snorkel, u"dive.snorkel", u"Snorkeling", u"Tipi di Immersione"},
    Row{DivingIcons::technical, u"graduationcap.fill", u"Tecnica", u"Tipi di Immersione"},
    Row{DivingIcons::cave, u"mountain.2.fill", u"Grotta", u"Tipi di Immersione"},
    Row{DivingIcons::wreck, u"sailboat.fill", u"Relitto", u"Tipi di Immersione"},
    Row{DivingIcons::night, u"moon.stars.fill", u"Notturna", u"Tipi di Immersione"},
    Row{DivingIcons::deep, u"arrow.down.circle.fill", u"Profonda", u"Tipi di Immersione"},
    Row{DivingIcons::service, u"wrench.fill", u"Manutenzione", u"Manutenzione"},
    Row{DivingIcons::cleaning, u"bubbles.and.sparkles.fill", u"Pulizia", u"Manutenzione"},
    Row{DivingIcons::test, u"checkmark.circle.fill", u"Test", u"Manutenzione"},
    Row{DivingIcons::repair, u"hammer.circle.fill", u"Riparazione", u"Manutenzione"},
    Row{DivingIcons::inspection, u"magnifyingglass.circle.fill", u"Ispezione", u"Manutenzione"},
    Row{DivingIcons::calibration, u"slider.horizontal.3", u"Calibrazione", u"Manutenzione"},
    Row{DivingIcons::other, u"questionmark.circle.fill", u"Altro", u"Altro"},
    Row{DivingIcons::accessory, u"circle.hexagongrid.fill", u"Accessorio", u"Altro"},
    Row{DivingIcons::custom, u"pencil.circle.fill", u"Personalizzato", u"Altro"},
};

} // namespace

class tst_DivingIcons : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fortySixIcons()
    {
        constexpr auto icons = allCases<DivingIcons>();
        QCOMPARE(icons.size(), std::size_t(46));
        QCOMPARE(icons.size(), table.size());
        for (std::size_t i = 0; i < table.size(); ++i) {
            QCOMPARE(icons[i], table[i].icon);
            QCOMPARE(rawValue(icons[i]), table[i].identifier.toString());
            QCOMPARE(displayName(icons[i]), table[i].name.toString());
            QCOMPARE(category(icons[i]), table[i].category.toString());
            QVERIFY(fromRawValue<DivingIcons>(table[i].identifier) == icons[i]);
        }
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
            QList<DivingIcons> inTableOrder;
            for (const Row& row : table) {
                if (row.category == sections.at(i).title)
                    inTableOrder.append(row.icon);
            }
            QCOMPARE(sections.at(i).icons.size(), expected.at(i).second);
            QCOMPARE(sections.at(i).icons, inTableOrder);
        }
    }
};

ABISSORA_TEST(tst_DivingIcons);
#include "tst_DivingIcons.moc"
